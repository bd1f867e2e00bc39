#include "support/windowfixture.h"

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
