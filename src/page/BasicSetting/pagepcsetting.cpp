#include "page/BasicSetting/pagepcsetting.h"

#include <algorithm>

#include <QComboBox>
#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QHBoxLayout>

#include "controls/messagebox.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/settingsstore.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/BasicSetting/toollanguage.h"
#include "page/Health/healthpanel.h"
#include "page/engine/dropdown.h"
#include "page/engine/labels.h"
#include "page/engine/optiongrouprow.h"
#include "platform/desk.h"
#include "relaunch.h"
#include "searchdevicedlg.h"

namespace {

constexpr Command kNoCommand{}; // these options are the tool's own and never go to the monitor
constexpr char kStartUp[] = LABEL("Run on startup");
constexpr char kLanguage[] = LABEL("Tool language settings");
constexpr char kOverlay[] = LABEL("Hotkey overlay");
constexpr char kVersion[] = "version";
constexpr char kMachine[] = "machine";
constexpr char kHealth[] = "health";

constexpr Option kYesNo[] = {{LABEL("Yes"), 1}, {LABEL("No"), 0}};

const Section kGeneral[] = {CustomPart{kStartUp}, CustomPart{kLanguage}, CustomPart{kOverlay}, CustomPart{kVersion}};
const Section kMachineSelect[] = {CustomPart{kMachine}};
const Section kHealthPanel[] = {CustomPart{kHealth}};
const PanelSpec kPanels[] = {
    {LABEL("General Settings"), "tool_settings", "pageGeneralSettings", kGeneral},
    {LABEL("Machine Select"), "machine_select", "pageMachineSelect", kMachineSelect},
    {LABEL("Monitor Health"), "monitor_health", "pageMonitorHealth", kHealthPanel},
};

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
    buildPanels(kPanels);
}

QWidget *pagePCSetting::buildPart(const char *name)
{
    if (qstrcmp(name, kStartUp) == 0)
        return m_startUp = makeOptions({kStartUp, kNoCommand, kYesNo});
    if (qstrcmp(name, kLanguage) == 0)
        return m_language = makeOptions({kLanguage, kNoCommand, languageOptions()});
    if (qstrcmp(name, kOverlay) == 0)
        return m_overlay = makeOptions({kOverlay, kNoCommand, kYesNo});
    if (qstrcmp(name, kHealth) == 0)
        return m_health = new HealthPanel(texts(), queue(), this);
    return qstrcmp(name, kVersion) == 0 ? buildVersion() : buildMachine();
}

OptionGroupRow *pagePCSetting::makeOptions(const OptionGroup &group)
{
    auto *row = new OptionGroupRow(group, texts(), this);
    connect(row, &OptionGroupRow::optionClicked, this, &pagePCSetting::onButtonClicked);
    return row;
}

QWidget *pagePCSetting::buildVersion()
{
    auto *version = new QLabel(this);
    version->setObjectName(QStringLiteral("note"));
    version->setFont(noteFont);
    texts().bind(LABEL("Tool Version: "),
                 [version](const QString &text) { version->setText(text + QStringLiteral(QUORVEL_VERSION)); });
    return version;
}

QWidget *pagePCSetting::buildMachine()
{
    auto *part = new QWidget(this);
    m_machines = makeDropDown(part);
    m_machines->setObjectName(QStringLiteral("machines"));
    m_machines->setFixedSize(320, 36);
    connect(m_machines, &QComboBox::currentIndexChanged, this, &pagePCSetting::onComboxIndexChanged);
    texts().bind(LABEL("Machine Select"), [this](const QString &text) { m_machines->setAccessibleName(text); });
    auto *hint = new QLabel(part);
    hint->setObjectName(QStringLiteral("note"));
    hint->setFont(noteFont);
    hint->setWordWrap(true);
    texts().bind(
        LABEL("Recommended to set [Expand These Monitors] in the System-> Screen when operating multiple monitors."),
        [hint](const QString &text) { hint->setText(text); });
    auto *column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(12);
    column->addWidget(m_machines);
    column->addWidget(hint);
    return part;
}

void pagePCSetting::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showWhatIsSet();
    updateMachineCombox();
    m_health->refresh();
}

void pagePCSetting::updateControlText()
{
    PanelPage::updateControlText();
    m_health->refresh();
}

void pagePCSetting::showEvent(QShowEvent *event)
{
    PanelPage::showEvent(event);
    showWhatIsSet(); // other programs may have changed it since
}

void pagePCSetting::showWhatIsSet()
{
    m_startUp->showValue(runsOnStartUp() ? 1 : 0);
    m_overlay->showValue(hotkeyOverlayOn() ? 1 : 0);
    const ToolLanguage &language = toolLanguageOf(toolLanguageCode());
    m_language->showValue(static_cast<int>(&language - toolLanguages().data()));
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

void pagePCSetting::onButtonClicked(QPushButton *button)
{
    const QString name = button->objectName();
    showNotice({});
    if (name.contains(QLatin1String(kStartUp)))
        setRunOnStartUp(name.contains(QLatin1String("Yes")));
    else if (name.contains(QLatin1String(kOverlay)))
        setOverlay(name.contains(QLatin1String("Yes")));
    else if (name.contains(QLatin1String(kLanguage)))
        changeLanguage(name);
}

void pagePCSetting::setRunOnStartUp(bool on)
{
    platform::StartUp &startUp = platform::desk().startUp();
    const QString name = QCoreApplication::applicationName();
    const bool ok = on ? startUp.setValue(name, programPath()) : startUp.removeValue(name);
    if (!ok || runsOnStartUp() != on)
        showNotice(QObject::tr("The system did not allow \"%1\" to be changed.").arg(QObject::tr(kStartUp)));
    showWhatIsSet();
}

void pagePCSetting::setOverlay(bool on)
{
    showStored(setHotkeyOverlayOn(on), Unstored::Undone);
    showWhatIsSet();
}

void pagePCSetting::changeLanguage(const QString &objectName)
{
    const auto languages = toolLanguages();
    const auto language = std::find_if(languages.begin(), languages.end(), [&objectName](const ToolLanguage &each) {
        return objectName.contains(QString::fromUtf8(each.label));
    });
    if (language == languages.end())
        return;
    if (ask(QObject::tr("Language"), QObject::tr("The APP will restart automatically when switching languages.")) &&
        m_session.mayLeave() && restartWith(QLatin1String(kLanguageKey), QLatin1String(language->code)))
        return;
    showWhatIsSet();
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
