#include "support/windowfixture.h"

#include <QStackedWidget>
#include <QtTest>

#include "page/engine/panelpage.h"

void WindowFixture::start(int scene, std::size_t monitor, const std::function<void()> &prepare)
{
    m_desk = std::make_unique<SessionDesk>(scene, monitor);
    prepare();
    m_window = std::make_unique<MainWindow>(m_desk->session());
    m_window->show();
}

LeftTabButton *WindowFixture::entry(int family, const char *label) const
{
    for (LeftTabButton *button : m_window->leftBar(family)->buttons()) {
        if (button->caption() == QLatin1String(label))
            return button;
    }
    return nullptr;
}

void WindowFixture::cleanup()
{
    m_window.reset();
    QVERIFY(!MainWindow::instance());
    m_desk.reset();
}

void WindowFixture::onEveryPage(const std::function<void(QWidget *page)> &look)
{
    const auto *stack = m_window->scenePage()->parentWidget();
    for (int family = 0; family < kFamilies; ++family) {
        QTest::mouseClick(m_window->tabs()->tabs()[static_cast<std::size_t>(family)], Qt::LeftButton);
        for (LeftTabButton *entry : m_window->leftBar(family)->buttons()) {
            if (entry->isHidden() || !entry->isSelectable())
                continue;
            QTest::mouseClick(entry, Qt::LeftButton);
            auto *page = static_cast<const QStackedWidget *>(stack)->currentWidget();
            auto *panels = qobject_cast<PanelPage *>(page);
            const int listed = panels ? static_cast<int>(panels->entries().size()) : 0;
            for (int i = 0; i < std::max(listed, 1); ++i) {
                if (listed > 0)
                    panels->showPanel(i);
                QCoreApplication::processEvents(); // what is only made when it is shown comes into sight then
                look(page);
            }
        }
    }
}
