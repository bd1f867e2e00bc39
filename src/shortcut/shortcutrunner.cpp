#include "shortcut/shortcutrunner.h"

#include <QDebug>

#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/transport.h"
#include "ddc_protocol/valuechanges.h"
#include "platform/desk.h"
#include "shortcut/shortcutfunctions.h"

namespace {

constexpr platform::milliseconds kRest(200);

} // namespace

ShortcutRunner::ShortcutRunner(QObject *parent) : QObject(parent)
{
    rest();
}

void ShortcutRunner::shortcutKeyCommand(int function, int direction)
{
    if (!m_ready)
        return;
    const ShortcutFunction *const known = shortcutFunction(function);
    if (!known)
        qDebug().noquote() << QStringLiteral("%1 暂未支持").arg(function);
    const bool isKey =
        direction == static_cast<int>(ShortcutKey::Plus) || direction == static_cast<int>(ShortcutKey::Minus);
    if (!known || !isKey) {
        rest();
        return;
    }
    Q_EMIT begins();
    const auto read = [](COMMAND_set_Type row) { return Korvu_GetCommandVal(row, kRetryCount); };
    const ShortcutStep step = shortcutStep(known->rule, ShortcutKey(direction), read);
    const auto command = Command(commandCode(step.row));
    const auto value = static_cast<std::uint16_t>(step.value);
    const bool ok = sendValue(command, value);
    if (step.locks)
        rest();
    Q_EMIT sent(function, command, value, ok);
}

void ShortcutRunner::rest()
{
    m_ready = false;
    platform::desk().clock().callLater(kRest, this, [this] { m_ready = true; });
}
