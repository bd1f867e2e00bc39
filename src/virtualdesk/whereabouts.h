#pragma once

#include <QDir>
#include <QObject>
#include <QTimer>

namespace virtualdesk {

/// Tells whoever plays the program from outside where its controls are, so that nobody has to know pixels. A name is
/// put into the folder's file "where.txt"; a look or two later the answer lies in "place.txt": "x y width height", in
/// pixels of the screen, of what can be seen of the control, or an empty line when nothing can. A name is an object
/// name or that of a widget's class. A beginning of names and a "*" is answered by the object names of all that can be
/// seen, a line each. Interface thread.
class Whereabouts : public QObject
{
public:
    Whereabouts(const QString &folder, QObject *parent);

private:
    void look();

    QDir m_folder;
    QTimer m_timer;
    QString m_asked;
};

} // namespace virtualdesk
