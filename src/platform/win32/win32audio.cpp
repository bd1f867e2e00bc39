#include "platform/win32/win32audio.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <utility>

#include <windows.h>
// Before the interfaces: their identifiers are defined here.
#include <initguid.h>

#include <audioclient.h>
#include <avrt.h>
#include <ks.h>
#include <ksmedia.h>
#include <mmdeviceapi.h>

#include <QtGlobal>

#include "platform/win32/compointer.h"

namespace platform {

namespace {

static_assert(kAudioOk == S_OK && kAudioFalse == S_FALSE);
static_assert(kAudioBufferEmpty == static_cast<AudioResult>(AUDCLNT_S_BUFFER_EMPTY));
static_assert(kAudioDeviceInvalidated == static_cast<AudioResult>(AUDCLNT_E_DEVICE_INVALIDATED));
static_assert(kAudioOutOfOrder == static_cast<AudioResult>(AUDCLNT_E_OUT_OF_ORDER));
static_assert(kAudioServiceNotRunning == static_cast<AudioResult>(AUDCLNT_E_SERVICE_NOT_RUNNING));
static_assert(kAudioBufferError == static_cast<AudioResult>(AUDCLNT_E_BUFFER_ERROR));
static_assert(kFormatPcm == WAVE_FORMAT_PCM && kBufferSilent == AUDCLNT_BUFFERFLAGS_SILENT);
static_assert(kFormatFloat == WAVE_FORMAT_IEEE_FLOAT && kFormatExtensible == WAVE_FORMAT_EXTENSIBLE);
static_assert(kSubFormatPcm == Guid{STATIC_KSDATAFORMAT_SUBTYPE_PCM});
static_assert(kSubFormatFloat == Guid{STATIC_KSDATAFORMAT_SUBTYPE_IEEE_FLOAT});
static_assert(kStreamLoopback == AUDCLNT_STREAMFLAGS_LOOPBACK);
static_assert(sizeof(AudioFormat) == sizeof(WAVEFORMATEXTENSIBLE));
static_assert(offsetof(AudioFormat, extraSize) == offsetof(WAVEFORMATEX, cbSize));
static_assert(offsetof(AudioFormat, channelMask) == offsetof(WAVEFORMATEXTENSIBLE, dwChannelMask));
static_assert(offsetof(AudioFormat, subFormat) == offsetof(WAVEFORMATEXTENSIBLE, SubFormat));

AudioResult code(HRESULT result)
{
    return static_cast<AudioResult>(result);
}

const WAVEFORMATEX *native(const AudioFormat &format)
{
    return reinterpret_cast<const WAVEFORMATEX *>(&format);
}

class Win32CaptureClient final : public AudioCaptureClient
{
public:
    explicit Win32CaptureClient(ComPointer<IAudioCaptureClient> client) : m_client(std::move(client)) {}

    AudioResult nextPacketSize(std::uint32_t &frames) override
    {
        UINT32 size = 0;
        const HRESULT result = m_client->GetNextPacketSize(&size);
        frames = size;
        return code(result);
    }

    AudioResult getBuffer(AudioPacket &packet) override
    {
        BYTE *data = nullptr;
        UINT32 frames = 0;
        DWORD flags = 0;
        const HRESULT result = m_client->GetBuffer(&data, &frames, &flags, nullptr, nullptr);
        packet = {reinterpret_cast<const std::byte *>(data), frames, static_cast<std::uint32_t>(flags)};
        return code(result);
    }

    AudioResult releaseBuffer(std::uint32_t frames) override { return code(m_client->ReleaseBuffer(frames)); }

private:
    ComPointer<IAudioCaptureClient> m_client;
};

class Win32AudioClient final : public AudioClient
{
public:
    explicit Win32AudioClient(ComPointer<IAudioClient> client) : m_client(std::move(client)) {}

    AudioResult devicePeriod(std::int64_t &period) override
    {
        REFERENCE_TIME defaultPeriod = 0;
        const HRESULT result = m_client->GetDevicePeriod(&defaultPeriod, nullptr);
        period = defaultPeriod;
        return code(result);
    }

    AudioResult mixFormat(AudioFormat &format) override
    {
        WAVEFORMATEX *mix = nullptr;
        const HRESULT result = m_client->GetMixFormat(&mix);
        format = {};
        if (SUCCEEDED(result) && mix)
            std::memcpy(static_cast<void *>(&format), mix,
                        std::min(sizeof(WAVEFORMATEX) + mix->cbSize, sizeof(format)));
        // A driver may tell of more than was taken; whoever is given the format would read on behind it.
        format.extraSize = std::min<std::uint16_t>(format.extraSize, sizeof(format) - sizeof(WAVEFORMATEX));
        CoTaskMemFree(mix);
        return code(result);
    }

