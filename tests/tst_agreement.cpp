#include <algorithm>
#include <array>
#include <set>

#include <QtTest>

#include "ddc_protocol/commandnames.h"
#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "following/followscenes.h"
#include "globalapplication.h"
#include "page/BasicSetting/systemtable.h"
#include "page/Emberline/lighttable.h"
#include "page/Game/gametable.h"
#include "page/Game/picturetable.h"
#include "page/IO/iotable.h"
#include "page/MultiWindow/multiwindowtable.h"
#include "page/Nightloom/animate/memorycommands.h"
#include "page/Office/officetable.h"
#include "page/OledCare/caretable.h"
#include "page/Scene/scenetable.h"
#include "shortcut/shortcutfunctions.h"
#include "support/deskfixture.h"
#include "support/vendorpairs.h"
#include "toollanguage.h"
#include "virtualdesk/osdfunctions.h"

using namespace virtualdesk;

/// Differences that are meant, and why; as the one before where nothing is said.
static const std::pair<const char *, const char *> kMeant[] = {
    {"CR Enhance (41): the slider ends at 5, the monitor at 10", "keys go up to 10"},
    {"Game Time (37): the monitor does not take 4", "while the aid is off, keys leave it to the monitor to refuse"},
    {"Gama (26): nothing offers its option 6", "sRGB comes with a scene mode"},
    {"Matrix Brightness (72): nothing of the program reaches it", "the accessory's page is built by itself"},
    {"Playback Level (73): nothing of the program reaches it", ""},
    {"Light Color R (7a): nothing of the program reaches it", "its page builds the choice of a colour by itself"},
    {"Light Color G (7b): nothing of the program reaches it", ""},
    {"Light Color B (7c): nothing of the program reaches it", ""},
    {"Rhythm Color (86): nothing of the program reaches it", "the rhythm sends it"},
    {"Rhythm Color L (88): nothing of the program reaches it", ""},
    {"Rhythm Color R (89): nothing of the program reaches it", ""},
    {"Care Running (05): nothing of the program reaches it", "the care panel asks for it"},
    {"Care Due (08): nothing of the program reaches it", ""},
    {"Start care (0e): nothing of the program reaches it", "the care panel's button"},
    {"Scene (22): nothing offers mode 25", "every monitor takes what belongs to its MPCS"},
    {"Scene (22): nothing offers mode 27", ""},
};

/// What the program offers and what the simulated monitors have are written down apart from each other. Here each
/// model, and one for each single capability bit, is asked by everything that the program offers for it.
class TestAgreement : public DeskSuite
{
    Q_OBJECT
    std::optional<SimulatedMonitor> m_monitor;
    std::map<int, std::set<int>> m_offered;         ///< by code the values of options, ends and keys
    std::map<QString, QSet<QString>> m_differences; ///< with the models

    void differ(std::uint8_t code, const QString &name, const QString &how)
    {
        const QString text = QStringLiteral("%1 (%2): %3").arg(name).arg(code, 2, 16, QChar('0')).arg(how);
        m_differences[text].insert(m_monitor->model().name);
    }

    static bool hasName(std::uint8_t code) { return *nameOf(static_cast<Command>(code)).label != '\0'; }

    /// The monitor has the function, and takes the value, if there is one, as it is.
    void offer(Command command, const QString &name, std::optional<int> value = {})
    {
        const auto code = static_cast<std::uint8_t>(command);
        std::set<int> &values = m_offered[code];
        if (!hasFunction(m_monitor->model(), code))
            differ(code, name, "the monitor has no such function");
        const int faults = m_monitor->protocolFaults().badValues;
        if (value && values.insert(*value).second &&
            (!writePair(*m_monitor, code, static_cast<std::uint32_t>(*value)) ||
             m_monitor->protocolFaults().badValues != faults))
            differ(code, name, QStringLiteral("the monitor does not take %1").arg(*value));
    }

    void offerSlider(const SliderSpec &slider)
    {
        for (const int end : {slider.minimum, slider.maximum})
            offer(slider.command, slider.name, end);
        const auto code = static_cast<std::uint8_t>(slider.command);
        const std::uint16_t end = m_monitor->maximum(code);
        if (end != slider.maximum)
            differ(code, slider.name,
                   QStringLiteral("the slider ends at %1, the monitor at %2").arg(slider.maximum).arg(end));
        if (!writePair(*m_monitor, code, end + 1u) || m_monitor->value(code) != end)
            differ(code, slider.name, "the monitor does not stop at its end");
    }

    void walkSections(std::span<const Section> sections)
    {
        for (const Section &section : sections) {
            if (const auto *grid = std::get_if<SliderGrid>(&section)) {
                for (const SliderSpec &slider : grid->sliders) {
                    if (deviceState.has(slider.needs))
                        offerSlider(slider);
                }
            } else if (const auto *group = std::get_if<OptionGroup>(&section);
                       group != nullptr && deviceState.has(group->needs) && group->command) {
                for (const Option &option : group->options)
                    offer(*group->command, group->label, option.value);
            }
        }
    }

