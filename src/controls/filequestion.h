#pragma once

#include <QString>

class QWidget;

// The program's questions for files, all in the toolkit's own dialog. The system's keeps hot keys from coming through,
// does not end with the program, and brings other programs' code into a process with administrator rights. Folder ""
// is the working folder; filters are written as "All file (*.*)". Empty when the user cancels or the program ends.

/// An existing file. A shortcut of the system stands for the file that it leads to.
QString askForFile(QWidget *parent, const QString &caption, const QString &folder, const QString &filter);

/// A file to write, with this suffix where none is typed; the user has agreed when it exists.
QString askForNewFile(QWidget *parent, const QString &caption, const QString &folder, const QString &filter,
                      const QString &suffix);
