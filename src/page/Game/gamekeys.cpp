#include "page/Game/gamekeys.h"

#include <algorithm>

#include <QObject>
#include <QStringList>

#include "controls/palette.h"
#include "page/engine/labels.h"
#include "shortcut/shortcutfunctions.h"
#include "shortcut/shortcutlist.h"

namespace {

/// What the two keys of a function do.
struct KeyWords
{
    const char *function;
    const char *plus;
    const char *minus;
};
constexpr KeyWords kWords[] = {
    {"Refresh Rate", LABEL("%1 moves it to the next corner."), LABEL("%1 moves it to the corner before.")},
    {"Game Crosshair", LABEL("%1 steps the shape."), LABEL("%1 steps the colour.")},
    {"Stopwatch", LABEL("%1 steps the time."), LABEL("%1 steps the corner.")},
    {"Game Time", LABEL("%1 steps the length."), LABEL("%1 steps the corner.")},
    {"HawkEye Vision", LABEL("%1 switches it on."), LABEL("%1 switches it off.")},
    {"Night Vision", LABEL("%1 goes to the next level."), LABEL("%1 goes to the level before.")},
};

QString line(const QString &key, const char *words)
{
    const QString shown =
        Palette::styled(QStringLiteral("<span style=\"color: @mint;\">%1</span>")).arg(key.toHtmlEscaped());
    return QObject::tr(words).arg(shown);
}

} // namespace

QString gameKeys(const char *panel)
{
    const auto *words =
        std::ranges::find_if(kWords, [panel](const KeyWords &row) { return qstrcmp(row.function, panel) == 0; });
    const ShortcutList list = loadShortcuts();
    if (words == std::end(kWords) || !list.masterOn)
        return {};
    QStringList lines;
    for (const ShortcutEntry &entry : list.entries) {
        const ShortcutFunction *function = shortcutFunction(entry.function);
        if (!entry.isOn || !function || qstrcmp(function->name, panel) != 0)
            continue;
        if (!entry.plusKey.isEmpty())
            lines.append(line(entry.plusKey, words->plus));
        if (!entry.minusKey.isEmpty())
            lines.append(line(entry.minusKey, words->minus));
    }
    return lines.join(QLatin1String("<br>"));
}
