#pragma once

#include <array>

#include <QDateTime>

#include "virtualdesk/monitormodel.h"
#include "virtualdesk/request.h"

namespace virtualdesk {

/// What a monitor keeps: the value behind each command code and the block of each scene mode, and what setting one does
/// to the others. Not thread-safe: the monitor guards it.
class MonitorMemory
{
public:
    /// The model outlives it. Begins as the factory made it, in the model's first scene.
    explicit MonitorMemory(const MonitorModel &model);

    std::uint16_t value(std::uint8_t code) const { return m_values[code]; }

    /// What time brings: care that was begun is over after six minutes.
    void passTime(const QDateTime &now);

    /// What a read is answered.
    Reply answer(std::uint8_t code) const;

    /// Takes a written value as far as it makes sense: a number is limited, anything else out of range is ignored.
    /// False where it is not kept as it was written.
    bool take(std::uint8_t code, std::uint32_t value);

    /// Sets a value unchecked; scene mode and picture values have the effect that they have on the wire. What takes its
    /// time begins at the last passTime.
    void set(std::uint8_t code, std::uint16_t value);

    /// The block of a mode, kFirstMode..kLastMode.
    const SceneBlock &block(int mode) const { return m_blocks[static_cast<std::size_t>(mode)]; }
    /// Replaces the block of an even mode; shorter data changes only the first bytes.
    void setBlock(int mode, const QByteArray &bytes);

private:
    void changeScene(int mode);
    void resetToFactory();

    const MonitorModel &m_model;
    std::array<std::uint16_t, 256> m_values{};
    QDateTime m_now;
    QDateTime m_careEnds; ///< invalid while none runs
    std::array<SceneBlock, kLastMode + 1> m_blocks{};
};

} // namespace virtualdesk