    AudioResult isFormatSupported(const AudioFormat &format) override
    {
        WAVEFORMATEX *closest = nullptr;
        const HRESULT result = m_client->IsFormatSupported(AUDCLNT_SHAREMODE_SHARED, native(format), &closest);
        CoTaskMemFree(closest);
        return code(result);
    }

    AudioResult initialize(std::uint32_t flags, std::int64_t duration, const AudioFormat &format) override
    {
        return code(m_client->Initialize(AUDCLNT_SHAREMODE_SHARED, flags, duration, 0, native(format), nullptr));
    }

    AudioResult start() override { return code(m_client->Start()); }
    AudioResult stop() override { return code(m_client->Stop()); }
    AudioResult reset() override { return code(m_client->Reset()); }

    AudioResult captureClient(std::unique_ptr<AudioCaptureClient> &client) override
    {
        ComPointer<IAudioCaptureClient> found;
        const HRESULT result = m_client->GetService(IID_IAudioCaptureClient, found.putVoid());
        if (SUCCEEDED(result))
            client = std::make_unique<Win32CaptureClient>(std::move(found));
        return code(result);
    }

private:
    ComPointer<IAudioClient> m_client;
};

class Win32Endpoint final : public AudioEndpoint
{
public:
    explicit Win32Endpoint(ComPointer<IMMDevice> device) : m_device(std::move(device)) {}

    AudioResult activate(std::unique_ptr<AudioClient> &client) override
    {
        ComPointer<IAudioClient> found;
        const HRESULT result = m_device->Activate(IID_IAudioClient, CLSCTX_ALL, nullptr, found.putVoid());
        if (SUCCEEDED(result))
            client = std::make_unique<Win32AudioClient>(std::move(found));
        return code(result);
    }

private:
    ComPointer<IMMDevice> m_device;
};

class Win32Enumerator final : public AudioEnumerator
{
public:
    explicit Win32Enumerator(ComPointer<IMMDeviceEnumerator> enumerator) : m_enumerator(std::move(enumerator)) {}

    AudioResult defaultRenderEndpoint(std::unique_ptr<AudioEndpoint> &endpoint) override
    {
        ComPointer<IMMDevice> device;
        const HRESULT result = m_enumerator->GetDefaultAudioEndpoint(eRender, eConsole, device.put());
        if (SUCCEEDED(result))
            endpoint = std::make_unique<Win32Endpoint>(std::move(device));
        return code(result);
    }

private:
    ComPointer<IMMDeviceEnumerator> m_enumerator;
};

class ComScope final : public AudioScope
{
public:
    ~ComScope() override { CoUninitialize(); }
};

class EventScope final : public AudioScope
{
public:
    explicit EventScope(HANDLE event) : m_event(event) {}
    ~EventScope() override { CloseHandle(m_event); }
    Q_DISABLE_COPY_MOVE(EventScope)

private:
    HANDLE m_event;
};

class TaskScope final : public AudioScope
{
public:
    explicit TaskScope(HANDLE task) : m_task(task) {}
    ~TaskScope() override { AvRevertMmThreadCharacteristics(m_task); }
    Q_DISABLE_COPY_MOVE(TaskScope)

private:
    HANDLE m_task;
};

} // namespace

std::unique_ptr<AudioScope> Win32Audio::initialiseThread()
{
    // Failure: the thread has another kind of apartment already, which serves as well.
    if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)))
        return nullptr;
    return std::make_unique<ComScope>();
}

AudioResult Win32Audio::createEnumerator(std::unique_ptr<AudioEnumerator> &enumerator)
{
    ComPointer<IMMDeviceEnumerator> found;
    const HRESULT result =
        CoCreateInstance(CLSID_MMDeviceEnumerator, nullptr, CLSCTX_ALL, IID_IMMDeviceEnumerator, found.putVoid());
    if (SUCCEEDED(result))
        enumerator = std::make_unique<Win32Enumerator>(std::move(found));
    return code(result);
}

std::unique_ptr<AudioScope> Win32Audio::createEvent()
{
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return event ? std::make_unique<EventScope>(event) : nullptr;
}

std::unique_ptr<AudioScope> Win32Audio::registerTask(const char16_t *task)
{
    DWORD index = 0;
    const HANDLE handle = AvSetMmThreadCharacteristicsW(reinterpret_cast<const wchar_t *>(task), &index);
    return handle ? std::make_unique<TaskScope>(handle) : nullptr;
}

} // namespace platform
