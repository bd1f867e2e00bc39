#include "page/Emberline/rhythmlamps.h"

#include <algorithm>

#include "PictureAudioCom/lightcolour.h"
#include "ddc_protocol/automaticwriter.h"
#include "ddc_protocol/devicestate.h"
#include "page/Emberline/lightlook.h"
#include "platform/desk.h"

namespace {

constexpr int kTries = 10;
constexpr platform::milliseconds kTryEvery{1000};
constexpr platform::milliseconds kTryLater{30'000};

/// How far a colour must be from the last one, by the level that is set. The highest follows what is just seen on a
/// wall.
constexpr double kSeen[] = {24, 16, 11, 8, 5};
constexpr int kUsualLevel = 2;

double seenDifference()
{
    const int level = deviceState.confirmed(Command::LightRhythmLevel).value_or(kUsualLevel);
    return kSeen[std::clamp(level, 0, 4)];
}

} // namespace

platform::milliseconds RhythmLamps::pauseAfter(int vainTries)
{
    return vainTries < kTries ? kTryEvery : kTryLater;
}

RhythmLamps::RhythmLamps(AutomaticWriter &writer) : m_writer(writer)
{
    connect(&writer, &AutomaticWriter::settled, this, &RhythmLamps::onSettled);
}

void RhythmLamps::startRun()
{
    ++m_run;
    m_isUsedUp = AutomaticWriter::isDayUsedUp();
    forget();
}

void RhythmLamps::forget()
{
    for (auto &[tone, lamp] : m_lamps) {
        lamp = {{}, {}, lamp.isByLock};
        m_writer.drop(tone);
    }
}

/// What waits may be out of date by now: then the lamp stays as it is.
void RhythmLamps::show(Command tone, QRgb color)
{
    Lamp &lamp = m_lamps[tone];
    const auto isAsGood = [color](const std::optional<QRgb> &other) {
        return other && visibleDifference(*other, color) < seenDifference();
    };
    if (isAsGood(lamp.wished ? lamp.wished : lamp.shown))
        return;
    if (!isAsGood(lamp.shown))
        return wish(tone, lamp, color);
    lamp.wished.reset();
    m_writer.drop(tone);
}

/// The way back from the lock's darkness is the user's own doing as well.
void RhythmLamps::wish(Command tone, Lamp &lamp, QRgb color)
{
    lamp.wished = color;
    if (lamp.isByLock)
        m_writer.wantNow(tone, toneOf(color));
    else
        m_writer.want(tone, toneOf(color));
}

bool RhythmLamps::darken(std::initializer_list<Command> tones)
{
    bool isDone = true;
    for (const Command tone : tones) {
        Lamp &lamp = m_lamps[tone];
        lamp.isByLock = true;
        if (lamp.isDark)
            continue;
        isDone = false;
        m_writer.wantNow(tone, 0);
    }
    return isDone;
}

/// What did not arrive is wished again, if it is still to be seen then.
void RhythmLamps::onSettled(Command command, int value, bool ok)
{
    const auto found = m_lamps.find(command);
    if (found == m_lamps.end())
        return;
    Lamp &lamp = found->second;
    m_isUsedUp = AutomaticWriter::isDayUsedUp();
    if (ok) {
        lamp.vainTries = 0;
        const bool isWish = lamp.wished && toneOf(*lamp.wished) == value;
        lamp.shown = isWish ? *lamp.wished : colorOfTone(value); // a tone is coarser than its colour
        if (isWish)
            lamp.wished.reset();
        lamp.isDark = value == 0;
        lamp.isByLock = lamp.isByLock && (m_isLocked || lamp.isDark);
        return;
    }
    platform::desk().clock().callLater(pauseAfter(++lamp.vainTries), this, [this, command, run = m_run] {
        if (run == m_run)
            m_lamps[command].wished.reset();
    });
}
