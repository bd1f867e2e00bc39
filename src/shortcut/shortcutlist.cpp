#include "shortcut/shortcutlist.h"

#include <QHash>

#include "ddc_protocol/settingsstore.h"
#include "shortcut/shortcutfunctions.h"

namespace {

const QString kFile = QStringLiteral("basicMode.ini");
const QString kMasterSwitch = QStringLiteral("basicMode/switchStatus");
const QString kRowSwitch = QStringLiteral("/switchStatus");
const QString kPlusKey = QStringLiteral("/plusKey");
const QString kMinusKey = QStringLiteral("/subKey");
const QString kOn = QStringLiteral("on");
const QString kOff = QStringLiteral("off");

QString switchText(bool on)
{
    return on ? kOn : kOff;
}

} // namespace

ShortcutList loadShortcuts()
{
    QHash<QString, QString> stored;
    for (const auto &[key, value] : readAllSettings(kFile))
        stored.insert(key, value);

    ShortcutList list;
    list.masterOn = stored.value(kMasterSwitch) != kOff; // on unless it says exactly "off"
    for (const ShortcutFunction &function : shortcutFunctions()) {
        const QString group = QString::number(function.number);
        const QString rowSwitch = stored.value(group + kRowSwitch);
        if (!rowSwitch.isEmpty()) // anything but exactly "on" is off
            list.entries.push_back(
                {function.number, rowSwitch == kOn, stored.value(group + kPlusKey), stored.value(group + kMinusKey)});
    }
    return list;
}

bool saveShortcuts(const ShortcutList &list)
{
    QList<QPair<QString, QString>> settings = {{kMasterSwitch, switchText(list.masterOn)}};
    for (const ShortcutEntry &entry : list.entries) {
        const QString group = QString::number(entry.function);
        settings.append({group + kRowSwitch, switchText(entry.isOn)});
        settings.append({group + kPlusKey, entry.plusKey});
        settings.append({group + kMinusKey, entry.minusKey});
    }
    return writeAllSettings(kFile, settings);
}

QKeySequence keySequenceOf(const QString &text)
{
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::NativeText);
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        return {};
    return QKeySequence(sequence[0]);
}
