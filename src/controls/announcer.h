#pragma once

#include <QWidget>

/// The one object by which assistive software hears what happened: its name is what was told last. A screen reader
/// speaks a change of it wherever the keyboard is.
class Announcer : public QWidget
{
public:
    /// Stands in the window and shows nothing.
    explicit Announcer(QWidget *window);

    /// Tells a text, translated; an empty one is nothing to tell. Does nothing while no window has an announcer.
    static void say(const QString &text);
};
