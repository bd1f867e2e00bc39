#include "virtualdesk/startupfile.h"

#include <QDir>
#include <QSettings>
#include <QVariant>

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
    return change([&](QSettings &file) { file.setValue(name, text); });
}

bool StartUpFile::removeValue(const QString &name)
{
    return change([&](QSettings &file) { file.remove(name); });
}

bool StartUpFile::change(const std::function<void(QSettings &)> &edit)
{
    if (!writable)
        return false;
    QSettings file(m_fileName, QSettings::IniFormat);
    edit(file);
    file.sync();
    return file.status() == QSettings::NoError;
}

} // namespace virtualdesk
