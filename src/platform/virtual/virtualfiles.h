#pragma once

#include "platform/files.h"
#include "virtualdesk/filefaults.h"

namespace platform {

/// The system's files on a disk that fails when the simulated desk says so.
class VirtualFiles final : public Files
{
public:
    explicit VirtualFiles(virtualdesk::FileFaults &faults);

    int open(const QString &path, FileAccess access) override { return m_system->open(path, access); }
    bool write(QIODevice &device, const QByteArray &bytes) override;
    bool flush(const QString &path) override;
    bool replace(const QString &path, const QString &replaced) override;
    bool isLink(const QString &path) override { return m_system->isLink(path); }
    std::uint32_t lastError() override { return m_system->lastError(); }
    QByteArray lineEnd() override { return m_system->lineEnd(); }

private:
    virtualdesk::FileFaults &m_faults;
    std::unique_ptr<Files> m_system;
};

} // namespace platform
