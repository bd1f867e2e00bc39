#include "page/BasicSetting/pagepcsetting.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QLabel>
#include <QVBoxLayout>

#include "controls/messagebox.h"
#include "controls/metrics.h"
#include "ddc_protocol/automaticwriter.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/settingsstore.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/Health/healthpanel.h"
#include "page/engine/commandrows.h"
#include "page/engine/dropdown.h"
#include "page/engine/labels.h"
#include "page/engine/note.h"
#include "platform/desk.h"
#include "relaunch.h"
#include "searchdevicedlg.h"
#include "toollanguage.h"

namespace {

// What they are for.
constexpr char kGeneralSettingsHelp[] =
    LABEL("How this tool starts, which language it speaks and what it may do by itself.");
constexpr char kMachineSelectHelp[] = LABEL("Which of your monitors this tool sets.");
constexpr char kMonitorHealthHelp[] = LABEL("For finding out why a monitor does not answer as it should.");
constexpr char kOverlayHelp[] = LABEL("Shows on the desktop what a shortcut has just changed.");
constexpr char kAutomaticHelp[] = LABEL("How often a day the tool may change the monitor without your doing.");

constexpr char kStartUp[] = LABEL("Run on startup");
constexpr char kLanguage[] = LABEL("Tool language settings");
constexpr char kOverlay[] = LABEL("Shortcut overlay");
constexpr char kAutomatic[] = LABEL("Automatic changes");
constexpr char kVersion[] = "version";
constexpr char kMachine[] = "machine";
constexpr char kHealth[] = "health";

/// What "Care/AutomaticWrites" holds: how many, or -1.
constexpr Option kADay[] = {{LABEL("None"), 0}, {"500", 500}, {"2000", 2000}, {LABEL("No limit"), -1}};
constexpr Option kYesNo[] = {{LABEL("No"), 0}, {LABEL("Yes"), 1}};

/// The languages as options, each with its place in the list.
std::span<const Option> languageOptions()
{
    static const std::vector<Option> options = [] {
        std::vector<Option> list;
        for (const ToolLanguage &language : toolLanguages())
            list.push_back({language.label, static_cast<int>(list.size())});
        return list;
    }();
    return options;
}

std::span<const PanelSpec> panels()
{
    static const Section general[] = {ownSwitch(kStartUp, kYesNo), OptionGroup{kLanguage, {}, languageOptions()},
                                      ownSwitch(kOverlay, kYesNo, kOverlayHelp),
                                      OptionGroup{kAutomatic, {}, kADay, {}, GroupLook::Buttons, kAutomaticHelp},
                                      CustomPart{kVersion}};
    static const Section machineSelect[] = {CustomPart{kMachine}};
    static const Section healthPanel[] = {CustomPart{kHealth}};
    static const PanelSpec all[] = {
        {LABEL("General Settings"), "general_settings", "pageGeneralSettings", general, {}, kGeneralSettingsHelp},
        {LABEL("Machine Select"), "machine_select", "pageMachineSelect", machineSelect, {}, kMachineSelectHelp},
        {LABEL("Monitor Health"), "monitor_health", "pageMonitorHealth", healthPanel, {}, kMonitorHealthHelp},
    };
    return all;
}

QString programPath()
{
    return QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
}

/// A copy of the program that lies elsewhere may stand in the list under the same name: that is not this one.
bool runsOnStartUp()
{
    const auto value = platform::desk().startUp().value(QCoreApplication::applicationName());
    return value && value->compare(programPath(), Qt::CaseInsensitive) == 0;
}

} // namespace

