#pragma once

#include <optional>

#include <QString>

namespace virtualdesk {

/// The simulated desk's list of what starts at log-on: a small file that outlives the process, as the system's does.
class StartUpFile
{
public:
    /// The folder that holds the file "quorvel-desk-startup.ini".
    explicit StartUpFile(const QString &folder) { setFolder(folder); }
    void setFolder(const QString &folder);

    std::optional<QString> value(const QString &name) const;
    bool setValue(const QString &name, const QString &text);
    bool removeValue(const QString &name);

    /// Off: the system refuses changes, as it does where an administrator forbids them.
    bool writable = true;

private:
    QString m_fileName;
};

} // namespace virtualdesk
