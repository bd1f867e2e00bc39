#include "page/BasicSetting/pageservicessetting.h"

#include <QDebug>
#include <QDesktopServices>
#include <QProcess>
#include <QUrl>
#include <QVBoxLayout>

#include "controls/dash.h"
#include "controls/dress.h"
#include "controls/lefttabbutton.h"
#include "controls/palette.h"
#include "controls/picturelabel.h"
#include "controls/pictures.h"
#include "ddc_protocol/devicestate.h"
#include "page/Health/healthtexts.h"
#include "page/engine/labels.h"
#include "platform/desk.h"
#include "toollanguage.h"

namespace {

// What they are for.
constexpr char kDisplayVersionHelp[] = LABEL("The version of your monitor's firmware.");
constexpr char kQrCodeHelp[] = LABEL("Scan it with a phone to read more about your monitor.");
constexpr char kKnowledgeHelp[] = LABEL("Questions and answers about your monitor, in your web browser.");
constexpr char kUpgradeHelp[] =
    LABEL("Brings the monitor's firmware up to date. Leave the monitor switched on until it has finished.");

constexpr char kVersion[] = LABEL("Display Version");
constexpr char kQrCode[] = LABEL("QR Code");
constexpr char kKnowledge[] = LABEL("Knowledge");
constexpr char kUpgrade[] = LABEL("Upgrade");

const Section kVersionPanel[] = {CustomPart{kVersion}};
const Section kQrCodePanel[] = {CustomPart{kQrCode}};
const Section kKnowledgePanel[] = {CustomPart{kKnowledge}};
const Section kUpgradePanel[] = {CustomPart{kUpgrade}};
const PanelSpec kServicePanels[] = {
    {kVersion, "display_version", "pageDisplayVersion", kVersionPanel, {}, kDisplayVersionHelp},
    {kQrCode, "qr_code", "pageQrCode", kQrCodePanel, {}, kQrCodeHelp},
    {kKnowledge, "knowledge", "pageKnowledge", kKnowledgePanel, {}, kKnowledgeHelp},
    {kUpgrade, "upgrade", "pageUpgrade", kUpgradePanel, {}, kUpgradeHelp},
};

constexpr char kPictures[] = "img/basicSetting/servicesSetting/";
constexpr char kUpgrader[] = "Flasqon.exe"; // looked for beside the program and where the system looks
constexpr platform::milliseconds kStartLimit{30000};
constexpr int kLineWithQrCode = 1;

/// A firmware upgrade that was begun goes on when the tool ends: cut off in the middle it could leave the monitor dead.
class UpgradeProcess : public QProcess
{
public:
    using QProcess::QProcess;
    ~UpgradeProcess() override { setProcessState(NotRunning); } // else it would be killed, and waited for
};

/// What the upgrade program calls the product lines; it takes any other monitor for one of the first.
QString upgradeCode(int productLine)
{
    switch (productLine) {
    case 2:
        return QStringLiteral("PW");
    case 3:
        return QStringLiteral("EXP");
    default:
        return QStringLiteral("XB");
    }
}

/// Translated like a text, so that a language may have a page of its own. Without a host behind it there is no page
/// yet.
QUrl knowledgeAddress()
{
    return QUrl(QObject::tr("https://"));
}

/// Whether there is anything behind a panel now.
bool hasContents(const QString &label)
{
    if (label == QLatin1String(kQrCode))
        return deviceState.productLine() == kLineWithQrCode;
    return label != QLatin1String(kKnowledge) || !knowledgeAddress().host().isEmpty();
}

} // namespace

