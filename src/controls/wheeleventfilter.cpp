#include "controls/wheeleventfilter.h"

#include <QEvent>

bool WheelEventFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel) {
        // Not accepted, it goes on to the parent: the scroll area scrolls.
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
