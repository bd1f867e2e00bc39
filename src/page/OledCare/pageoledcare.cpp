#include "page/OledCare/pageoledcare.h"

#include <QVBoxLayout>

#include "controls/desktopquestion.h"
#include "controls/messagebox.h"
#include "controls/metrics.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/monitoridentity.h"
#include "page/OledCare/carepanel.h"
#include "page/OledCare/caretable.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"
#include "platform/desk.h"

pageOledCare::pageOledCare(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageOledCare"), OwnList::Shown, queue, parent), m_keeper(queue)
{
    buildPanelsWhenShown(carePanels());
    connect(&m_keeper, &CareKeeper::changed, this, [this] {
        if (isVisible())
            showCare();
    });
    connect(&m_keeper, &CareKeeper::reminderWanted, this, &pageOledCare::remind);
    connect(&m_keeper, &CareKeeper::reminderGone, this, [this] {
        if (m_reminder)
            m_reminder->hide();
    });
}

pageOledCare::~pageOledCare() = default;

QWidget *pageOledCare::buildPart(const char *)
{
    m_care = new CarePanel(texts(), this);
    connect(m_care->startButton(), &QPushButton::clicked, this, &pageOledCare::startCare);
    auto *part = new QWidget(this);
    const QList<OptionGroupRow *> above = findChildren<OptionGroupRow *>(); // the plan's panel is the first one
    auto *words = new OptionWords({above.begin(), above.end()}, OptionWords::Shape::Band, part);
    keepFresh(words);
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    column->addWidget(m_care);
    column->addWidget(words);
    return part;
}

std::optional<int> pageOledCare::ownValue(const char *)
{
    return m_keeper.reminds() ? 1 : 0;
}

void pageOledCare::onButtonClicked(const char *, int value)
{
    showStored(m_keeper.setReminds(value != 0), Unstored::HoldsUntilExit);
}

void pageOledCare::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showCare();
}

void pageOledCare::updateControlText()
{
    PanelPage::updateControlText();
    showCare();
}

/// Whether care is due or runs is shown by no control.
void pageOledCare::reconcile()
{
    PanelPage::reconcile();
    if (isVisible() && !deviceState.isFresh(Command::CareDue))
        m_keeper.ask();
}

void pageOledCare::showCare()
{
    if (m_care)
        m_care->show(m_keeper.history(), m_keeper.facts(), platform::desk().clock().now());
}

bool pageOledCare::mayBegin()
{
    return askYesNo(QObject::tr("Start care"),
                    QObject::tr("The picture goes black for about 6 minutes, and the monitor must stay on. Begin now?"),
                    isVisible() ? window() : nullptr);
}

/// Asked from the page as from the reminder. What runs already is not begun again.
void pageOledCare::startCare()
{
    if (monitorHas(Command::CareRunning, 1))
        return showNotice(QObject::tr("Care is running. Leave the monitor on until the picture is back."));
    const MonitorAskedAbout monitor;
    if (!mayBegin())
        return;
    if (!monitor.isInUse())
        return showNotice(otherMonitorText());
    begin();
}

void pageOledCare::begin()
{
    const bool ok = send(Command::CareNow, 1);
    showResult(ok, QObject::tr("Start care"), [this] { begin(); });
    if (ok)
        m_keeper.begun();
    else if (!isVisible()) // begun from the desktop
        showMessage(QMessageBox::Warning, QObject::tr("Oled Care"),
                    QObject::tr("The monitor did not take \"%1\".").arg(QObject::tr("Start care")), QObject::tr("OK"));
}

void pageOledCare::remind()
{
    if (!m_reminder) {
        m_reminder = std::make_unique<DesktopQuestion>();
        connect(m_reminder->laterButton(), &QPushButton::clicked, &m_keeper, &CareKeeper::putOff);
        connect(m_reminder->yesButton(), &QPushButton::clicked, this, [this] {
            m_keeper.putOff(); // whatever becomes of it, it need not be said again at once
            startCare();
        });
    }
    m_reminder->ask(QObject::tr("Oled Care"), QObject::tr("Care is due. The picture goes black for about 6 minutes."),
                    QObject::tr("Start care"), QObject::tr("Later"));
}
