#include "virtualdesk/deskwindow.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTabBar>
#include <QVBoxLayout>

#include "virtualdesk/accessorypanel.h"
#include "virtualdesk/deskroles.h"
#include "virtualdesk/desktabs.h"
#include "virtualdesk/desktoppanel.h"
#include "virtualdesk/monitorpanel.h"
#include "virtualdesk/soundpanel.h"

namespace virtualdesk {

namespace {

constexpr QSize kWindowSize(420, 760);
constexpr int kWindowMargin = 16;

constexpr char kWindowStyle[] = R"(
virtualdesk--DeskWindow { background-color: #0d1210; }
QTabWidget::pane { border: none; }
QTabWidget > QWidget { background-color: transparent; }
QTabBar::tab { color: #adadad; background: transparent; border: none; border-bottom: 2px solid transparent;
    padding: 6px; min-width: 80px; font-size: 13px; }
QTabBar::tab:hover { color: #ffffff; }
QTabBar::tab:selected { color: #7bfadb; border-bottom-color: #7bfadb; }
QLineEdit { color: #9cffc8; background-color: #161d1a; border: 1px solid rgb(27,80,67); border-radius: 6px;
    padding: 5px 8px; min-height: 18px; font-size: 13px; }
QLineEdit:focus { border-color: #7bfadb; }
QLabel, QPushButton, QComboBox, QListWidget { font-size: 13px; }
QLabel { color: #c9c9c9; }
QLabel#title { color: #7bfadb; font-weight: 600; }
QLabel#value { color: #9cffc8; }
QLabel#state { color: #adadad; }
QScrollArea, QPlainTextEdit, QListWidget { background-color: #161d1a; border: 1px solid rgb(27,80,67); border-radius: 8px; }
QWidget#osd { background-color: transparent; }
QPlainTextEdit { color: #adadad; padding: 4px; selection-background-color: #1b5043; }
QPlainTextEdit:focus, QScrollArea:focus, QListWidget:focus { border-color: #7bfadb; }
QPushButton, QComboBox { color: #ffffff; background-color: #1b2320; border: 1px solid rgb(27,80,67);
    border-radius: 6px; padding: 5px 8px; min-height: 18px; }
QPushButton:hover, QComboBox:hover { border-color: #4fae95; }
QPushButton:focus, QComboBox:focus { border-color: #7bfadb; }
QListWidget { color: #c9c9c9; outline: none; padding: 4px; }
QListWidget::item { padding: 6px 8px; border-radius: 6px; }
QListWidget::item:selected { color: #ffffff; background-color: #1b5043; }
QPushButton#osdButton { padding: 0; }
QPushButton:checked { color: #ffffff; background-color: #5a2a2d; border-color: #da676d; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox QAbstractItemView { color: #ffffff; background-color: #1b2320; selection-background-color: #1b5043; }
QScrollBar:vertical { background: transparent; width: 8px; margin: 4px 2px 4px 0; }
QScrollBar::handle:vertical { background: #2c5c4f; border-radius: 3px; min-height: 24px; }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QToolTip { color: #ffffff; background-color: #1b2320; border: 1px solid rgb(27,80,67); }
)";

} // namespace

DeskWindow::DeskWindow(VirtualDesk &desk) : m_tabs(new DeskTabs(this))
{
    describeDeskToAssistiveSoftware();
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(kWindowStyle));
    QFont font = this->font();
    font.setPixelSize(13);
    setFont(font);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kWindowMargin, 8, kWindowMargin, kWindowMargin);
    layout->addWidget(m_tabs);
    addPanel<MonitorPanel>(desk, QT_TRANSLATE_NOOP("QObject", "Monitor"));
    addPanel<DesktopPanel>(desk, QT_TRANSLATE_NOOP("QObject", "Desktop"));
    addPanel<AccessoryPanel>(desk, QT_TRANSLATE_NOOP("QObject", "Accessory"));
    addPanel<SoundPanel>(desk, QT_TRANSLATE_NOOP("QObject", "Sound"));
    retranslate();
    placeBesideProgram();
}

template <class Panel> void DeskWindow::addPanel(VirtualDesk &desk, const char *title)
{
    auto *panel = new Panel(desk, this);
    const int place = m_tabs->addTab(panel, QString());
    m_retranslate.push_back([this, panel, place, title] {
        m_tabs->setTabText(place, QObject::tr(title));
        panel->setAccessibleName(QObject::tr(title));
        panel->retranslate();
    });
}

void DeskWindow::placeBesideProgram()
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    resize(kWindowSize.boundedTo(available.size()));
    move(available.right() - width() - kWindowMargin, available.top() + (available.height() - height()) / 2);
}

void DeskWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void DeskWindow::retranslate()
{
    setWindowTitle(QObject::tr("QUORVEL desk"));
    m_tabs->tabBar()->setAccessibleName(QObject::tr("Sections"));
    for (const auto &retranslatePanel : m_retranslate)
        retranslatePanel();
}

} // namespace virtualdesk
