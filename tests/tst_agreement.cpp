#include <algorithm>
#include <set>

#include <QtTest>

#include "ddc_protocol/commandnames.h"
#include "ddc_protocol/scenemodes.h"
#include "page/BasicSetting/systemtable.h"
#include "page/Game/picturetable.h"
#include "page/IO/iotable.h"
#include "page/Office/officetable.h"
#include "page/Scene/scenetable.h"
#include "shortcut/shortcutfunctions.h"
#include "support/deskfixture.h"
#include "support/vendorpairs.h"
#include "virtualdesk/osdfunctions.h"

using namespace virtualdesk;

/// Differences that are meant, and why.
static const std::pair<const char *, const char *> kMeant[] = {
    {"CR Enhance (41): the slider ends at 5, the monitor at 10", "keys go up to 10"},
    {"Gama (26): nothing offers its option 6", "sRGB comes with a scene mode"},
    {"Matrix Brightness (72): nothing of the program reaches it", "the accessory's page is built by itself"},
    {"Playback Level (73): nothing of the program reaches it", "as the one before"},
    {"Scene (22): nothing offers mode 25", "every monitor takes what belongs to its MPCS"},
    {"Scene (22): nothing offers mode 26", "as the one before"},
    {"Scene (22): nothing offers mode 27", "as the one before"},
    {"Scene (22): nothing offers mode 28", "as the one before"},
};

/// What the program offers and what the simulated monitors have are written down apart from each other. Here each model,
/// and one for each single capability bit, is asked by everything that the program offers for it.
class TestAgreement : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void programAndMonitors();

private:
    void walk(const MonitorModel &model);
    void walkSections(std::span<const Section> sections);
    void walkScenes();
    void walkKeys();
    void offer(Command command, const QString &name);
    void offerValue(Command command, const QString &name, int value);
    void offerSlider(const SliderSpec &slider);
    void lookFromTheMonitor();
    void differ(std::uint8_t code, const QString &name, const QString &how);

    const MonitorModel *m_model = nullptr;
    SimulatedMonitor *m_monitor = nullptr;
    std::map<int, std::set<int>> m_offered; ///< by code the values of options, ends and keys
    std::map<QString, QStringList> m_differences; ///< with the models
};

template <typename Row> bool isOffered(const Row &row)
{
    return !row.needs || deviceState.has(*row.needs);
}

void TestAgreement::differ(std::uint8_t code, const QString &name, const QString &how)
{
    QStringList &models = m_differences[QStringLiteral("%1 (%2): %3").arg(name).arg(code, 2, 16, QChar('0')).arg(how)];
    if (!models.contains(m_model->name))
        models.append(m_model->name);
}

void TestAgreement::offer(Command command, const QString &name)
{
    const auto code = static_cast<std::uint8_t>(command);
    m_offered[code];
    if (!hasFunction(*m_model, code))
        differ(code, name, "the monitor has no such function");
}

/// The monitor takes the value as it is.
void TestAgreement::offerValue(Command command, const QString &name, int value)
{
    const auto code = static_cast<std::uint8_t>(command);
    const int faults = m_monitor->protocolFaults().badValues;
    m_offered[code].insert(value);
    if (!writePair(*m_monitor, code, static_cast<std::uint32_t>(value)) || m_monitor->protocolFaults().badValues != faults)
        differ(code, name, QStringLiteral("the monitor does not take %1").arg(value));
}

void TestAgreement::offerSlider(const SliderSpec &slider)
{
    offer(slider.command, slider.name);
    offerValue(slider.command, slider.name, slider.minimum);
    offerValue(slider.command, slider.name, slider.maximum);
    const auto code = static_cast<std::uint8_t>(slider.command);
    if (const int end = m_monitor->maximum(code); end != slider.maximum)
        differ(code, slider.name, QStringLiteral("the slider ends at %1, the monitor at %2").arg(slider.maximum).arg(end));
}

void TestAgreement::walkSections(std::span<const Section> sections)
{
    for (const Section &section : sections) {
        if (const auto *grid = std::get_if<SliderGrid>(&section)) {
            for (const SliderSpec &slider : grid->sliders) {
                if (isOffered(slider))
                    offerSlider(slider);
            }
        } else if (const auto *group = std::get_if<OptionGroup>(&section); group != nullptr && isOffered(*group)) {
            offer(group->command, group->label);
            for (const Option &option : group->options)
                offerValue(group->command, group->label, option.value);
        }
    }
}

