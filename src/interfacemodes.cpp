#include "interfacemodes.h"

#include <QStackedWidget>

#include "controls/lefttabbutton.h"
#include "ddc_protocol/devicestate.h"
#include "leftbar.h"
#include "navigator.h"
#include "page/engine/labels.h"
#include "toptabframe.h"

static const char *const kSceneChanges = LABEL("The monitor is changing its scene mode.");

InterfaceModes::InterfaceModes(Navigator &navigator, QWidget *window)
    : QObject(window), m_navigator(navigator), m_window(*window)
{
}

void InterfaceModes::set(int code)
{
    m_locked = code == kLocked;
    enableEverything();
    if (code == kByModel)
        decideEntriesByModel();
    else if (code == kBusy || code == kBusyEnded)
        setAccessoryBusy(code == kBusy);
    enableAccessoryEntries(); // a scene may change while the accessory's work goes on
    explain();
}

void InterfaceModes::enableEverything()
{
    if (m_locked && !m_focusBefore)
        m_focusBefore = m_window.focusWidget();
    m_navigator.tabs()->setTabsEnabled(!m_locked);
    for (int family = 0; family < kFamilies; ++family) {
        for (LeftTabButton *button : m_navigator.bar(family)->buttons())
            button->setEnabled(!m_locked);
    }
    m_navigator.pageStack()->setEnabled(!m_locked);
    Q_EMIT usableChanged(!m_locked);
    if (m_locked)
        return m_window.setCursor(Qt::BusyCursor);
    m_window.unsetCursor();
    if (m_focusBefore) // disabling takes the keyboard's place away
        m_focusBefore->setFocus();
    m_focusBefore.clear();
}

/// Entries that need a function of the monitor can be chosen only where it has it.
void InterfaceModes::decideEntriesByModel()
{
    const LeftBar *bar = m_navigator.bar(m_navigator.family());
    for (std::size_t i = 0; i < bar->entries().size(); ++i) {
        const std::uint16_t bits = bar->entries()[i].needsAny;
        bar->buttons()[i]->setSelectable(bits == 0 || deviceState.hasAny(bits));
    }
}

/// An upload may end while a scene changes: then nothing can be chosen still.
void InterfaceModes::followAccessoryWork(bool begins)
{
    if (m_locked)
        setAccessoryBusy(begins);
    else
        set(begins ? kBusy : kBusyEnded);
}

void InterfaceModes::setAccessoryBusy(bool busy)
{
    m_accessoryBusy = busy;
    Q_EMIT accessoryBusyChanged(busy);
}

/// While the accessory is busy only the page that keeps it so can be chosen.
void InterfaceModes::enableAccessoryEntries()
{
    const LeftBar *bar = m_navigator.bar(kAccessoryFamily);
    for (std::size_t i = 0; i < bar->buttons().size(); ++i)
        bar->buttons()[i]->setEnabled(!m_locked && (!m_accessoryBusy || static_cast<int>(i) == bar->current()));
}

/// Why an entry cannot be chosen now; empty when it can.
QString InterfaceModes::lockOf(int family, int entry) const
{
    const LeftBar *bar = m_navigator.bar(family);
    if (m_locked)
        return QObject::tr(kSceneChanges);
    if (family == kAccessoryFamily && m_accessoryBusy && entry != bar->current())
        return QObject::tr("The accessory is at work: wait until it has finished, or cancel the work on its page.");
    if (bar->buttons()[static_cast<std::size_t>(entry)]->isSelectable())
        return {};
    const QString lack = lackOf(bar->entries()[static_cast<std::size_t>(entry)], deviceState);
    return lack.isEmpty() ? QObject::tr("This monitor does not have these functions.") : lack;
}

void InterfaceModes::explain()
{
    m_navigator.tabs()->explain(m_locked ? QObject::tr(kSceneChanges) : QString());
    for (int family = 0; family < kFamilies; ++family) {
        const auto &buttons = m_navigator.bar(family)->buttons();
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            buttons[i]->setLock(lockOf(family, static_cast<int>(i)));
        }
    }
}
