#pragma once

#include <QString>

/// What became of a setting that could not be stored.
enum class Unstored {
    Undone,         ///< the old one holds
    HoldsUntilExit, ///< it works, but the next start will not know it
};

/// What a page tells the user then.
QString storeNotice(Unstored what, const QString &fileName);
