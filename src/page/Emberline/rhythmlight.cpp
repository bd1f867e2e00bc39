#include "page/Emberline/rhythmlight.h"

#include <initializer_list>
#include <utility>

#include "PictureAudioCom/soundanalyzer.h"
#include "PictureAudioCom/soundcolours.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkstatus.h"
#include "page/Emberline/lighttable.h"
#include "platform/desk.h"

namespace {

constexpr platform::milliseconds kAskAfter{2000}; // what is in sight comes first
constexpr platform::milliseconds kLookEvery{100};
constexpr platform::milliseconds kListenEvery{3000};

/// The tones that a mode shows.
std::initializer_list<Command> tonesOf(std::optional<int> mode)
{
    static constexpr std::initializer_list<Command> kGlobal = {Command::LightGlobalTone};
    static constexpr std::initializer_list<Command> kZones = {Command::LightLeftTone, Command::LightRightTone};
    if (mode == kGlobalRhythmMode)
        return kGlobal;
    return mode == kZoneRhythmMode ? kZones : std::initializer_list<Command>();
}

/// The part of the desktop that the monitor shows.
QRect screenOfMonitor()
{
    const std::size_t index = currentMonitorIndex;
    return index < monitorList.size() ? monitorList[index].bounds : QRect();
}

} // namespace

RhythmLight::RhythmLight(CommandQueue &queue, AutomaticWriter &writer, QObject *parent)
    : QObject(parent), m_queue(queue), m_lamps(writer)
{
    connect(&queue.values(), &ValueWatch::changed, this, &RhythmLight::onValueChanged);
    connect(&m_sampler, &ScreenSampler::looked, this, [this](bool ok, const ZoneColours &colours) {
        if (m_source != Source::Screen)
            return;
        if (ok)
            show(colours);
        else
            setState(State::Holds);
    });
    connect(&SoundAnalyzer::instance(), &SoundAnalyzer::heightsReady, this, [this](const QList<int> &heights) {
        if (m_source != Source::Sound)
            return;
        m_heard = true;
        show(soundColours(heights));
    });
    followLink();
}

void RhythmLight::systemNoticed(SystemNotice notice)
{
    if (notice != SystemNotice::Locked && notice != SystemNotice::Unlocked)
        return;
    const bool isLocked = notice == SystemNotice::Locked;
    if (std::exchange(m_isLocked, isLocked) == isLocked)
        return;
    m_lamps.setLocked(isLocked);
    forgetLamps();
    follow();
}

/// A monitor that comes back may have other colours than it was given.
void RhythmLight::followLink()
{
    m_asked.clear();
    forgetLamps();
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
        forgetLamps(); // another mode has other tones, and may show another colour by now
    const bool isUntold = command == Command::LightMode && !deviceState.confirmed(command);
    if (m_isLocked && isUntold) // it is asked for again in a moment
        return;
    if (command == Command::LightMode || command == Command::LightRhythmSource || command == Command::Capability)
        follow();
}

/// Nobody knows what they show now.
void RhythmLight::forgetLamps()
{
    m_darkTries = 0;
    m_lamps.forget();
}

void RhythmLight::follow()
{
    const Source source = wantedSource();
    setSource(m_isLocked ? Source::None : source);
    if (m_isLocked)
        keepDark();
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
    m_darkTries = 0;
    m_lamps.startRun();
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
/// somebody else may have stopped it: whatever it was, it is listened anew. Whoever else uses the analyser does so too,
/// and would take the end of its capture for a failure.
void RhythmLight::listen()
{
    SoundAnalyzer &analyzer = SoundAnalyzer::instance();
    if (!analyzer.isRunning())
        analyzer.start();
    else if (!m_heard && analyzer.isCapturing() && m_sound.isAlone())
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
        m_lamps.show(tone, tone == Command::LightGlobalTone ? colours.global
                           : tone == Command::LightLeftTone ? colours.left
                                                            : colours.right);
    setState(m_lamps.isUsedUp() ? State::UsedUp : State::Follows);
}

/// Locking is the user's own doing: it does not wait for the budget of automatic writes, nor for what the lamps follow
/// to be known. Looks again until all of them are dark, or the monitor is silent.
void RhythmLight::keepDark()
{
    const bool canBeDark = monitorAnswers() && deviceState.has(Capability::GameFunctions);
    const std::optional<int> mode = deviceState.confirmed(Command::LightMode);
    setState(canBeDark && tonesOf(mode).size() > 0 ? State::Locked : State::Off);
    ++m_darkLooks;
    if (!canBeDark)
        return;
    if (!mode)
        m_queue.ask(Command::LightMode);
    if (m_lamps.darken(tonesOf(mode)) && mode)
        return;
    platform::desk().clock().callLater(RhythmLamps::pauseAfter(++m_darkTries), this, [this, looks = m_darkLooks] {
        if (m_isLocked && looks == m_darkLooks)
            keepDark();
    });
}

void RhythmLight::setState(State state)
{
    if (std::exchange(m_state, state) != state)
        Q_EMIT stateChanged();
}
