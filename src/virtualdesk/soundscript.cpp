#include "virtualdesk/soundscript.h"

#include <iterator>

#include <QJsonArray>
#include <QJsonObject>

namespace virtualdesk {

namespace {

// In the order of their enumerations.
constexpr const char *kSounds[] = {"nothing", "silence", "tone", "two_tones", "sweep", "noise", "wave"};
constexpr const char *kMixes[] = {"extensible_float", "float", "extensible_integer", "integer"};
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

class SoundReader
{
public:
    explicit SoundReader(const QJsonObject &object) : m_object(object) {}

    template <typename Number> void number(const char *key, Number &target, double low, double high)
    {
        const QJsonValue value = take(key);
        if (value.isUndefined())
            return;
        const double given = value.toDouble(low - 1);
        if (given < low || given > high)
            fail(QStringLiteral("\"%1\" must be a number from %2 to %3").arg(QLatin1String(key)).arg(low).arg(high));
        else
            target = static_cast<Number>(given);
    }

    void flag(const char *key, bool &target)
    {
        const QJsonValue value = take(key);
        if (!value.isUndefined() && !value.isBool())
            fail(QStringLiteral("\"%1\" must be true or false").arg(QLatin1String(key)));
        target = value.toBool(target);
    }

    template <typename Choice, std::size_t Count>
    void choice(const char *key, Choice &target, const char *const (&names)[Count])
    {
        const QJsonValue value = take(key);
        if (value.isUndefined())
            return;
        for (std::size_t i = 0; i < Count; ++i) {
            if (value == QLatin1String(names[i])) {
                target = static_cast<Choice>(i);
                return;
            }
        }
        fail(QStringLiteral("unknown \"%1\": \"%2\"").arg(QLatin1String(key), value.toString()));
    }

    /// The value, which counts as read.
    QJsonValue take(const char *key) { return m_object.take(QLatin1String(key)); }

    /// To be called when everything was read: what is left is a mistake.
    void finish()
    {
        if (!m_object.isEmpty())
            fail(QStringLiteral("unknown \"%1\"").arg(m_object.begin().key()));
    }

    void fail(const QString &text)
    {
        if (error.isEmpty())
            error = text;
    }

    QString error;

private:
    QJsonObject m_object;
};

AudioFault readFault(const QJsonValue &value, QString &error)
{
    QJsonObject object = value.toObject();
    const bool always = object.value(QLatin1String("times")) == QLatin1String("always");
    if (always)
        object.remove(QLatin1String("times"));
    SoundReader reader(object);
    AudioFault fault;
    reader.choice("call", fault.call, kCalls);
    reader.number("times", fault.times, 1, 1000000);
    if (always)
        fault.times = kForEver;
    bool ok = true;
    const QJsonValue result = reader.take("result");
    if (!result.isUndefined())
        fault.result = result.toString().toUInt(&ok, 0);
    if (!ok)
        reader.fail(QStringLiteral("\"result\" must be a code such as \"0x88890004\""));
    if (!value.isObject() || !object.contains(QLatin1String("call")))
        reader.fail(QStringLiteral("a fault must be an object with a \"call\""));
    reader.finish();
    if (error.isEmpty())
        error = reader.error;
    return fault;
}

} // namespace

QString readSoundScript(const QJsonValue &value, EndpointSetup &setup, std::vector<AudioFault> &faults)
{
    if (!value.isObject())
        return QStringLiteral("\"audio\" must be an object");
    SoundReader reader(value.toObject());
    reader.flag("present", setup.present);
    reader.flag("converts_rates", setup.convertsRates);
    reader.choice("mix", setup.mix, kMixes);
    reader.number("rate", setup.sampleRate, 1000, 768000);
    reader.number("channels", setup.channels, 1, 16);
    reader.number("packet_frames", setup.packetFrames, 1, 100000);
    reader.choice("plays", setup.sound.sound, kSounds);
    reader.number("frequency", setup.sound.frequency, 1, 100000);
    reader.number("second_frequency", setup.sound.secondFrequency, 1, 100000);
    reader.number("volume", setup.sound.volume, 0, 100);
    const QString fileName = reader.take("file").toString();
    if (setup.sound.sound == Sound::Wave) {
        QString fault;
        if (auto wave = readWave(fileName, fault))
            setup.sound.wave = std::make_shared<const WaveData>(std::move(*wave));
        else
            reader.fail(QStringLiteral("\"file\" %1: %2").arg(fileName, fault));
    }
    const QJsonValue list = reader.take("faults");
    if (!list.isUndefined() && !list.isArray())
        reader.fail(QStringLiteral("\"faults\" must be a list"));
    const QJsonArray array = list.toArray();
    for (const QJsonValue &fault : array)
        faults.push_back(readFault(fault, reader.error));
    reader.finish();
    return reader.error;
}

} // namespace virtualdesk
