#pragma once

#include <memory>

#include <QList>
#include <QWidget>

#include "controls/accessiblecontrol.h"
#include "page/Nightloom/render/audioled.h"

/// What is heard: eleven bars, and beside them the matrix as it shows them.
class AudioPicture : public QWidget, public Described
{
    Q_OBJECT
public:
    explicit AudioPicture(QWidget *parent = nullptr);

    /// The heights of now; an empty list takes the bars away.
    void showHeights(const QList<int> &heights);
    void setTemplate(AudioTemplate which);

    const QList<int> &heights() const { return m_heights; }
    /// The cells of the matrix as they are shown, in frame order.
    std::span<const std::int32_t> cells() const;

    QSize sizeHint() const override;

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QString valueText() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void followForm();
    qreal shareOf(int bar) const;
    void paintBars(QPainter &painter, const QRect &area) const;
    void paintMatrix(QPainter &painter, const QRect &area) const;

    QList<int> m_heights;
    AudioTemplate m_template = AudioTemplate::Bars;
    const MatrixForm *m_form = nullptr; ///< of the object below
    std::unique_ptr<AudioBars> m_bars;
};
