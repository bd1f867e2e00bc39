#pragma once

#include <QString>
#include <QVariant>

/// Starts a detached copy of the program with the same arguments, then ends this one, unless it ends already. False
/// when the copy could not be started: the log says so, and the program goes on as it was.
[[nodiscard]] bool relaunchAndQuit();

/// What came of a restart by which a setting is followed.
enum class Relaunch {
    Begins,
    NotStored,  ///< config.ini cannot be written, and a copy would come back with the old value
    NotStarted, ///< the old value is stored again
};

/// Stores a setting of config.ini, then as relaunchAndQuit().
[[nodiscard]] Relaunch relaunchWith(const QString &key, const QVariant &value);

/// What the user is told when the copy could not be started, translated.
QString notRestarted();
