// A COM server in the place of the system's class of sound devices: one device, as the endpoint tells. The folder of
// its files is named by the environment variable QUORVEL_TEST_SOUND. A client finds here what the system would do to
// it: results for calls out of order, packets no faster than they are played, and a client that stays dead once its
// device was lost.

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

#include <windows.h>
// Before the interfaces: their identifiers are defined here.
#include <initguid.h>

#include <audioclient.h>
#include <mmdeviceapi.h>
#include <mmreg.h>

#include "endpoint.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr GUID kFloatSamples = {3, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71}};
constexpr GUID kIntegerSamples = {1, 0, 0x10, {0x80, 0, 0, 0xAA, 0, 0x38, 0x9B, 0x71}};
constexpr REFERENCE_TIME kDevicePeriod = 100'000; // 10 ms
constexpr HRESULT kNotFound = static_cast<HRESULT>(0x80070490);

Endpoint &endpoint()
{
    static Endpoint theEndpoint([] {
        wchar_t folder[MAX_PATH] = {};
        GetEnvironmentVariableW(L"QUORVEL_TEST_SOUND", folder, MAX_PATH);
        return std::filesystem::path(folder);
    }());
    return theEndpoint;
}

HRESULT failure(const char *call)
{
    return static_cast<HRESULT>(endpoint().failure(call));
}

WAVEFORMATEXTENSIBLE formatOf(const Playing &playing, bool isFloat)
{
    WAVEFORMATEXTENSIBLE format = {};
    format.Format.wFormatTag = WAVE_FORMAT_EXTENSIBLE;
    format.Format.nChannels = static_cast<WORD>(playing.channels);
    format.Format.nSamplesPerSec = playing.rate;
    format.Format.wBitsPerSample = isFloat ? 32 : 16;
    format.Format.nBlockAlign = static_cast<WORD>(format.Format.nChannels * format.Format.wBitsPerSample / 8);
    format.Format.nAvgBytesPerSec = format.Format.nBlockAlign * playing.rate;
    format.Format.cbSize = sizeof(format) - sizeof(format.Format);
    format.Samples.wValidBitsPerSample = format.Format.wBitsPerSample;
    format.dwChannelMask = (1u << playing.channels) - 1;
    format.SubFormat = isFloat ? kFloatSamples : kIntegerSamples;
    return format;
}

WAVEFORMATEX *handOut(const WAVEFORMATEXTENSIBLE &format)
{
    void *copy = CoTaskMemAlloc(sizeof(format));
    if (copy)
        std::memcpy(copy, &format, sizeof(format));
    return static_cast<WAVEFORMATEX *>(copy);
}

/// The counting that all objects share; each has one interface.
template <typename Interface> class Object : public Interface
{
public:
    Object() { endpoint().countObject(1); }
    virtual ~Object() { endpoint().countObject(-1); }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void **object) override
    {
        const bool known = IsEqualGUID(wanted, __uuidof(Interface)) || IsEqualGUID(wanted, IID_IUnknown);
        *object = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

private:
    std::atomic<ULONG> m_references = 1;
};

/// Makes an object and asks it for the interface that is wanted.
template <typename Made, typename... Arguments> HRESULT make(REFIID wanted, void **object, Arguments &&...arguments)
{
    auto *made = new Made(std::forward<Arguments>(arguments)...);
    const HRESULT result = made->QueryInterface(wanted, object);
    made->Release();
    return result;
}

/// What a client and its capture client share.
struct Stream
{
    /// The result that a call is to give; success when it is to be done.
    HRESULT enter(const char *call)
    {
        const HRESULT result = isDead ? AUDCLNT_E_DEVICE_INVALIDATED : failure(call);
        isDead = isDead || result == AUDCLNT_E_DEVICE_INVALIDATED;
        return result == S_OK && !isInitialised ? AUDCLNT_E_NOT_INITIALIZED : result;
    }
    bool hasPacket() const
    {
        const std::chrono::duration<double> played = Clock::now() - begin;
        return isRunning && played.count() * format.rate >= format.packet;
    }

