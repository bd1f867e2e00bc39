#pragma once

#include <QObject>

/// What streams to the matrix, one thing at a time. Whoever needs the accessory for something else interrupts it here
/// and it goes on afterwards. Interface thread only.
class LiveDisplay : public QObject
{
    Q_OBJECT
public:
    enum class Show { Nothing, Clock, Music };

    using QObject::QObject;

    /// What is switched on, interrupted or not.
    Show shown() const { return m_shown; }

    /// Whether that is on and not interrupted.
    bool streams(Show what) const { return m_shown == what && !m_interrupted; }

    /// Switches over; while interrupted, for later. Whoever follows the clock, nothing included, finds a matrix without
    /// its last frame, and nothing always ends the live display of the accessory. The clock itself draws over the bars.
    void show(Show what);

    /// Something that lasts, such as an upload, begins and ends: meanwhile nothing streams, and no last frame stays.
    void setInterrupted(bool interrupted);

    /// While it lives no frame goes out, so that a report of a page may; the last one stays on the matrix.
    class Pause
    {
    public:
        /// Blocks for 150 ms: a frame that is under way goes out meanwhile.
        explicit Pause(LiveDisplay &display);
        ~Pause();
        Q_DISABLE_COPY_MOVE(Pause)

    private:
        LiveDisplay &m_display;
    };

Q_SIGNALS:
    /// Something else is switched on.
    void changed();

    /// The music is to stream from now on, and no longer: when the signal returns it has no frame under way.
    void musicBegins();
    void musicEnds();

private:
    void halt(bool endsDisplay);
    void goOn();

    Show m_shown = Show::Nothing;
    bool m_interrupted = false;
};
