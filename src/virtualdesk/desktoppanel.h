#pragma once

#include <QWidget>

class QKeySequenceEdit;
class QLabel;
class QListWidget;
class QPushButton;

namespace virtualdesk {

class VirtualDesk;
class WindowsView;

/// The rest of the desktop: a keyboard on which any combination can be pressed or taken by another program, and the
/// programs that can be brought to the front.
class DesktopPanel : public QWidget
{
    Q_OBJECT

public:
    /// The desk outlives the panel.
    explicit DesktopPanel(VirtualDesk &desk, QWidget *parent = nullptr);

    void retranslate();

private:
    QWidget *buildKeyboard();
    QWidget *buildPrograms();
    void pressKey();
    void takeKey();
    void addProgram();
    void bringToFront();
    void fillPrograms();

    VirtualDesk &m_desk;
    QLabel *m_keyTitle;
    QKeySequenceEdit *m_key;
    QPushButton *m_press;
    QPushButton *m_take;
    QLabel *m_keyResult;
    QLabel *m_programTitle;
    QListWidget *m_programs;
    WindowsView *m_windows;
    QPushButton *m_front;
    QPushButton *m_add;
};

} // namespace virtualdesk