pagePCSetting::pagePCSetting(SearchDeviceDlg &session, CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pagePCSetting"), OwnList::Shown, queue, parent), m_session(session)
{
    buildPanels(panels());
}

QWidget *pagePCSetting::buildPart(const char *name)
{
    if (qstrcmp(name, kHealth) == 0)
        return m_health = new HealthPanel(texts(), queue(), this);
    return qstrcmp(name, kVersion) == 0 ? buildVersion() : buildMachine();
}

QWidget *pagePCSetting::buildVersion()
{
    QLabel *version = makeNote(this);
    texts().bind(LABEL("Tool Version: "),
                 [version](const QString &text) { version->setText(text + QStringLiteral(QUORVEL_VERSION)); });
    return version;
}

QWidget *pagePCSetting::buildMachine()
{
    auto *part = new QWidget(this);
    m_machines = makeDropDown(part);
    m_machines->setObjectName(QStringLiteral("machines"));
    m_machines->setFixedWidth(320);
    connect(m_machines, &QComboBox::currentIndexChanged, this, &pagePCSetting::onComboxIndexChanged);
    texts().bind(LABEL("Machine Select"), [this](const QString &text) { m_machines->setAccessibleName(text); });
    QLabel *hint = makeNote(part);
    hint->setWordWrap(true);
    texts().bind(
        LABEL("Recommended to set [Expand These Monitors] in the System-> Screen when operating multiple monitors."),
        [hint](const QString &text) { hint->setText(text); });
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
    column->addWidget(m_machines);
    column->addWidget(hint);
    return part;
}

void pagePCSetting::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    updateMachineCombox();
    m_health->refresh();
}

void pagePCSetting::updateControlText()
{
    PanelPage::updateControlText();
    m_health->refresh();
}

std::optional<int> pagePCSetting::ownValue(const char *label)
{
    if (qstrcmp(label, kStartUp) == 0)
        return runsOnStartUp() ? 1 : 0;
    if (qstrcmp(label, kOverlay) == 0)
        return hotkeyOverlayOn() ? 1 : 0;
    if (qstrcmp(label, kAutomatic) == 0)
        return static_cast<int>(automaticWritesADay().value_or(-1));
    return static_cast<int>(&toolLanguageOf(toolLanguageCode()) - toolLanguages().data());
}

void pagePCSetting::updateMachineCombox()
{
    qDebug() << "updateMachineCombox";
    const Updating updating(*this);
    m_machines->clear();
    for (const QByteArray &label : m_session.labels()) {
        if (!label.isEmpty())
            m_machines->addItem(QString::fromUtf8(label));
    }
    m_machines->setCurrentIndex(currentMonitorIndex);
    m_machines->update();
}

bool pagePCSetting::ask(const QString &title, const QString &text)
{
    return askYesNo(title, text, window());
}

void pagePCSetting::onButtonClicked(const char *label, int value)
{
    if (qstrcmp(label, kStartUp) == 0)
        setRunOnStartUp(value != 0);
    else if (qstrcmp(label, kOverlay) == 0)
        showStored(setHotkeyOverlayOn(value != 0), Unstored::Undone);
    else if (qstrcmp(label, kAutomatic) == 0)
        showStored(setAutomaticWritesADay(value), Unstored::Undone);
    else
        changeLanguage(toolLanguages()[static_cast<std::size_t>(value)]);
}

void pagePCSetting::setRunOnStartUp(bool on)
{
    platform::StartUp &startUp = platform::desk().startUp();
    const QString name = QCoreApplication::applicationName();
    const bool ok = on ? startUp.setValue(name, programPath()) : startUp.removeValue(name);
    if (!ok || runsOnStartUp() != on)
        showNotice(QObject::tr("The system did not allow \"%1\" to be changed.").arg(QObject::tr(kStartUp)));
}

void pagePCSetting::changeLanguage(const ToolLanguage &language)
{
    if (ask(QObject::tr("Language"), QObject::tr("The APP will restart automatically when switching languages.")) &&
        m_session.mayLeave())
        restartWith(QLatin1String(kLanguageKey), QLatin1String(language.code));
}

/// Says why when there is no restart.
bool pagePCSetting::restartWith(const QString &key, const QVariant &value)
{
    const Relaunch result = relaunchWith(key, value);
    if (showStored(result != Relaunch::NotStored, Unstored::Undone) && result == Relaunch::NotStarted)
        showNotice(notRestarted());
    return result == Relaunch::Begins;
}

void pagePCSetting::onComboxIndexChanged(int nIndex)
{
    if (isUpdating() || nIndex < 0 || nIndex == currentMonitorIndex)
        return;
    showNotice({});
    if (ask(QObject::tr("Machine Select"), QObject::tr("The APP will reload data when switching machines.")) &&
        m_session.mayLeave()) {
        const std::uint8_t before = currentMonitorIndex.exchange(static_cast<std::uint8_t>(nIndex));
        if (restartWith(QLatin1String(kDeviceIndexKey), nIndex))
            return;
        currentMonitorIndex = before; // or commands would go to a monitor that no page shows
    }
    const Updating updating(*this);
    m_machines->setCurrentIndex(currentMonitorIndex);
}
