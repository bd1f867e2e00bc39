#include "virtualdesk/soundscript.h"

#include <iterator>
#include <memory>
#include <utility>

namespace virtualdesk {

namespace {

// In the order of their enumerations.
constexpr const char *kSoundWords[] = {"nothing", "silence", "tone", "two_tones", "sweep", "noise", "wave"};
constexpr const char *kMixWords[] = {"extensible_float", "float", "extensible_integer", "integer"};
constexpr const char *kCalls[] = {"create_enumerator",
                                  "default_endpoint",
                                  "create_event",
                                  "activate",
                                  "device_period",
                                  "mix_format",
                                  "is_format_supported",
                                  "initialize",
                                  "capture_client",
                                  "register_task",
                                  "start",
                                  "stop",
                                  "reset",
                                  "next_packet_size",
                                  "get_buffer",
                                  "release_buffer"};
static_assert(std::size(kCalls) == kAudioCalls);

AudioFault readFault(ScriptObject object)
{
    AudioFault fault;
    const bool named = object.has("call");
    object.choice("call", fault.call, kCalls);
    object.times(fault.times, 1);
    bool ok = true;
    const QJsonValue result = object.take("result");
    if (!result.isUndefined())
        fault.result = result.toString().toUInt(&ok, 0);
    if (!ok)
        object.fail(QStringLiteral("\"result\" must be a code such as \"0x88890004\""));
    if (!named)
        object.fail(QStringLiteral("a fault must be an object with a \"call\""));
    object.finish();
    return fault;
}

void readWaveFile(ScriptObject &object, SoundSetup &sound)
{
    const QString fileName = object.take("file").toString();
    if (sound.sound != Sound::Wave)
        return;
    QString error;
    if (auto wave = readWave(fileName, error))
        sound.wave = std::make_shared<const WaveData>(std::move(*wave));
    else
        object.fail(QStringLiteral("\"file\" %1: %2").arg(fileName, error));
}

} // namespace

void readSoundScript(ScriptObject &root, EndpointSetup &setup, std::vector<AudioFault> &faults)
{
    ScriptObject object = root.inside("audio");
    object.flag("present", setup.present);
    object.flag("converts_rates", setup.convertsRates);
    object.choice("mix", setup.mix, kMixWords);
    object.number("rate", setup.sampleRate, 1000, 768000);
    object.number("channels", setup.channels, 1, 16);
    object.number("packet_frames", setup.packetFrames, 1, 100000);
    object.choice("plays", setup.sound.sound, kSoundWords);
    object.number("frequency", setup.sound.frequency, 1, 100000);
    object.number("second_frequency", setup.sound.secondFrequency, 1, 100000);
    object.number("volume", setup.sound.volume, 0, 100);
    readWaveFile(object, setup.sound);
    object.each("faults", [&faults](const ScriptObject &fault) { faults.push_back(readFault(fault)); });
    object.finish();
}

} // namespace virtualdesk
