#include "page/BasicSetting/pagesystemsetting.h"

#include <QDebug>
#include <QGridLayout>
#include <QPushButton>

#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/wrappedlabel.h"
#include "ddc_protocol/monitoridentity.h"
#include "ddc_protocol/settingsstore.h"
#include "ddc_protocol/transport.h"
#include "page/BasicSetting/systemtable.h"
#include "page/engine/labels.h"
#include "page/engine/plainbutton.h"
#include "platform/desk.h"
#include "searchdevicedlg.h"
#include "usb-hid/accessorysettings.h"

namespace {

constexpr platform::milliseconds kResetTime{20000};

} // namespace

pageSystemSetting::pageSystemSetting(SearchDeviceDlg &session, CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageSystemSetting"), OwnList::Shown, queue, parent), m_session(session)
{
    buildPanels(systemPanels());
    refuseWhen(Command::MenuLock, [this](int value) { return refusesSecondLock(value); });
}

QWidget *pageSystemSetting::buildPart(const char *)
{
    auto *part = new QWidget(this);
    auto *grid = new QGridLayout(part);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(metrics::kGap);
    grid->setVerticalSpacing(metrics::kRowGap);
    auto *question = new WrappedLabel(part);
    dressText(question, {Palette::kSoft, 14});
    question->setWordWrap(true);
    texts().bind(
        LABEL("Set everything back to how the monitor left the factory? The screen goes dark for a few seconds."),
        [question](const QString &text) { question->setText(text); });
    grid->addWidget(question, 0, 0, 1, 3);
    QPushButton *yes = makePlainButton(LABEL("Yes"), QStringLiteral("Reset Factory_Yes"), texts(), part);
    QPushButton *no = makePlainButton(LABEL("No"), QStringLiteral("Reset Factory_No"), texts(), part);
    connect(yes, &QPushButton::clicked, this, &pageSystemSetting::resetFactory);
    grid->addWidget(yes, 1, 0);
    grid->addWidget(no, 1, 1);
    grid->setColumnStretch(2, 1);
    return part;
}

void pageSystemSetting::resetFactory()
{
    const MonitorAskedAbout monitor;
    if (!m_session.mayLeave()) // it ends in a restart
        return;
    if (!monitor.isInUse())
        return showNotice(otherMonitorText());
    if (!send(Command::ResetFactory, 0)) {
        showNotice(QObject::tr("The monitor did not take the reset."));
        return;
    }
    qDebug() << "reset begin";
    Q_EMIT resetBegins();
    reloadEdidType = kRestartProgram;
    const bool stored = storeSettings({{QLatin1String(kLedBrightnessKey), kUsualLedBrightness},
                                       {QLatin1String(kPlaybackLevelKey), kUsualPlaybackLevel}});
    showStored(stored, Unstored::HoldsUntilExit);
    platform::desk().clock().callLater(kResetTime, this, [this] {
        reloadEdidType = kRestartProgram; // whatever happened in between
        m_session.delayedSearchDevices();
        qDebug() << "Restart begin";
    });
}

bool pageSystemSetting::refusesSecondLock(int value)
{
    const bool already = value == 1 && monitorHas(Command::MenuLock, 1);
    showNotice(already ? QObject::tr("Menu lock already opened!") : QString());
    return already;
}
