#include "navigator.h"

#include <algorithm>

#include <QStackedWidget>

#include "controls/focusgroup.h"
#include "controls/lefttabbutton.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "leftbar.h"
#include "page/emptypage.h"
#include "page/engine/page.h"
#include "page/pageset.h"
#include "toptabframe.h"

Navigator::Navigator(const PageSet &pages, QWidget *window)
    : QObject(window), m_pages(pages), m_tabs(new TopTabFrame(window)), m_barStack(new QStackedWidget(window)),
      m_pageStack(new QStackedWidget(window)), m_emptyPage(new EmptyPage(m_pageStack))
{
    for (int family = 0; family < kFamilies; ++family) {
        auto *bar = new LeftBar(navigationEntries(family, deviceState), m_barStack);
        m_bars[static_cast<std::size_t>(family)] = bar;
        m_barStack->addWidget(bar);
        connect(bar, &LeftBar::entryChosen, this, [this, family](int index) { chooseEntry(family, index); });
    }
    connect(m_tabs, &TopTabFrame::tabChosen, this, &Navigator::openFamily);
}

void Navigator::start()
{
    m_pageStack->addWidget(m_emptyPage);
    m_barStack->setCurrentIndex(0);
    for (int family = 0; family < kFamilies; ++family) {
        if (navigationFamilies()[static_cast<std::size_t>(family)].startsSelected)
            bar(family)->setCurrent(0);
    }
    showFamily(0);
    openFamilyOfScene();
}

void Navigator::showFamily(int family)
{
    m_family = family;
    m_tabs->setCurrent(family);
    m_barStack->setCurrentIndex(family);
    showEntryPage(family);
}

/// Who opens a family comes for something to set: what leads to none gives way to the first entry that does.
void Navigator::openFamily(int family)
{
    LeftBar *left = bar(family);
    const auto &entries = left->entries();
    const auto leads = [this](const NavigationEntry &entry) {
        return m_pages.page(entry.page) && lackOf(entry, deviceState).isEmpty() &&
               (entry.needsAny == 0 || deviceState.hasAny(entry.needsAny));
    };
    const auto first = std::find_if(entries.begin(), entries.end(), leads);
    const bool isChosen = left->current() >= 0 && leads(entries[static_cast<std::size_t>(left->current())]);
    if (family >= kSceneFamilies && !isChosen && first != entries.end()) {
        const auto index = first - entries.begin();
        if (left->buttons()[static_cast<std::size_t>(index)]->isEnabled())
            left->setCurrent(static_cast<int>(index));
    }
    showFamily(family);
}

void Navigator::showEntryPage(int family)
{
    if (family < kSceneFamilies) {
        showSceneFamily(family);
        return;
    }
    const LeftBar *left = bar(family);
    if (left->current() < 0) {
        m_emptyPage->showUnchosen(navigationFamilies()[static_cast<std::size_t>(family)].label);
        return m_pageStack->setCurrentWidget(m_emptyPage);
    }
    const NavigationEntry &entry = left->entries()[static_cast<std::size_t>(left->current())];
    Page *const chosen = m_pages.page(entry.page);
    const QString lack = lackOf(entry, deviceState);
    if (!chosen || !lack.isEmpty()) {
        m_emptyPage->showEntry(entry.label, lack);
        return m_pageStack->setCurrentWidget(m_emptyPage);
    }
    chosen->showEntry(entry.label);
    m_pageStack->setCurrentWidget(chosen->widget());
}

/// The scene page belongs to the family whose mode is on; the others ask to choose one.
void Navigator::showSceneFamily(int family)
{
    const SceneMode *mode = sceneModeOf(deviceState.value(Command::SceneMode));
    const bool isOn = !mode || static_cast<int>(mode->family) == family;
    if (!isOn)
        m_emptyPage->showFamily(navigationFamilies()[static_cast<std::size_t>(family)].label, mode->label);
    m_pageStack->setCurrentWidget(isOn ? m_pages.page(PageId::Scene)->widget() : m_emptyPage);
}

void Navigator::chooseEntry(int family, int index)
{
    const NavigationEntry &entry = bar(family)->entries()[static_cast<std::size_t>(index)];
    if (entry.sceneValue != 0)
        Q_EMIT sceneChosen(entry.sceneValue);
    showEntryPage(family);
}

void Navigator::followSceneMode()
{
    for (int family = 0; family < kSceneFamilies; ++family)
        bar(family)->setCurrentScene(deviceState.value(Command::SceneMode));
    if (m_family < kSceneFamilies)
        showSceneFamily(m_family);
}

void Navigator::openFamilyOfScene()
{
    followSceneMode();
    if (const auto family = familyOfSceneValue(deviceState.value(Command::SceneMode)))
        showFamily(static_cast<int>(*family));
}

/// The scene mode is chosen in the bar of its family; every other setting lies on the page that names it.
void Navigator::showSetting(Command command)
{
    if (command != Command::SceneMode)
        return;
    openFamilyOfScene();
    const LeftBar *left = bar(m_family);
    const int index = std::max(left->current(), 0); // the bar may not have the mode that is on
    focusInSight(left->buttons()[static_cast<std::size_t>(index)], Qt::ShortcutFocusReason);
}

Page *Navigator::current() const
{
    Page *shown = m_pages.shownBy(m_pageStack->currentWidget());
    return shown ? shown : m_pages.page(PageId::Scene);
}

void Navigator::updateControlText()
{
    m_tabs->updateControlText();
    for (std::size_t family = 0; family < m_bars.size(); ++family) {
        m_bars[family]->updateControlText();
        m_bars[family]->setAccessibleName(QObject::tr(navigationFamilies()[family].label));
    }
    m_emptyPage->updateControlText();
    followLack();
}

/// Another monitor has other modes, and other functions behind the entries.
void Navigator::followMonitor()
{
    if (!deviceState.isKnown(Command::Capability)) // it is asked, and what stands here is nearly always right
        return;
    for (int family = 0; family < kSceneFamilies; ++family) {
        bar(family)->setEntries(navigationEntries(family, deviceState));
        bar(family)->updateControlText();
    }
    followSceneMode();
    followLack();
}

/// What the open entry's page needs may have been told by now, or the monitor be another one.
void Navigator::followLack()
{
    const LeftBar *left = bar(m_family);
    if (m_family < kSceneFamilies || left->current() < 0)
        return;
    const bool isEmpty = m_pageStack->currentWidget() == m_emptyPage;
    if (isEmpty || !lackOf(left->entries()[static_cast<std::size_t>(left->current())], deviceState).isEmpty())
        showEntryPage(m_family);
}
