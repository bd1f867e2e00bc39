#include "page/Splitter/splitwords.h"

#include <QObject>

#include "page/engine/labels.h"

namespace {

struct Reason
{
    SplitRefusal refusal;
    const char *words;
};

constexpr Reason kReasons[] = {
    {SplitRefusal::NoWindow, LABEL("No window is in front: press on the one that you mean first.")},
    {SplitRefusal::NoScreen, LABEL("The system does not tell which screen the window is on.")},
    {SplitRefusal::Hung, LABEL("The window's program does not answer.")},
    {SplitRefusal::Minimised, LABEL("The window is minimised.")},
    {SplitRefusal::FullScreen, LABEL("The window fills the whole screen: end its full screen first.")},
    {SplitRefusal::FixedSize, LABEL("The window cannot be resized.")},
    {SplitRefusal::MoreRights, LABEL("The window's program has more rights than this one and cannot be moved.")},
    {SplitRefusal::NoOldPlace, LABEL("The window was not put into a zone, so it has no old place.")},
    {SplitRefusal::NoSuchZone, LABEL("The layout has no such zone.")},
    {SplitRefusal::Failed, LABEL("The system did not move the window.")},
};

} // namespace

QString splitWords(const SplitResult &result)
{
    for (const Reason &reason : kReasons) {
        if (reason.refusal == result.refusal)
            return QObject::tr(reason.words);
    }
    if (!result.zone)
        return QObject::tr("Back at its old place");
    const QString zone = QObject::tr("Zone %1 of %2").arg(*result.zone + 1).arg(result.zones);
    return result.keptSize ? QObject::tr("%1. The window keeps a size of its own.").arg(zone) : zone;
}
