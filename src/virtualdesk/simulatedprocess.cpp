#include "virtualdesk/simulatedprocess.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLockFile>

#include "platform/nativemessage.h"
#include "virtualdesk/devicemessages.h"

namespace virtualdesk {

/// A name that this process holds, or only knows to be held.
struct SimulatedProcess::OpenMutex
{
    explicit OpenMutex(const QString &path) : lock(path) { lock.setStaleLockTime(0); }
    QLockFile lock;
};

SimulatedProcess::SimulatedProcess(MonitorHandles &handles)
    : m_handles(handles), m_folder(QDir::tempPath()), m_startUp(m_folder)
{
}

SimulatedProcess::~SimulatedProcess() = default;

void SimulatedProcess::setFolder(const QString &folder)
{
    m_folder = folder;
    m_startUp.setFolder(folder);
}

platform::NamedMutex SimulatedProcess::createMutex(const QString &name)
{
    // Names may hold what file names may not.
    const QByteArray digest = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1).toHex().left(16);
    const QString file = QStringLiteral("quorvel-desk-%1.lock").arg(QLatin1String(digest));
    auto mutex = std::make_unique<OpenMutex>(QDir(m_folder).filePath(file));
    std::uint32_t error = 0;
    if (!mutex->lock.tryLock(0)) {
        if (mutex->lock.error() != QLockFile::LockFailedError)
            return {nullptr, platform::kErrorAccessDenied};
        error = platform::kErrorAlreadyExists;
    }
    void *handle = mutex.get();
    m_mutexes.push_back(std::move(mutex));
    return {handle, error};
}

void SimulatedProcess::closeMutex(void *handle)
{
    const auto erased = std::erase_if(m_mutexes, [handle](const auto &mutex) { return mutex.get() == handle; });
    if (erased == 0 && handle != nullptr)
        m_handles.countFault();
}

bool SimulatedProcess::endSession()
{
    qintptr agreed = 1; // who does not answer agrees
    platform::NativeMessage message;
    message.message = platform::kMessageQueryEndSession;
    deliverNativeMessage(message, &agreed);
    message.message = platform::kMessageEndSession;
    message.wParam = agreed != 0 ? 1 : 0;
    deliverNativeMessage(message);
    return agreed != 0;
}

} // namespace virtualdesk