void TestAgreement::walkScenes()
{
    offer(Command::SceneMode, "Scene");
    for (const SceneMode &mode : sceneModes()) {
        if (!isOffered(mode))
            continue;
        for (const int half : {mode.value, mode.value + 1})
            offerValue(Command::SceneMode, mode.label, half);
    }
    for (int mode = kFirstMode; mode <= kLastMode; ++mode) {
        if (offersScene(*m_model, mode) && !m_offered[kSceneCode].contains(mode))
            differ(kSceneCode, "Scene", QStringLiteral("nothing offers mode %1").arg(mode));
    }
}

/// Each key is pressed often enough to come round.
void TestAgreement::walkKeys()
{
    const ReadRow read = [this](COMMAND_set_Type row) {
        return static_cast<int>(readPair(*m_monitor, commandCode(row)).current);
    };
    for (const ShortcutFunction &function : shortcutFunctions()) {
        for (int press = 0; isOffered(function) && press < 40; ++press) {
            const auto key = press < 20 ? ShortcutKey::Plus : ShortcutKey::Minus;
            const ShortcutStep step = shortcutStep(function.rule, key, read);
            offer(Command(commandCode(step.row)), function.name);
            offerValue(Command(commandCode(step.row)), function.name, step.value);
        }
    }
}

void TestAgreement::lookFromTheMonitor()
{
    for (const std::uint8_t code : commandCodes()) {
        if (!hasFunction(*m_model, code))
            continue;
        const OsdFunction function = osdFunction(code);
        const auto offered = m_offered.find(code);
        if (offered == m_offered.end()) {
            differ(code, function.name, "nothing of the program reaches it");
            continue;
        }
        for (const OsdOption &option : function.options) {
            if (!offered->second.contains(option.value))
                differ(code, function.name, QStringLiteral("nothing offers its option %1").arg(option.value));
        }
    }
}

void TestAgreement::walk(const MonitorModel &model)
{
    SimulatedMonitor monitor(model, m_desk->clock);
    m_model = &model;
    m_monitor = &monitor;
    m_offered.clear();
    deviceState.clear();
    deviceState.store(Command::Capability, model.capabilities);
    const std::vector<PanelSpec> picture = picturePanels(deviceState);
    for (const std::span<const PanelSpec> panels : {std::span(picture), officePanels(), ioPanels(), systemPanels()}) {
        for (const PanelSpec &panel : panels) {
            if (isOffered(panel))
                walkSections(panel.sections);
        }
    }
    walkSections(sceneSections());
    for (const auto &preset : kUserColours) { // one slider of the page serves three
        for (const Command colour : preset)
            offerSlider({"User colour", "", colour, 0, 100});
    }
    walkScenes();
    walkKeys();
    for (const CommandName &name : commandNames()) {
        if (isOffered(name))
            offer(name.command, name.label);
    }
    lookFromTheMonitor();
}

void TestAgreement::programAndMonitors()
{
    QStringList unmeant;
    std::map<int, std::set<int>> always;
    int walked = 0;
    for (int bit = -1; bit < 16; ++bit, ++walked) {
        const QByteArray name = bit < 0 ? "no bit" : "bit " + QByteArray::number(bit);
        MonitorModel model = monitorModels().front();
        model.name = name.constData();
        model.capabilities = static_cast<std::uint16_t>(bit < 0 ? 0 : 1u << bit);
        walk(model);
        if (bit < 0)
            always = m_offered;
        const auto has = [&model](const MonitorModel &each) { return (each.capabilities & model.capabilities) != 0; };
        if (m_offered != always && std::ranges::none_of(monitorModels(), has))
            unmeant.append("no simulated model has " + name);
    }
    for (const MonitorModel &model : monitorModels()) {
        walk(model);
        ++walked;
    }
    for (const auto &[difference, reason] : kMeant) {
        if (m_differences.erase(difference) == 0)
            unmeant.append(QStringLiteral("listed as meant, but gone: %1").arg(difference));
    }
    for (const auto &[difference, models] : m_differences)
        unmeant.append(difference + (models.size() == walked ? "" : " - " + models.join(", ")));
    m_desk.reset(); // whose log nobody sees
    for (const QString &difference : std::as_const(unmeant))
        qWarning().noquote() << difference;
    QVERIFY(unmeant.isEmpty());
}

QTEST_MAIN(TestAgreement)
#include "tst_agreement.moc"
