#pragma once

#include <functional>
#include <vector>

#include <QWidget>

class QTabWidget;

namespace virtualdesk {

class VirtualDesk;

/// Beside the program: what lies on the simulated desk and what can be done to it, a tab each.
class DeskWindow : public QWidget
{
    Q_OBJECT

public:
    /// The desk outlives the window.
    explicit DeskWindow(VirtualDesk &desk);

protected:
    void changeEvent(QEvent *event) override;

private:
    template <class Panel> void addPanel(VirtualDesk &desk, const char *title);
    void placeBesideProgram();
    void retranslate();

    QTabWidget *m_tabs;
    std::vector<std::function<void()>> m_retranslate; ///< a panel each, its tab included
};

} // namespace virtualdesk
