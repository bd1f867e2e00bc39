#include "platform/virtual/virtualfiles.h"

namespace platform {

VirtualFiles::VirtualFiles(virtualdesk::FileFaults &faults) : m_faults(faults), m_system(createSystemFiles())
{
}

bool VirtualFiles::write(QIODevice &device, const QByteArray &bytes)
{
    if (!m_faults.write.failsNow())
        return m_system->write(device, bytes);
    m_system->write(device, bytes.first(bytes.size() / 2)); // as a disk that gets full
    return false;
}

bool VirtualFiles::flush(const QString &path)
{
    return !m_faults.flush.failsNow() && m_system->flush(path);
}

bool VirtualFiles::replace(const QString &path, const QString &replaced)
{
    return !m_faults.replace.failsNow() && m_system->replace(path, replaced);
}

} // namespace platform
