#include "page/monitorpages.h"

#include <QStackedWidget>

#include "page/BasicSetting/pagepcsetting.h"
#include "page/BasicSetting/pageservicessetting.h"
#include "page/BasicSetting/pagesystemsetting.h"
#include "page/Emberline/pageemberline.h"
#include "page/Game/pagegameassistant.h"
#include "page/Game/pagepictureenhanc.h"
#include "page/IO/pageiosetting.h"
#include "page/MultiWindow/pagemultiwindow.h"
#include "page/Office/pageoffice.h"
#include "page/OledCare/pageoledcare.h"
#include "page/Scene/pagescenesetting.h"
#include "page/pageset.h"

MonitorPages::MonitorPages(SearchDeviceDlg &session, CommandQueue &queue, PageSet &pages, QStackedWidget *stack)
    : QObject(stack), m_scene(new pageSceneSetting(session, queue, stack)), m_lighting(new pageEmberline(queue, stack))
{
    auto *system = new pageSystemSetting(session, queue, stack);
    connect(system, &pageSystemSetting::resetBegins, this, &MonitorPages::resetBegins);
    pages.add(PageId::Scene, m_scene);
    pages.add(PageId::Office, new PageOffice(queue, stack));
    pages.add(PageId::GameAssistant, new pageGameAssistant(queue, stack));
    pages.add(PageId::PictureEnhance, new pagePictureEnhanc(queue, stack));
    pages.add(PageId::Emberline, m_lighting);
    pages.add(PageId::SystemSetting, system);
    pages.add(PageId::ToolSetting, new pagePCSetting(session, queue, stack));
    pages.add(PageId::ServicesSetting, new pageServicesSetting(queue, stack));
    pages.add(PageId::IoSetting, new pageIOSetting(queue, stack));
    pages.add(PageId::OledCare, new pageOledCare(queue, stack));
    pages.add(PageId::MultiWindow, new pageMultiWindow(queue, stack));
}
