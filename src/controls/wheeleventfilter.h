#pragma once

#include <QObject>

/// Installed on a widget it swallows the mouse wheel, so that a combo box or slider inside a scroll area does not
/// change while the page is scrolled.
class WheelEventFilter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};
