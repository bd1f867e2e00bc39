#pragma once

#include <optional>

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

// Small operations over INI files of the working directory. Every call opens the file and closes it again; nothing is
// cached. A file that cannot be written, or that another program holds locked for a second, is logged and left as it
// is; one that holds something else than settings is copied to "<name>.bad", "<name>.bad2" and so on before it is
// overwritten. A value that is no text, number or on/off reads as empty and is kept as it stands in the file.

inline constexpr char kConfigFile[] = "config.ini";
inline constexpr char kLanguageKey[] = "General/Language";
inline constexpr char kDeviceIndexKey[] = "PCSeting/DeviceIndex"; // spelled so in every user's file
inline constexpr char kRestartKey[] = "SystemMode/Restart";

/// Removes every key of the file.
void clearSettingsFile(const QString &fileName);

/// Write: stores value under the key and returns an empty text. Read: the stored text, empty when absent.
QString settingsString(const QString &key, const QString &value, bool write, const QString &fileName);

/// As settingsString for an integer, always in config.ini. Write returns 0; read the integer, 0 when absent or none.
int settingsInt(const QString &key, int value, bool write);

/// The integer that config.ini holds; nothing when it holds none under the key.
std::optional<int> storedInt(const QString &key);

/// Every key of the file with its value, sorted by key.
QList<QPair<QString, QString>> readAllSettings(const QString &fileName);

/// Stores a text or an integer. False when it could not be written: whoever has the user's ear tells so. Whatever
/// happens meanwhile, the file holds the old settings or the new ones; so it is with the other writers.
[[nodiscard]] bool storeSetting(const QString &key, const QVariant &value,
                                const QString &fileName = QString::fromLatin1(kConfigFile));

/// Stores several at once: all of them or none.
[[nodiscard]] bool storeSettings(const QList<QPair<QString, QVariant>> &settings,
                                 const QString &fileName = QString::fromLatin1(kConfigFile));

/// Replaces everything the file holds. False when it could not be written; then it holds the old settings.
[[nodiscard]] bool writeAllSettings(const QString &fileName, const QList<QPair<QString, QString>> &settings);

/// The interface language in config.ini. Write: stores the code and returns an empty text. Read: the stored code, empty
/// when absent.
QString languageSetting(bool write, const QString &code = {});
