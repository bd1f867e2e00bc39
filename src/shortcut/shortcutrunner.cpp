#include "shortcut/shortcutrunner.h"

#include <QDebug>

#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "ddc_protocol/transport.h"
#include "platform/desk.h"
#include "shortcut/shortcutfunctions.h"

namespace {

constexpr platform::milliseconds kRest(200);
constexpr std::uint16_t kRetries = 10;

/// The rest of what a new scene mode means: the custom block of another mode is not this one's.
void noteSceneMode(int mode)
{
    if (sceneModeOf(mode) != sceneModeOf(deviceState.value(Command::SceneMode)))
        deviceState.invalidateSceneBlock();
    deviceState.lastSceneModeSent = mode;
}

void send(const ShortcutStep &step)
{
    const auto command = Command(commandCode(step.row));
    const auto value = static_cast<std::uint16_t>(step.value);
    Korvu_SetCommandVal(step.row, value, kRetries);
    if (command == Command::SceneMode)
        noteSceneMode(value);
    deviceState.store(command, value);
}

} // namespace

ShortcutRunner::ShortcutRunner(QObject *parent) : QObject(parent)
{
    rest();
}

void ShortcutRunner::shortcutKeyCommand(int function, int direction)
{
    if (m_ready && run(function, direction))
        rest();
}

/// Whether the keys rest now.
bool ShortcutRunner::run(int function, int direction)
{
    if (direction != static_cast<int>(ShortcutKey::Plus) && direction != static_cast<int>(ShortcutKey::Minus))
        return true;
    const auto functions = shortcutFunctions();
    if (function < 0 || static_cast<std::size_t>(function) >= functions.size()) {
        qDebug().noquote() << QStringLiteral("%1 暂未支持").arg(function);
        return true;
    }
    const auto read = [](COMMAND_set_Type row) { return Korvu_GetCommandVal(row, kRetries); };
    const ShortcutStep step =
        shortcutStep(functions[static_cast<std::size_t>(function)].rule, ShortcutKey(direction), read);
    send(step);
    return step.locks;
}

void ShortcutRunner::rest()
{
    m_ready = false;
    platform::desk().clock().callLater(kRest, this, [this] { m_ready = true; });
}
