#include "ddc_protocol/settingsstore.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

/// Whether a file has lines that are neither a section, a comment nor a key with its value.
bool holdsForeignLines(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const bool known = line.isEmpty() || line.startsWith('[') || line.startsWith(';') || line.indexOf('=') > 0;
        if (!known || line.contains('\0'))
            return true;
    }
    return false;
}

/// An INI file opened for one operation.
class IniFile
{
public:
    explicit IniFile(const QString &fileName) : m_settings(fileName, QSettings::IniFormat) {}

    /// A text with commas that somebody wrote by hand, without quotes, is a list to the toolkit.
    QString text(const QString &key) const
    {
        const QVariant value = m_settings.value(key);
        return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QLatin1String(", "))
                                                        : value.toString();
    }

    void write(const QString &key, const QVariant &value)
    {
        keepForeignContent();
        const QVariant before = m_settings.value(key);
        m_settings.setValue(key, value);
        if (finish())
            return;
        // The toolkit would go on telling this process the value that the file did not take.
        if (before.isValid())
            m_settings.setValue(key, before);
        else
            m_settings.remove(key);
    }

    void clear()
    {
        keepForeignContent();
        m_settings.clear();
        finish();
    }

    /// One write to the disk, by a file that takes the old one's place when it is complete.
    bool replace(const QList<QPair<QString, QString>> &settings)
    {
        keepForeignContent();
        QList<QPair<QString, QString>> before;
        for (const QString &key : keys())
            before.append({key, text(key)});
        fill(settings);
        if (finish())
            return true;
        fill(before); // the toolkit would go on telling this process what the file did not take
        return false;
    }

    QStringList keys() const { return m_settings.allKeys(); }

private:
    void fill(const QList<QPair<QString, QString>> &settings)
    {
        m_settings.clear();
        for (const auto &[key, value] : settings)
            m_settings.setValue(key, value);
    }

    /// The toolkit drops what it does not understand when it writes; somebody may want it back.
    void keepForeignContent()
    {
        const QString copy = m_settings.fileName() + QLatin1String(".bad");
        if (holdsForeignLines(m_settings.fileName()) && QFile::copy(m_settings.fileName(), copy))
            qWarning().noquote() << m_settings.fileName() << "is damaged; what it held is kept in" << copy;
    }

    bool finish()
    {
        // A process that was killed may have left a lock without an owner's name, for which the toolkit would wait
        // long.
        const QString lock = m_settings.fileName() + QLatin1String(".lock");
        if (QFileInfo(lock).size() == 0)
            QFile::remove(lock);
        m_settings.sync();
        const bool written = m_settings.status() != QSettings::AccessError;
        if (!written)
            qWarning().noquote() << "Cannot write" << m_settings.fileName();
        return written;
    }

    QSettings m_settings;
};

} // namespace

void clearSettingsFile(const QString &fileName)
{
    IniFile(fileName).clear();
}

QString settingsString(const QString &key, const QString &value, bool write, const QString &fileName)
{
    IniFile file(fileName);
    if (!write)
        return file.text(key);
    file.write(key, value);
    return {};
}

int settingsInt(const QString &key, int value, bool write)
{
    IniFile file(QString::fromLatin1(kConfigFile));
    if (!write)
        return file.text(key).toInt();
    file.write(key, value);
    return 0;
}

QList<QPair<QString, QString>> readAllSettings(const QString &fileName)
{
    const IniFile file(fileName);
    QList<QPair<QString, QString>> settings;
    for (const QString &key : file.keys())
        settings.append({key, file.text(key)});
    return settings;
}

bool writeAllSettings(const QString &fileName, const QList<QPair<QString, QString>> &settings)
{
    return IniFile(fileName).replace(settings);
}

QString languageSetting(bool write, const QString &code)
{
    const QString fileName = QString::fromLatin1(kConfigFile);
    const QString stored = settingsString(QStringLiteral("General/Language"), code, write, fileName);
    // The toolkit writes that key under [%General]; somebody editing the file by hand writes [General].
    return stored.isEmpty() && !write ? settingsString(QStringLiteral("Language"), {}, false, fileName) : stored;
}
