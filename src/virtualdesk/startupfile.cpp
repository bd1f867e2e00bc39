#include "virtualdesk/startupfile.h"

#include <QDir>
#include <QSettings>

namespace virtualdesk {

void StartUpFile::setFolder(const QString &folder)
{
    m_fileName = QDir(folder).filePath(QStringLiteral("quorvel-desk-startup.ini"));
}

std::optional<QString> StartUpFile::value(const QString &name) const
{
    const QVariant value = QSettings(m_fileName, QSettings::IniFormat).value(name);
    return value.isValid() ? std::optional(value.toString()) : std::nullopt;
}

bool StartUpFile::setValue(const QString &name, const QString &text)
{
    if (writable)
        QSettings(m_fileName, QSettings::IniFormat).setValue(name, text);
    return writable;
}

bool StartUpFile::removeValue(const QString &name)
{
    if (writable)
        QSettings(m_fileName, QSettings::IniFormat).remove(name);
    return writable;
}

} // namespace virtualdesk
