#include "controls/announcer.h"

#include <QApplication>

#include "controls/accessiblecontrol.h"

Announcer::Announcer(QWidget *window) : QWidget(window)
{
    describeAs(this, QAccessible::StatusBar);
    setObjectName(QStringLiteral("announcer"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFixedSize(1, 1); // it is there, or nobody would be told of it
}

/// The same words told twice are news twice: the second change goes through an empty name.
void Announcer::say(const QString &text)
{
    if (text.isEmpty())
        return;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (auto *announcer = window->findChild<QWidget *>(QStringLiteral("announcer"), Qt::FindDirectChildrenOnly)) {
            if (announcer->accessibleName() == text)
                announcer->setAccessibleName(QString());
            announcer->setAccessibleName(text);
        }
    }
}
