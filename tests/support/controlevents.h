#pragma once

#include <QApplication>
#include <QFocusEvent>
#include <QStringList>
#include <QWidget>

/// What a control said, one string a signal.
using Said = QStringList;

/// Gives the widget the focus, or takes it, as far as the widget can tell; no window has to be active for it.
inline void sendFocus(QWidget *widget, QEvent::Type type, Qt::FocusReason reason)
{
    QFocusEvent event(type, reason);
    QApplication::sendEvent(widget, &event);
}
