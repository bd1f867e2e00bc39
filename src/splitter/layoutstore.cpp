#include "splitter/layoutstore.h"

#include <algorithm>
#include <optional>

#include <QUrl>

#include "ddc_protocol/settingsstore.h"

namespace {

constexpr qsizetype kLongestText = 16'384;

QString keyOf(const char *what, const QString &screenKey)
{
    return QStringLiteral("Splitter/%1 %2")
        .arg(QLatin1String(what), QString::fromLatin1(QUrl::toPercentEncoding(screenKey, " ")));
}

QString zoneText(const Zone &zone)
{
    return QStringLiteral("%1-%2-%3-%4").arg(zone.left).arg(zone.top).arg(zone.right).arg(zone.bottom);
}

std::optional<Zone> zoneFromText(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('-'));
    if (parts.size() != 4)
        return {};
    int sides[4] = {};
    for (int i = 0; i < 4; ++i) {
        bool isNumber = false;
        sides[i] = parts[i].toInt(&isNumber);
        if (!isNumber)
            return {};
    }
    return Zone{sides[0], sides[1], sides[2], sides[3]};
}

std::optional<SplitLayout> layoutFromText(const QString &text)
{
    const qsizetype colon = text.indexOf(QLatin1Char(':'));
    SplitLayout layout;
    layout.isOwn = true;
    layout.name = QUrl::fromPercentEncoding(text.left(std::max<qsizetype>(colon, 0)).toLatin1()).simplified();
    for (const QString &part : text.mid(colon + 1).split(QLatin1Char('+'))) {
        const auto zone = zoneFromText(part);
        if (!zone || layout.zones.size() == kMostZones)
            return {};
        layout.zones.push_back(*zone);
    }
    if (layout.name.isEmpty() || layout.name.size() > kLongestLayoutName || !coversScreen(layout.zones))
        return {};
    putInOrder(layout.zones);
    return layout;
}

QString chosenText(const SplitLayout &layout)
{
    return (layout.isOwn ? QStringLiteral("own ") : QString()) + layout.name;
}

} // namespace

QString layoutsText(const std::vector<SplitLayout> &layouts)
{
    QStringList texts;
    for (const SplitLayout &layout : layouts) {
        QStringList zones;
        for (const Zone &zone : layout.zones)
            zones.append(zoneText(zone));
        texts.append(QString::fromLatin1(QUrl::toPercentEncoding(layout.name)) + QLatin1Char(':') +
                     zones.join(QLatin1Char('+')));
    }
    return texts.join(QLatin1Char(' '));
}

std::vector<SplitLayout> layoutsFromText(const QString &text)
{
    std::vector<SplitLayout> layouts;
    for (const QString &part : text.left(kLongestText).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const auto layout = layoutFromText(part);
        const bool isNew = layout && std::none_of(layouts.begin(), layouts.end(), [&layout](const SplitLayout &other) {
                               return other.name == layout->name;
                           });
        if (isNew && layouts.size() < kMostOwnLayouts)
            layouts.push_back(*layout);
    }
    return layouts;
}

std::vector<SplitLayout> ScreenLayouts::all() const
{
    std::vector<SplitLayout> layouts(fixedLayouts().begin(), fixedLayouts().end());
    layouts.insert(layouts.end(), own.begin(), own.end());
    return layouts;
}

ScreenLayouts loadLayouts(const QString &screenKey)
{
    const QString file = QString::fromLatin1(kConfigFile);
    ScreenLayouts layouts;
    layouts.own = layoutsFromText(settingsString(keyOf("Layouts", screenKey), {}, false, file));
    const QString chosen = settingsString(keyOf("Chosen", screenKey), {}, false, file);
    for (const SplitLayout &layout : layouts.all()) {
        if (chosenText(layout) == chosen)
            layouts.chosen = layout;
    }
    return layouts;
}

bool storeLayouts(const QString &screenKey, const ScreenLayouts &layouts)
{
    return storeSettings({{keyOf("Layouts", screenKey), layoutsText(layouts.own)},
                          {keyOf("Chosen", screenKey), chosenText(layouts.chosen)}});
}