pageServicesSetting::pageServicesSetting(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageServicesSetting"), OwnList::Shown, queue, parent)
{
    buildPanels(kServicePanels);
}

QWidget *pageServicesSetting::buildPart(const char *name)
{
    if (qstrcmp(name, kVersion) == 0)
        return buildVersion();
    if (qstrcmp(name, kQrCode) == 0)
        return buildQrCode();
    if (qstrcmp(name, kKnowledge) == 0)
        return buildAction(LABEL("Open the page"), "knowledge", &pageServicesSetting::onKnowledgeButtonClicked);
    return buildAction(kUpgrade, "upgrade", &pageServicesSetting::onUpgradeButtonClicked);
}

QWidget *pageServicesSetting::buildVersion()
{
    m_version = new QLabel(this);
    m_version->setObjectName(QStringLiteral("displayVersion"));
    dressText(m_version, {Palette::kMint, 28});
    texts().bind(kVersion, [this](const QString &text) { m_version->setAccessibleDescription(text); });
    return m_version;
}

QWidget *pageServicesSetting::buildQrCode()
{
    auto *picture = new PictureLabel(this);
    picture->setObjectName(QStringLiteral("qrCode"));
    picture->setPicture(QLatin1String(kPictures) + QLatin1String("qr_code.png"));
    texts().bind(kQrCode, [picture](const QString &text) { picture->setAccessibleName(text); });
    return picture;
}

/// The button that does what the panel says; the pictures are "<pictures>_normal.png" and "<pictures>_check.png".
QWidget *pageServicesSetting::buildAction(const char *label, const char *pictures,
                                          void (pageServicesSetting::*pressed)())
{
    auto *part = new QWidget(this);
    auto *button = new QPushButton(part);
    button->setObjectName(QLatin1String(pictures));
    button->setFixedSize(220, 52);
    const QString base = Pictures::kRoot + QLatin1String(kPictures) + QLatin1String(pictures);
    button->setStyleSheet(
        Palette::styled(u"QPushButton { border-image: url(%1_normal.png); color: @soft; padding-left: 40px;"
                        " font-size: 16px; }"
                        "QPushButton:hover, QPushButton:focus, QPushButton:pressed { border-image: url(%1_check.png);"
                        " color: @text; }")
            .arg(base));
    texts().bind(label, [button](const QString &text) { button->setText(text); });
    connect(button, &QPushButton::clicked, this, pressed);
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(button);
    return part;
}

bool pageServicesSetting::offers(const PanelSpec &panel) const
{
    return hasContents(QLatin1String(panel.label));
}

void pageServicesSetting::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showVersion();
    offerPanels();
}

void pageServicesSetting::showVersion()
{
    showOrDash(m_version, firmwareVersion());
}

void pageServicesSetting::onKnowledgeButtonClicked()
{
    const QUrl address = knowledgeAddress();
    const bool opened = QDesktopServices::openUrl(address);
    showNotice(opened ? QString() : QObject::tr("The page %1 could not be opened.").arg(address.toString()));
}

void pageServicesSetting::onUpgradeButtonClicked()
{
    if (m_upgrade && m_upgrade->state() != QProcess::NotRunning) {
        showNotice(QObject::tr("The upgrade program is running already."));
        return;
    }
    startUpgrade({upgradeCode(deviceState.productLine()), QLatin1String(toolLanguageOf(toolLanguageCode()).code)});
}

void pageServicesSetting::startUpgrade(const QStringList &arguments)
{
    showNotice({});
    delete m_upgrade;
    m_upgrade = new UpgradeProcess(this);
    connect(m_upgrade, &QProcess::started, this, [this] { showNotice({}); });
    connect(m_upgrade, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            upgradeFailed();
    });
    m_upgrade->start(QLatin1String(kUpgrader), arguments, QIODevice::ReadWrite);
    platform::desk().clock().callLater(kStartLimit, m_upgrade, [this] {
        if (m_upgrade->state() == QProcess::Starting)
            upgradeFailed();
    });
}

void pageServicesSetting::upgradeFailed()
{
    disconnect(m_upgrade, &QProcess::errorOccurred, this, nullptr); // one failure is told once
    qDebug() << "start failed!";
    showNotice(QObject::tr("The upgrade program %1 could not be started.").arg(QLatin1String(kUpgrader)));
}
