#include "page/BasicSetting/hotkeyoverlay.h"

#include "controls/desktoptoast.h"
#include "controls/labelled.h"
#include "ddc_protocol/settingsstore.h"
#include "platform/desk.h"

namespace {

constexpr platform::milliseconds kNoteShown{1500};
constexpr platform::milliseconds kMessageShown{8000};
const QString kKey = QStringLiteral("PCSeting/HotkeyOverlay");
const QString kOff = QStringLiteral("off");

} // namespace

bool hotkeyOverlayOn()
{
    return settingsString(kKey, {}, false, QLatin1String(kConfigFile)) != kOff;
}

bool setHotkeyOverlayOn(bool on)
{
    return storeSetting(kKey, on ? QStringLiteral("on") : kOff);
}

HotkeyOverlay::HotkeyOverlay(QObject *parent) : QObject(parent), m_toast(std::make_unique<DesktopToast>())
{
}

HotkeyOverlay::~HotkeyOverlay() = default;

void HotkeyOverlay::showNote(const QString &function, const QString &value, std::optional<double> level)
{
    if (hotkeyOverlayOn())
        show(function, value, level, kNoteShown);
}

void HotkeyOverlay::showMessage(const QString &title, const QString &text)
{
    show(title, text, {}, kMessageShown);
}

void HotkeyOverlay::show(const QString &title, const QString &text, std::optional<double> level,
                         platform::milliseconds shown)
{
    m_toast->showNote(title, text, level);
    platform::desk().clock().callLater(shown, this, [this, note = ++m_notes] {
        if (note == m_notes)
            m_toast->hide();
    });
}

QString HotkeyOverlay::text() const
{
    return labelled(m_toast->title(), m_toast->text());
}

std::optional<double> HotkeyOverlay::level() const
{
    return m_toast->level();
}

bool HotkeyOverlay::isShown() const
{
    return m_toast->isVisible();
}
