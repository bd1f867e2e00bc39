#pragma once

#include <QObject>

/// Plays frames at an adjustable speed, over and over: tells which one is due, and leaves showing it to its owner.
class FramePlayer : public QObject
{
    Q_OBJECT
public:
    static constexpr int kSlowest = 1; ///< frames a second
    static constexpr int kFastest = 30;
    static constexpr int kUsual = 10;

    using QObject::QObject;

    bool isPlaying() const { return m_count > 0; }
    int speed() const { return m_speed; }

    /// Frames a second; the frame that is on stays as long as it was meant to.
    void setSpeed(int framesPerSecond);

    /// Plays from a frame, 0 to @p count - 1, which is due at once. Without frames nothing happens.
    void play(int count, int from = 0);

    void stop();

Q_SIGNALS:
    void frameDue(int index);
    /// It has begun, or has stopped.
    void playingChanged(bool playing);

private:
    void step(int index);

    int m_count = 0; ///< 0 while it does not play
    int m_speed = kUsual;
    int m_round = 0; ///< tells the tasks of an older playing from those of the newest
};
