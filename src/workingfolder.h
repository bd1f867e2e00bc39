#pragma once

#include <QStringList>

/// What decides in which folder the program works. Folders are written with slashes.
struct FolderFacts
{
    QString current; ///< where it was started
    bool currentHoldsSettings = false;
    bool currentWritable = false;
    QString own; ///< where its file lies
    bool ownHoldsSettings = false;
    QStringList system; ///< the folders of the system itself
    QString localData;  ///< where the user's programs keep their data; empty when nobody tells
};

/// The folder to change to, or an empty text to stay. A folder with a config.ini is never left.
QString workingFolderFor(const FolderFacts &facts);

/// Changes to the folder in which settings, lists and logs are kept, which is made if need be. To be called before the
/// first of them is read or written. What fails leaves the program where it was started.
void settleWorkingFolder();
