#pragma once

#include <QWidget>

#include "controls/nowheelslider.h"
#include "controls/valuemark.h"

class CaptionLabel;
class QLabel;

/// A caption, a slider and the value as a number.
class SliderWidget : public QWidget
{
    Q_OBJECT

public:
    /// @p name is the object name, the first caption and what the signal sends; the range is inclusive.
    SliderWidget(const QString &name, int minimum, int maximum, QWidget *parent = nullptr);

    /// The untranslated name that the signal sends.
    QString name() const { return objectName(); }

    QString caption() const;
    /// Sets the caption, which is the accessible name too unless @p spoken says more; the name stays.
    void setCaption(const QString &caption, const QString &spoken = {});
    /// Fixes where the groove begins: as many pixels from the left as an option does behind a caption of this width.
    void setCaptionWidth(int width);
    /// Leaves the caption away, where what stands above says the same. It stays the accessible name.
    void hideCaption();

    /// What it is for: a sentence for the tooltip and the accessible description.
    void setHelp(const QString &sentence);

    /// Colour of the slider; an invalid colour means the mint gradient.
    void setAccent(const QColor &accent);
    /// Shows the accent as a dot before the caption, where colours share a heading.
    void showAccent();

    int value() const { return m_slider->value(); }
    /// Moves the slider, bounded by its range, and so emits sliderValueChanged(name, value, false) when it changed.
    /// The value counts as known afterwards.
    void setValue(int value);

    bool isUnknown() const { return m_slider->isUnknown(); }
    /// Shows a dash for a value that was not read yet, until one is set.
    void setUnknown(bool unknown);

    /// Whether the wheel steps it, for where nothing scrolls: a known value by one a notch, each a movement of its own.
    void setWheelSteps(bool steps) { m_wheelSteps = steps; }

    /// Whether the user has hold of it, by mouse or key.
    bool isHeld() const { return m_slider->isSliderDown(); }

    /// What is to be said about the value; a dash stands for Mark::Unknown.
    void setMark(Mark mark);
    Mark mark() const { return m_mark->mark(); }

    /// Disables the control while there is a reason, which it then says; empty enables it.
    void setLock(const QString &reason);

    NoWheelSlider *slider() const { return m_slider; }
    QLabel *valueLabel() const { return m_valueLabel; }

public Q_SLOTS:
    void onValueChanged(int value);
    void onSliderReleased();

Q_SIGNALS:
    /// @p bReleased is false for every step of a movement, true once when the user lets go of mouse or key. A slider
    /// without a value that is taken hold of and not moved tells a step as well: where it is, is wanted now.
    void sliderValueChanged(QString sliderName, int value, bool bReleased);

    /// See NoWheelSlider::holdLost.
    void holdLost(const QString &name);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void showValue();
    void describe();

    CaptionLabel *m_captionLabel;
    NoWheelSlider *m_slider;
    QLabel *m_valueLabel;
    ValueMark *m_mark;
    QColor m_accent;
    bool m_showsAccent = false;
    QString m_help;
    QString m_lock; ///< why it is disabled
    bool m_wheelSteps = false;
    int m_wheelTurn = 0; ///< less than a notch yet, in the wheel's own unit
};
