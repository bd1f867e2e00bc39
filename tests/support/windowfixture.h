#pragma once

#include "controls/lefttabbutton.h"
#include "controls/sliderwidget.h"
#include "leftbar.h"
#include "mainwindow.h"
#include "page/Scene/pagescenesetting.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/page.h"
#include "support/sessiondesk.h"
#include "toptab.h"
#include "toptabframe.h"

/// The main window on a simulated desk; the suites about it derive from this and start it in every test.
class WindowFixture : public QObject
{
    Q_OBJECT
protected:
    /// Shows the window for one monitor in a scene; what is to be there before it is made, prepare() does.
    void start(
        int scene, std::size_t monitor = 0, const std::function<void()> &prepare = [] {});

    /// The entry of a family with this caption; null when there is none.
    LeftTabButton *entry(int family, const char *label) const;

    /// Opens every page that can be chosen, and of pages with a list of panels each.
    void onEveryPage(const std::function<void(QWidget *page)> &look);

    std::unique_ptr<SessionDesk> m_desk;
    std::unique_ptr<MainWindow> m_window;

protected Q_SLOTS:
    void cleanup();
};