    Playing format; ///< as it was when the client was made
    bool isDead = false;
    bool isInitialised = false;
    bool isRunning = false;
    bool isHeld = false;     ///< a buffer is out
    Clock::time_point begin; ///< of the next packet
    unsigned frame = 0;      ///< with which it begins
    std::vector<std::int16_t> samples;
};

class CaptureClient final : public Object<IAudioCaptureClient>
{
public:
    explicit CaptureClient(std::shared_ptr<Stream> stream) : m_stream(std::move(stream)) {}

    HRESULT STDMETHODCALLTYPE GetNextPacketSize(UINT32 *frames) override
    {
        *frames = 0;
        const HRESULT result = m_stream->enter("next");
        if (result == S_OK && m_stream->hasPacket())
            *frames = m_stream->format.packet;
        return result;
    }

    HRESULT STDMETHODCALLTYPE GetBuffer(BYTE **data, UINT32 *frames, DWORD *flags, UINT64 *, UINT64 *) override
    {
        Stream &stream = *m_stream;
        if (const HRESULT result = stream.enter("buffer"); result != S_OK)
            return result;
        if (stream.isHeld)
            return AUDCLNT_E_OUT_OF_ORDER;
        if (!stream.hasPacket())
            return AUDCLNT_S_BUFFER_EMPTY;
        stream.format.tone = endpoint().playing().tone;
        stream.samples = tonePacket(stream.format, stream.frame);
        stream.isHeld = true;
        *data = reinterpret_cast<BYTE *>(stream.samples.data());
        *frames = stream.format.packet;
        *flags = 0;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE ReleaseBuffer(UINT32 frames) override
    {
        Stream &stream = *m_stream;
        if (const HRESULT result = stream.enter("release"); result != S_OK)
            return result;
        if (!stream.isHeld)
            return frames == 0 ? S_OK : AUDCLNT_E_OUT_OF_ORDER;
        if (frames != 0 && frames != stream.format.packet)
            return AUDCLNT_E_INVALID_SIZE;
        stream.isHeld = false;
        stream.samples.assign(stream.samples.size(), -1); // nobody may still look at them
        if (frames == 0) {
            endpoint().record("unread");
            return S_OK;
        }
        stream.begin = Clock::now();
        stream.frame = (stream.frame + frames) % stream.format.rate;
        return S_OK;
    }

private:
    std::shared_ptr<Stream> m_stream;
};

class Client final : public Object<IAudioClient>
{
public:
    Client() { m_stream->format = endpoint().playing(); }

    HRESULT STDMETHODCALLTYPE Initialize(AUDCLNT_SHAREMODE mode, DWORD flags, REFERENCE_TIME duration,
                                         REFERENCE_TIME period, const WAVEFORMATEX *format, LPCGUID) override
    {
        char line[128];
        std::snprintf(line, sizeof line, "initialize %d %lX %lld %lld %X %u %lu %u %u %lu", mode, flags, duration,
                      period, format->wFormatTag, format->nChannels, format->nSamplesPerSec, format->wBitsPerSample,
                      format->nBlockAlign, format->nAvgBytesPerSec);
        endpoint().record(line);
        if (m_stream->isInitialised)
            return AUDCLNT_E_ALREADY_INITIALIZED;
        const HRESULT result = isSupported(*format) ? failure("initialize") : AUDCLNT_E_UNSUPPORTED_FORMAT;
        m_stream->isInitialised = result == S_OK;
        return result;
    }

    HRESULT STDMETHODCALLTYPE IsFormatSupported(AUDCLNT_SHAREMODE, const WAVEFORMATEX *format,
                                                WAVEFORMATEX **closest) override
    {
        const bool supported = isSupported(*format);
        *closest = supported ? nullptr : handOut(formatOf(m_stream->format, true));
        return supported ? S_OK : S_FALSE;
    }

