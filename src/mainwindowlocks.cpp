// Why entries of the left bars cannot be chosen, and the way to the scene mode for pages that it limits.

#include <algorithm>

#include "controls/lefttabbutton.h"
#include "leftbar.h"
#include "mainwindow.h"
#include "page/engine/labels.h"

/// Why an entry cannot be chosen now, as a source text; null when it can.
const char *MainWindow::lockOf(int family, int entry) const
{
    const LeftBar *bar = leftBar(family);
    if (m_locked)
        return LABEL("The monitor is changing its scene mode.");
    if (family == kAccessoryFamily && m_accessoryBusy && entry != bar->current())
        return LABEL("The accessory is at work: wait until it has finished, or cancel the work on its page.");
    if (!bar->buttons()[static_cast<std::size_t>(entry)]->isSelectable())
        return LABEL("This monitor does not have these functions.");
    return nullptr;
}

void MainWindow::explainEntries()
{
    for (int family = 0; family < kFamilies; ++family) {
        const auto &buttons = leftBar(family)->buttons();
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            const char *lock = lockOf(family, static_cast<int>(i));
            buttons[i]->setLock(lock ? QObject::tr(lock) : QString());
        }
    }
}

/// The scene mode is chosen in the bar of its family; every other setting lies on the page that names it.
void MainWindow::showSetting(Command command)
{
    if (command != Command::SceneMode)
        return;
    openFamilyOfScene();
    const LeftBar *bar = leftBar(m_family);
    const int index = std::max(bar->current(), 0); // the bar may not have the mode that is on
    bar->buttons()[static_cast<std::size_t>(index)]->setFocus(Qt::ShortcutFocusReason);
}
