#pragma once

#include <functional>
#include <optional>

#include <QString>

class QSettings;

namespace virtualdesk {

/// The simulated desk's list of what starts at log-on: a small file that outlives the process, as the system's does.
class StartUpFile
{
public:
    /// The folder that holds the file "quorvel-desk-startup.ini".
    explicit StartUpFile(const QString &folder) { setFolder(folder); }
    void setFolder(const QString &folder);

    /// The text of a value; nothing when there is none.
    std::optional<QString> value(const QString &name) const;
    /// Each is false when the system refuses it, or the disk.
    bool setValue(const QString &name, const QString &text);
    bool removeValue(const QString &name);

    /// Off: the system refuses changes, as it does where an administrator forbids them.
    bool writable = true;

private:
    bool change(const std::function<void(QSettings &)> &edit);

    QString m_fileName;
};

} // namespace virtualdesk