    HRESULT STDMETHODCALLTYPE GetMixFormat(WAVEFORMATEX **format) override
    {
        *format = handOut(formatOf(m_stream->format, m_stream->format.isFloat));
        return *format ? S_OK : E_OUTOFMEMORY;
    }

    HRESULT STDMETHODCALLTYPE GetDevicePeriod(REFERENCE_TIME *period, REFERENCE_TIME *least) override
    {
        *period = kDevicePeriod;
        if (least)
            *least = kDevicePeriod / 2;
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Start() override
    {
        if (const HRESULT result = m_stream->enter("start"); result != S_OK)
            return result;
        if (m_stream->isRunning)
            return AUDCLNT_E_NOT_STOPPED;
        m_stream->isRunning = true;
        m_stream->begin = Clock::now();
        return S_OK;
    }

    HRESULT STDMETHODCALLTYPE Stop() override
    {
        m_stream->isRunning = false;
        return m_stream->enter("stop");
    }

    HRESULT STDMETHODCALLTYPE Reset() override
    {
        endpoint().record("reset");
        m_stream->isHeld = m_stream->isHeld && m_stream->isRunning;
        return m_stream->isRunning ? AUDCLNT_E_NOT_STOPPED : m_stream->enter("reset");
    }

    HRESULT STDMETHODCALLTYPE GetService(REFIID wanted, void **service) override
    {
        const HRESULT result = m_stream->enter("service");
        return result == S_OK ? make<CaptureClient>(wanted, service, m_stream) : result;
    }

    HRESULT STDMETHODCALLTYPE GetBufferSize(UINT32 *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetStreamLatency(REFERENCE_TIME *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetCurrentPadding(UINT32 *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetEventHandle(HANDLE) override { return E_NOTIMPL; }

private:
    /// Integers of 16 bits at the device's own rate are.
    bool isSupported(const WAVEFORMATEX &format) const
    {
        const WAVEFORMATEXTENSIBLE own = formatOf(m_stream->format, false);
        return format.cbSize == own.Format.cbSize && std::memcmp(&format, &own, sizeof(own)) == 0;
    }

    std::shared_ptr<Stream> m_stream = std::make_shared<Stream>();
};

class Device final : public Object<IMMDevice>
{
public:
    HRESULT STDMETHODCALLTYPE Activate(REFIID wanted, DWORD, PROPVARIANT *, void **object) override
    {
        endpoint().record("activate");
        const HRESULT result = failure("activate");
        return result == S_OK ? make<Client>(wanted, object) : result;
    }
    HRESULT STDMETHODCALLTYPE OpenPropertyStore(DWORD, IPropertyStore **) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetId(LPWSTR *) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetState(DWORD *) override { return E_NOTIMPL; }
};

class Enumerator final : public Object<IMMDeviceEnumerator>
{
public:
    HRESULT STDMETHODCALLTYPE GetDefaultAudioEndpoint(EDataFlow flow, ERole role, IMMDevice **device) override
    {
        endpoint().record("endpoint");
        *device = nullptr;
        if (flow != eRender || role != eConsole || !endpoint().isThere())
            return kNotFound;
        const HRESULT result = failure("endpoint");
        if (result == S_OK)
            *device = new Device;
        return result;
    }
    HRESULT STDMETHODCALLTYPE EnumAudioEndpoints(EDataFlow, DWORD, IMMDeviceCollection **) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetDevice(LPCWSTR, IMMDevice **) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE RegisterEndpointNotificationCallback(IMMNotificationClient *) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE UnregisterEndpointNotificationCallback(IMMNotificationClient *) override
    {
        return E_NOTIMPL;
    }
};

class Factory final : public Object<IClassFactory>
{
public:
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown *outer, REFIID wanted, void **object) override
    {
        return outer ? CLASS_E_NOAGGREGATION : make<Enumerator>(wanted, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

} // namespace

STDAPI DllGetClassObject(REFCLSID, REFIID wanted, void **object)
{
    return make<Factory>(wanted, object);
}

STDAPI DllCanUnloadNow()
{
    return S_FALSE;
}