    void walkPages()
    {
        for (const std::span<const PanelSpec> panels :
             {picturePanels(), gamePanels(), officePanels(), ioPanels(), systemPanels(), multiWindowPanels(),
              carePanels(),
              deviceState.has(::Capability::GameFunctions) ? lightPanels() : std::span<const PanelSpec>()}) {
            for (const PanelSpec &panel : panels) {
                if (isOffered(panel, deviceState))
                    walkSections(panel.sections);
            }
        }
        for (const Command memory : kMemoryCommands) {
            offer(memory, "Played", 0);
            offer(memory, "Played", 1);
        }
        walkSections(sceneSections());
        for (const SceneMode &mode : sceneModes()) {
            for (int half = 0; deviceState.has(mode.needs) && half < 2; ++half)
                offer(Command::SceneMode, mode.label, mode.value + half);
        }
    }

    /// Each key is pressed often enough to come round.
    void walkKeys(std::span<const std::uint8_t> switchedOff = {})
    {
        const ReadRow read = [this](COMMAND_set_Type row) {
            return static_cast<int>(readPair(*m_monitor, commandCode(row)).current);
        };
        for (const ShortcutFunction *function : shortcutFunctionsOf(deviceState)) {
            for (int press = 0; press < 40; ++press) {
                for (const std::uint8_t aid : switchedOff)
                    m_monitor->setValue(aid, 0);
                const ShortcutStep step =
                    shortcutStep(function->rule, press < 20 ? ShortcutKey::Plus : ShortcutKey::Minus, read);
                offer(Command(commandCode(step.row)), function->name, step.value);
                writePair(*m_monitor, commandCode(step.row), static_cast<std::uint32_t>(step.value));
            }
        }
    }

    void lookFromTheMonitor()
    {
        for (const std::uint8_t code : commandCodes()) {
            const OsdFunction function = osdFunction(code);
            // What has no menu entry is reached by what its name is used for.
            const bool isReached = *function.name == '\0' ? hasName(code) : m_offered.contains(code);
            if (hasFunction(m_monitor->model(), code) && !isReached)
                differ(code, function.name, "nothing of the program reaches it");
            for (const OsdOption &option : function.options) {
                if (m_offered.contains(code) && !m_offered[code].contains(option.value))
                    differ(code, function.name, QStringLiteral("nothing offers its option %1").arg(option.value));
            }
        }
        for (int mode = kFirstMode; mode <= kLastMode; mode += 2) {
            if (offersScene(m_monitor->model(), mode) && !m_offered[kSceneCode].contains(mode))
                differ(kSceneCode, "Scene", QStringLiteral("nothing offers mode %1").arg(mode));
        }
    }

    void walk(const MonitorModel &model)
    {
        m_monitor.emplace(model, m_desk->clock);
        m_offered.clear();
        deviceState.clear();
        deviceState.store(Command::Capability, model.capabilities);
        walkPages();
        walkKeys();
        walkKeys(std::array<std::uint8_t, 4>{0x30, 0x3D, 0x3E, 0x3F}); // the aids, which go on otherwise from there
        for (const auto &[code, values] : m_offered) {
            if (!hasName(static_cast<std::uint8_t>(code)))
                differ(static_cast<std::uint8_t>(code), "", "it has no name");
        }
        lookFromTheMonitor();
        for (const CommandName &name : commandNames()) { // also those that no page or key offers
            if (deviceState.has(name.needs))
                offer(name.command, name.label);
        }
    }

private Q_SLOTS:
    void programAndMonitors()
    {
        std::map<int, std::set<int>> always;
        for (int bit = -1; bit < 16; ++bit) {
            const QByteArray name = bit < 0 ? "no bit" : "bit " + QByteArray::number(bit);
            MonitorModel model = monitorModels().front();
            model.name = name.constData();
            model.capabilities = static_cast<std::uint16_t>(bit < 0 ? 0 : 1u << bit);
            walk(model);
            if (bit < 0)
                always = m_offered;
            const auto has = [&model](const MonitorModel &each) { return each.capabilities & model.capabilities; };
            if (m_offered != always && std::ranges::none_of(monitorModels(), has))
                m_differences["no simulated model has " + name];
        }
        for (const MonitorModel &model : monitorModels())
            walk(model);
        for (const auto &[difference, reason] : kMeant) {
            if (m_differences.erase(difference) == 0)
                m_differences[QStringLiteral("listed as meant, but gone: %1").arg(difference)];
        }
        m_desk.reset(); // whose log nobody sees
        for (const auto &[difference, models] : m_differences)
            qWarning().noquote() << difference << models.values().join(", ");
        QVERIFY(m_differences.empty());
    }

    /// Lists and rules find a scene or a function by the name that is shown.
    void namesOfEachLanguage()
    {
        GlobalApplication application;
        QStringList doubled;
        for (const ToolLanguage &language : toolLanguages()) {
            application.switchApplicationLanguage(language.code);
            const auto differ = [&](const auto &rows, auto name) {
                QSet<QString> names;
                for (const auto &row : rows) {
                    const QString shown = QObject::tr(row.*name).trimmed();
                    if (names.contains(shown))
                        doubled << QString(language.code) + ": " + shown;
                    names << shown;
                }
            };
            differ(shortcutFunctions(), &ShortcutFunction::name);
            differ(followScenes(), &FollowScene::name);
            differ(sceneModes(), &SceneMode::label);
        }
        QCOMPARE(doubled, QStringList());
    }
};

QTEST_MAIN(TestAgreement)
#include "tst_agreement.moc"
