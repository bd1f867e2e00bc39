#include "page/Emberline/rhythmlight.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "PictureAudioCom/lightcolour.h"
#include "PictureAudioCom/soundanalyzer.h"
#include "PictureAudioCom/soundcolours.h"
#include "ddc_protocol/automaticwriter.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkstatus.h"
#include "page/Emberline/lightlook.h"
#include "page/Emberline/lighttable.h"
#include "platform/desk.h"

namespace {

constexpr platform::milliseconds kAskAfter{2000}; // what is in sight comes first
constexpr platform::milliseconds kLookEvery{100};
constexpr platform::milliseconds kListenEvery{3000};

/// How far a colour must be from the last one, by the level that is set. The highest follows what is just seen on a
/// wall.
constexpr double kSeen[] = {24, 16, 11, 8, 5};
constexpr int kUsualLevel = 2;

/// The tones that a mode shows.
std::initializer_list<Command> tonesOf(std::optional<int> mode)
{
    static constexpr std::initializer_list<Command> kGlobal = {Command::LightGlobalTone};
    static constexpr std::initializer_list<Command> kZones = {Command::LightLeftTone, Command::LightRightTone};
    if (mode == kGlobalRhythmMode)
        return kGlobal;
    return mode == kZoneRhythmMode ? kZones : std::initializer_list<Command>();
}

double seenDifference()
{
    const int level = deviceState.confirmed(Command::LightRhythmLevel).value_or(kUsualLevel);
    return kSeen[std::clamp(level, 0, 4)];
}

/// The part of the desktop that the monitor shows.
QRect screenOfMonitor()
{
    const std::size_t index = currentMonitorIndex;
    return index < monitorList.size() ? monitorList[index].bounds : QRect();
}

} // namespace

RhythmLight::RhythmLight(CommandQueue &queue, AutomaticWriter &writer, QObject *parent)
    : QObject(parent), m_queue(queue), m_writer(writer)
{
    connect(&queue.values(), &ValueWatch::changed, this, &RhythmLight::onValueChanged);
    connect(&m_sampler, &ScreenSampler::looked, this, [this](bool ok, const ZoneColours &colours) {
        if (m_source != Source::Screen)
            return;
        setState(ok ? State::Follows : State::Holds);
        if (ok)
            show(colours);
    });
    connect(&SoundAnalyzer::instance(), &SoundAnalyzer::heightsReady, this, [this](const QList<int> &heights) {
        if (m_source != Source::Sound)
            return;
        m_heard = true;
        setState(State::Follows);
        show(soundColours(heights));
    });
    followLink();
}

void RhythmLight::systemNoticed(SystemNotice notice)
{
    if (notice != SystemNotice::Locked && notice != SystemNotice::Unlocked)
        return;
    m_isLocked = notice == SystemNotice::Locked;
    if (m_isLocked && m_source != Source::None)
        goDark();
    follow();
}

void RhythmLight::followLink()
{
    m_asked.clear();
    m_mayAsk = false;
    platform::desk().clock().callLater(kAskAfter, this, [this, found = ++m_found] {
        m_mayAsk = m_mayAsk || found == m_found;
        follow();
    });
    follow();
}

void RhythmLight::onValueChanged(Command command)
{
    if (command == Command::LightMode)
        m_wished.clear(); // another mode has other tones, and may show another colour by now
    if (command == Command::LightMode || command == Command::LightRhythmSource || command == Command::Capability)
        follow();
}

void RhythmLight::follow()
{
    const Source source = wantedSource();
    setSource(m_isLocked ? Source::None : source);
    if (m_isLocked)
        setState(source == Source::None ? State::Off : State::Locked);
}

RhythmLight::Source RhythmLight::wantedSource()
{
    if (!monitorAnswers() || !deviceState.has(Capability::GameFunctions))
        return Source::None;
    askOnce(Command::LightMode);
    if (tonesOf(deviceState.confirmed(Command::LightMode)).size() == 0)
        return Source::None;
    askOnce(Command::LightRhythmLevel);
    askOnce(Command::LightRhythmSource);
    const std::optional<int> source = deviceState.confirmed(Command::LightRhythmSource);
    if (!source)
        return Source::None;
    return *source == 0 ? Source::Sound : Source::Screen;
}

/// What is not known is asked for once: whoever does not answer that may not have it.
void RhythmLight::askOnce(Command command)
{
    if (!m_mayAsk || deviceState.confirmed(command) || std::exchange(m_asked[command], true))
        return;
    m_queue.ask(command);
}

void RhythmLight::setSource(Source source)
{
    if (m_source == source)
        return;
    m_source = source;
    ++m_run;
    m_wished.clear();
    if (source == Source::Sound)
        m_sound.begin();
    else
        m_sound.end();
    setState(source == Source::None ? State::Off : State::Holds); // until something comes
    if (source == Source::Sound)
        listen();
    else if (source == Source::Screen)
        lookLater();
}

/// The sound output may come and go, another may have become the default one, which the old capture does not hear, and
/// somebody else may have stopped it: whatever it was, it is listened anew.
void RhythmLight::listen()
{
    SoundAnalyzer &analyzer = SoundAnalyzer::instance();
    if (!analyzer.isRunning())
        analyzer.start();
    else if (!m_heard && analyzer.isCapturing())
        analyzer.stop(); // it starts at the next look
    if (!std::exchange(m_heard, false))
        setState(State::Holds);
    platform::desk().clock().callLater(kListenEvery, this, [this, run = m_run] {
        if (run == m_run)
            listen();
    });
}

void RhythmLight::lookLater()
{
    m_sampler.request(screenOfMonitor());
    platform::desk().clock().callLater(kLookEvery, this, [this, run = m_run] {
        if (run == m_run)
            lookLater();
    });
}

void RhythmLight::show(const ZoneColours &colours)
{
    const auto tones = tonesOf(deviceState.confirmed(Command::LightMode));
    for (const Command tone : tones)
        wish(tone, tone == Command::LightGlobalTone ? colours.global
                   : tone == Command::LightLeftTone ? colours.left
                                                    : colours.right);
}

void RhythmLight::wish(Command tone, QRgb color)
{
    const auto last = m_wished.find(tone);
    if (last != m_wished.end() && visibleDifference(last->second, color) < seenDifference())
        return;
    m_wished[tone] = color;
    m_writer.want(tone, toneOf(color));
}

/// Locking is the user's own doing: it does not wait for the budget of automatic writes. What still waits there becomes
/// dark as well, and so does what the monitor did not take at once.
void RhythmLight::goDark()
{
    for (const Command tone : tonesOf(deviceState.confirmed(Command::LightMode))) {
        m_queue.post(tone, 0);
        m_writer.want(tone, 0);
    }
}

void RhythmLight::setState(State state)
{
    if (std::exchange(m_state, state) != state)
        Q_EMIT stateChanged();
}
