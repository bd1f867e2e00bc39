#pragma once

#include <map>
#include <memory>

#include <QtTest>
#include <QtWidgets>

#include "ddc_protocol/commandqueue.h"
#include "page/engine/panelpage.h"
#include "support/sessiondesk.h"
#include "support/wirevalues.h"

/// A desk with a monitor in mode 10, and each page of monitor settings when it is asked for.
class PagesSuite : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

protected:
    SettingsPage *anyPage(int which);
    PanelPage *page(int which) { return qobject_cast<PanelPage *>(anyPage(which)); }
    QPushButton *button(int which, const QString &name) { return anyPage(which)->findChild<QPushButton *>(name); }
    /// Until every question has been answered, and the pages know.
    bool settle();

    std::unique_ptr<SessionDesk> m_desk;
    std::unique_ptr<CommandQueue> m_queue;
    std::map<int, std::unique_ptr<SettingsPage>> m_pages; ///< those that were asked for

private:
    std::unique_ptr<SettingsPage> makePage(int which);
};
