#include "support/pagessuite.h"

#include "page/BasicSetting/pagesystemsetting.h"
#include "page/Emberline/pageemberline.h"
#include "page/Game/pagegameassistant.h"
#include "page/Game/pagepictureenhanc.h"
#include "page/IO/pageiosetting.h"
#include "page/MultiWindow/pagemultiwindow.h"
#include "page/Office/pageoffice.h"
#include "page/OledCare/pageoledcare.h"
#include "page/Scene/pagescenesetting.h"

void PagesSuite::init()
{
    m_desk = std::make_unique<SessionDesk>(10);
    m_queue = std::make_unique<CommandQueue>();
    m_desk->takeCommands();
}

void PagesSuite::cleanup()
{
    m_pages.clear();
    m_queue.reset();
    m_desk.reset();
}

bool PagesSuite::settle()
{
    const bool idle = QTest::qWaitFor([this] { return m_queue->isIdle(); });
    QCoreApplication::processEvents();
    return idle;
}

std::unique_ptr<SettingsPage> PagesSuite::makePage(int which)
{
    switch (which) {
    case Scene:
        return std::make_unique<pageSceneSetting>(m_desk->session(), *m_queue);
    case Picture:
        return std::make_unique<pagePictureEnhanc>(*m_queue);
    case Game:
        return std::make_unique<pageGameAssistant>(*m_queue);
    case Office:
        return std::make_unique<PageOffice>(*m_queue);
    case Lighting:
        return std::make_unique<pageEmberline>(*m_queue);
    case Io:
        return std::make_unique<pageIOSetting>(*m_queue);
    case Care:
        return std::make_unique<pageOledCare>(*m_queue);
    case Windows:
        return std::make_unique<pageMultiWindow>(*m_queue);
    default:
        return std::make_unique<pageSystemSetting>(m_desk->session(), *m_queue);
    }
}

SettingsPage *PagesSuite::anyPage(int which)
{
    std::unique_ptr<SettingsPage> &page = m_pages[which];
    if (!page)
        page = makePage(which);
    if (auto *panels = qobject_cast<PanelPage *>(page.get()))
        panels->build();
    return page.get();
}
