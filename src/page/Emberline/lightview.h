#pragma once

#include <QDateTime>
#include <QWidget>

#include "controls/accessiblecontrol.h"
#include "page/Emberline/lightframe.h"

/// The monitor's back, with its lamps as they are set. What they do is played while somebody can see it, and only when
/// something moves.
class LightView : public QWidget, public Described
{
    Q_OBJECT
public:
    explicit LightView(QWidget *parent = nullptr);

    /// Plays another look, from its beginning.
    void setLook(const LightLook &look);

    /// Whether it plays, and does not only show a picture that stands.
    bool isPlaying() const { return m_isPlaying; }
    const LightFrame &frame() const { return m_frame; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Graphic; }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void play();
    void showMoment();
    void lookLater();

    LightLook m_look;
    LightFrame m_frame;
    QDateTime m_begin; ///< of the look
    bool m_isPlaying = false;
    int m_run = 0; ///< what was to come in an earlier one does not any more
};
