#pragma once

#include <map>

#include <QObject>

#include "PictureAudioCom/screensampler.h"
#include "PictureAudioCom/sounduse.h"
#include "ddc_protocol/command.h"
#include "page/Emberline/rhythmlamps.h"
#include "systemnotices.h"

class AutomaticWriter;
class CommandQueue;

/// Lets the lamps follow the sound or the screen while the monitor is known to be in a rhythm mode and answers: a
/// colour is wished of the automatic writer when it has changed enough to be seen, and again when it did not arrive.
/// Dark while the session is locked, whatever the lamps were to follow. Looks at nothing otherwise.
class RhythmLight : public QObject
{
    Q_OBJECT
public:
    enum class State {
        Off,     ///< nothing is to be followed
        Follows, ///< what comes is shown
        Holds,   ///< nothing can be seen or heard: the last colour stays
        UsedUp,  ///< what comes may be shown tomorrow: the last colour stays
        Locked,  ///< dark
    };

    /// The queue and the writer outlive it.
    RhythmLight(CommandQueue &queue, AutomaticWriter &writer, QObject *parent);

    State state() const { return m_state; }

    /// The session is locked, or somebody is back.
    void systemNoticed(SystemNotice notice);

    /// The monitor fell silent, or answers again; it may be another one.
    void followLink();

Q_SIGNALS:
    void stateChanged();

private:
    enum class Source { None, Sound, Screen };

    void onValueChanged(Command command);
    void follow();
    Source wantedSource();
    void askOnce(Command command);
    void setSource(Source source);
    void forgetLamps();
    void listen();
    void lookLater();
    void show(const ZoneColours &colours);
    void keepDark();
    void setState(State state);

    CommandQueue &m_queue;
    RhythmLamps m_lamps;
    ScreenSampler m_sampler{this};
    SoundUse m_sound;
    Source m_source = Source::None;
    State m_state = State::Off;
    bool m_isLocked = false;
    bool m_heard = false;            ///< since the last look
    bool m_mayAsk = false;           ///< the monitor was not found just now
    int m_found = 0;                 ///< how often it was
    std::map<Command, bool> m_asked; ///< what the monitor was asked for since it was found
    int m_run = 0;                   ///< what was to come in an earlier one does not any more
    int m_darkTries = 0;             ///< since the session was locked, or the monitor found
    unsigned m_darkLooks = 0;
};
