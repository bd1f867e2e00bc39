#include "ddc_protocol/settingsstore.h"

#include <QDebug>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>

#include "ddc_protocol/damagedsettings.h"
#include "files/inifile.h"
#include "files/wholefile.h"
#include "platform/desk.h"

namespace {

constexpr qint64 kLargestFile = 4 << 20; // bytes: some ten thousand programs to follow
constexpr int kLockWait = 1000;          // ms
constexpr qint64 kLargestLock = 4096;    // bytes; who holds it, and where

using Values = QMap<QString, QVariant>;

/// Where this thread is told what the toolkit was given to write: that is to be found in the file again.
thread_local QByteArray *s_composed = nullptr;

bool readFormat(QIODevice &device, QSettings::SettingsMap &values)
{
    const QByteArray bytes = device.read(kLargestFile + 1);
    if (bytes.size() > kLargestFile)
        return false;
    values = parseIni(bytes).values;
    return true;
}

bool writeFormat(QIODevice &device, const QSettings::SettingsMap &values)
{
    platform::Files &files = platform::desk().files();
    const QByteArray bytes = composeIni(values, files.lineEnd());
    if (s_composed)
        *s_composed = bytes;
    return files.write(device, bytes);
}

/// The toolkit's INI format in our own hands: it builds no other types, and keeps letter case on every system.
QSettings::Format iniFormat()
{
    static const QSettings::Format format =
        QSettings::registerFormat(QStringLiteral("ini"), readFormat, writeFormat, Qt::CaseSensitive);
    return format;
}

/// A text with commas that somebody wrote by hand, without quotes, is a list to the toolkit.
QString textOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QStringList:
        return value.toStringList().join(QLatin1String(", "));
    case QMetaType::QByteArray:
        return {}; // of another type
    default:
        return value.toString();
    }
}

/// As the file will give it back: a number or on/off is a text there.
QVariant asRead(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList ? value : QVariant(value.toString());
}

/// A settings file opened to be read. Only regular files: the toolkit would wait for whoever writes to a pipe.
template <typename Read> auto readFrom(const QString &fileName, const Read &read)
{
    if (!QFileInfo(fileName).isFile())
        return decltype(read(std::declval<const QSettings &>()))();
    return read(QSettings(fileName, iniFormat()));
}

bool refuse(const QString &fileName, const QString &why)
{
    qWarning().noquote() << "Cannot write" << fileName << "-" << why;
    return false;
}

/// Has the toolkit write the values under a scratch name, where its lock and its cache are nobody else's.
bool replaceFile(const QString &fileName, const Values &values)
{
    Replacement file(fileName);
    if (!file.open())
        return refuse(fileName, file.error());
    QByteArray bytes;
    s_composed = &bytes;
    {
        QSettings settings(file.handOver(), iniFormat());
        settings.setAtomicSyncRequired(false); // it is put in place below
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            settings.setValue(value.key(), value.value());
    }
    s_composed = nullptr;
    if (bytes.size() > kLargestFile || parseIni(bytes).values.size() != values.size())
        return refuse(fileName, QStringLiteral("it could not be read again"));
    return file.putInPlace(bytes) || refuse(fileName, file.error());
}

/// Nothing else is left to the toolkit, which would wait for whoever writes to a pipe and read any size into memory.
bool mayBeLock(const QString &name)
{
    const QFileInfo file(name);
    return !file.exists() || (file.isFile() && file.size() <= kLargestLock);
}

/// The toolkit keeps the system's reason to itself: another file of that kind meets it as well.
QString whyUnlocked(const QString &lockName, QLockFile::LockError error)
{
    Replacement probe(lockName + QLatin1String(".probe"));
    const bool mayWrite = error != QLockFile::UnknownError || (probe.open() && probe.write(QByteArray(64, ' ')));
    return mayWrite ? QStringLiteral("it cannot be locked") : probe.error();
}

/// Reads a file, lets the values be changed and writes it, unless nothing has changed.
template <typename Change> bool changeFile(const QString &fileName, const Change &change)
{
    const QString lockName = fileName + QLatin1String(".lock");
    const QFileInfo lockFile(lockName);
    if (lockFile.isFile() && lockFile.size() == 0) // of a process that was killed before it wrote its name there
        QFile::remove(lockName);
    QLockFile lock(lockName);
    if (!mayBeLock(lockName) || !lock.tryLock(kLockWait))
        return refuse(fileName, whyUnlocked(lockName, lock.error()));
    const WholeFile old = readWhole(fileName, kLargestFile);
    if (!old.error.isEmpty())
        return refuse(fileName, old.error);
    const IniContent content = old.more ? IniContent{{}, true} : parseIni(old.bytes);
    Values values = content.values;
    change(values);
    if (values == content.values && composeIni(values, platform::desk().files().lineEnd()) == old.bytes)
        return true; // the same settings in another hand's form are written anew
    if (content.hasForeignLines && !keepDamaged(fileName, old))
        return refuse(fileName, QStringLiteral("what it held cannot be kept"));
    return replaceFile(fileName, values);
}

} // namespace

void clearSettingsFile(const QString &fileName)
{
    changeFile(fileName, [](Values &values) { values.clear(); });
}

QString settingsString(const QString &key, const QString &value, bool write, const QString &fileName)
{
    if (!write)
        return readFrom(fileName, [&key](const QSettings &file) { return textOf(file.value(key)); });
    const bool told = storeSetting(key, value, fileName); // the log tells
    Q_UNUSED(told)
    return {};
}

int settingsInt(const QString &key, int value, bool write)
{
    if (!write)
        return settingsString(key, {}, false, QString::fromLatin1(kConfigFile)).toInt();
    const bool told = storeSetting(key, value);
    Q_UNUSED(told)
    return 0;
}

std::optional<int> storedInt(const QString &key)
{
    bool isNumber = false;
    const int value = settingsString(key, {}, false, QString::fromLatin1(kConfigFile)).toInt(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

QList<QPair<QString, QString>> readAllSettings(const QString &fileName)
{
    return readFrom(fileName, [](const QSettings &file) {
        QList<QPair<QString, QString>> settings;
        const QStringList keys = file.allKeys();
        for (const QString &key : keys)
            settings.append({key, textOf(file.value(key))});
        return settings;
    });
}

bool storeSetting(const QString &key, const QVariant &value, const QString &fileName)
{
    return storeSettings({{key, value}}, fileName);
}

bool storeSettings(const QList<QPair<QString, QVariant>> &settings, const QString &fileName)
{
    return changeFile(fileName, [&settings](Values &values) {
        for (const auto &[key, value] : settings)
            values[normalizedKey(key)] = asRead(value);
    });
}

bool writeAllSettings(const QString &fileName, const QList<QPair<QString, QString>> &settings)
{
    return changeFile(fileName, [&settings](Values &values) {
        values.clear();
        for (const auto &[key, value] : settings)
            values[normalizedKey(key)] = value;
    });
}

QString languageSetting(bool write, const QString &code)
{
    const QString fileName = QString::fromLatin1(kConfigFile);
    const QString stored = settingsString(QString::fromLatin1(kLanguageKey), code, write, fileName);
    // That key is written under [%General]; somebody editing the file by hand writes [General].
    return stored.isEmpty() && !write ? settingsString(QStringLiteral("Language"), {}, false, fileName) : stored;
}
