#include "splitter/splitscreen.h"

#include <QRegularExpression>

#include "ddc_protocol/displayenumeration.h"
#include "platform/desk.h"

/// Two monitors that show one display have both names.
static QString nameOf(const QString &deviceName)
{
    static const QRegularExpression kNumber(QStringLiteral("DISPLAY(\\d+)"), QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = kNumber.match(deviceName);
    const QString name = match.hasMatch() ? monitorNameFromDisplayIndex(match.captured(1).toInt()) : QString();
    return name.isEmpty() ? deviceName : name;
}

QString SplitScreen::key() const
{
    return QStringLiteral("%1 %2x%3").arg(name).arg(bounds.width()).arg(bounds.height());
}

std::optional<SplitScreen> splitScreenOf(platform::DisplayHandle display)
{
    const auto info = display ? platform::desk().displays().info(display) : std::nullopt;
    if (!info || info->bounds.isEmpty())
        return {};
    return SplitScreen{nameOf(info->deviceName), info->bounds, info->workArea};
}

std::vector<SplitScreen> splitScreens()
{
    std::vector<SplitScreen> screens;
    platform::desk().displays().enumerate([&screens](platform::DisplayHandle display) {
        if (const auto screen = splitScreenOf(display))
            screens.push_back(*screen);
        return true;
    });
    return screens;
}
