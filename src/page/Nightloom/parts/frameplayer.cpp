#include "page/Nightloom/parts/frameplayer.h"

#include <algorithm>

#include "platform/desk.h"

void FramePlayer::setSpeed(int framesPerSecond)
{
    m_speed = std::clamp(framesPerSecond, kSlowest, kFastest);
}

void FramePlayer::play(int count, int from)
{
    stop();
    if (count <= 0)
        return;
    m_count = count;
    Q_EMIT playingChanged(true);
    step(std::clamp(from, 0, count - 1));
}

void FramePlayer::stop()
{
    if (!isPlaying())
        return;
    m_count = 0;
    ++m_round;
    Q_EMIT playingChanged(false);
}

void FramePlayer::step(int index)
{
    const platform::milliseconds duration(1000 / m_speed);
    platform::desk().clock().callLater(duration, this, [this, index, round = m_round] {
        if (round == m_round)
            step((index + 1) % m_count);
    });
    Q_EMIT frameDue(index);
}
