#pragma once

#include <initializer_list>
#include <map>
#include <optional>

#include <QObject>
#include <QRgb>

#include "ddc_protocol/command.h"
#include "platform/clock.h"

class AutomaticWriter;

/// What lamps that follow something show: a colour is wished of the automatic writer when it differs enough from the
/// last one to be seen, and may be wished again when it did not arrive. A lamp is known by the command of its tone.
class RhythmLamps : public QObject
{
public:
    /// The writer outlives it.
    explicit RhythmLamps(AutomaticWriter &writer);

    /// Something else is followed from now on, or nothing.
    void startRun();

    /// Nobody knows what they show now, and what they were to show is not wanted any more.
    void forget();

    /// While the session is locked they are to be dark.
    void setLocked(bool isLocked) { m_isLocked = isLocked; }

    /// Gives a lamp a colour, if it differs enough to be seen.
    void show(Command tone, QRgb color);

    /// Wishes darkness of those lamps, past the budget of automatic writes. Whether they are dark already.
    bool darken(std::initializer_list<Command> tones);

    /// Whether what they were to show last waits for tomorrow: the monitor's budget of today is used up.
    bool isUsedUp() const { return m_isUsedUp; }

    /// How long to wait before what did not arrive is tried again, after so many tries in vain: one a second, and then
    /// fewer, for the monitor may not have it.
    static platform::milliseconds pauseAfter(int vainTries);

private:
    struct Lamp
    {
        std::optional<QRgb> wished; ///< that has not arrived yet
        std::optional<QRgb> shown;  ///< that has
        bool isByLock = false;      ///< what it shows, until a colour has arrived again
        bool isDark = false;
        int vainTries = 0; ///< in a row
    };

    void onSettled(Command command, int value, bool ok);
    void wish(Command tone, Lamp &lamp, QRgb color);

    AutomaticWriter &m_writer;
    std::map<Command, Lamp> m_lamps; ///< by their tones
    bool m_isLocked = false;
    int m_run = 0; ///< what was to come in an earlier one does not any more
    bool m_isUsedUp = false;
};
