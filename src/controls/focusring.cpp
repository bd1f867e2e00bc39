#include "controls/focusring.h"

#include <QAbstractButton>
#include <QFocusEvent>
#include <QKeyEvent>

#include "controls/palette.h"

void FocusRing::follow(const QFocusEvent *event)
{
    const Qt::FocusReason reason = event->reason();
    // A window that comes back shows what it showed when it went.
    if (event->gotFocus() && reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        m_byKeyboard =
            reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    m_focused = event->gotFocus();
}

void FocusRing::draw(QPainter &painter, const QRect &rect, qreal radius) const
{
    if (!isShown())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Palette::translucent(Palette::kMint, 178), 1.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

bool isPressKey(const QKeyEvent *event)
{
    const bool pressKey =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    return pressKey && !event->isAutoRepeat() && !(event->modifiers() & ~Qt::KeypadModifier);
}

bool pressFocused(const QKeyEvent *event, const QWidget *window)
{
    auto *button = qobject_cast<QAbstractButton *>(window->focusWidget());
    if (!button || !button->isEnabled() || !isPressKey(event))
        return false;
    button->click();
    return true;
}
