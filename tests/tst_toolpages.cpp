#include <csignal>

#include <QtTest>
#include <QtWidgets>

#include "controls/lefttabbutton.h"
#include "ddc_protocol/automaticwriter.h"
#include "ddc_protocol/commandnames.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/BasicSetting/pagepcsetting.h"
#include "page/BasicSetting/pageservicessetting.h"
#include "support/sessiondesk.h"
#include "toollanguage.h"

using namespace std::chrono_literals;

namespace {

/// The tool page with its questions answered by the test.
class AnsweredPage : public pagePCSetting
{
public:
    using pagePCSetting::pagePCSetting;
    bool answer = true;
    QStringList questions;

protected:
    bool ask(const QString &title, const QString &) override
    {
        questions.append(title);
        return answer;
    }
};

const QString kAddress = QStringLiteral("https://example.org/answers");
/// A language that has an address for the knowledge page.
struct AddressTranslator : QTranslator
{
    AddressTranslator() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return qstrcmp(text, "https://") == 0 ? kAddress : QString();
    }
};

} // namespace

/// The pages about the tool itself: start at log-on, language, machine; and the services around the monitor.
class TestToolPages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void startUpIsWrittenOrFallsBack();
    void overlayAndLimitAreSwitched();
    void healthIsBuiltWhenShown();
    void everythingIsReadOnce();
    void reportNamesNobody();
    void languages_data();
    void languages();
    void machineRestarts();
    void declinedOrNoChange();
    void firmwareVersion();
    void qrCodeByProductLine();
    void knowledgeOpens();
    void upgradeArguments_data();
    void upgradeArguments();
    void missingAndSlowUpgrader();
public Q_SLOTS:
    void takeUrl(const QUrl &url) { m_opened = url; }

private:
    template <typename Page> Page &shown(std::unique_ptr<Page> &page, auto &...with)
    {
        if (!page) {
            page = std::make_unique<Page>(with...);
            page->show();
        }
        return *page;
    }
    AnsweredPage &toolPage() { return shown(m_tool, m_desk->session(), *m_queue); }
    pageServicesSetting &servicesPage() { return shown(m_services, *m_queue); }
    void press(const QString &name) { QTest::mouseClick(toolPage().findChild<QPushButton *>(name), Qt::LeftButton); }
    QString text(const char *name) { return toolPage().findChild<QLabel *>(QLatin1String(name))->text(); }
    bool isChecked(const QString &name) { return toolPage().findChild<QPushButton *>(name)->isChecked(); }
    QComboBox *machines() { return toolPage().findChild<QComboBox *>(); }
    void verifyRestart();
    void installUpgrader(const char *script);

    std::unique_ptr<SessionDesk> m_desk;
    std::unique_ptr<CommandQueue> m_queue;
    std::unique_ptr<AnsweredPage> m_tool;
    std::unique_ptr<pageServicesSetting> m_services;
    const QByteArray m_path = qgetenv("PATH");
    QUrl m_opened;
};

void TestToolPages::init()
{
    m_desk = std::make_unique<SessionDesk>();
    m_queue = std::make_unique<CommandQueue>();
    languageSetting(true, QStringLiteral("en"));
}

void TestToolPages::cleanup()
{
    m_tool.reset();
    m_services.reset();
    m_queue.reset();
    m_desk.reset();
    qputenv("PATH", m_path);
}

void TestToolPages::verifyRestart()
{
    const auto &started = m_desk->desk.process().started;
    QVERIFY(started.size() == 1 && started[0].program == QCoreApplication::applicationFilePath());
    QVERIFY(started[0].arguments == QCoreApplication::arguments().mid(1) && started[0].folder.isEmpty());
}

/// Puts a program of the upgrade program's name where the system looks first.
void TestToolPages::installUpgrader(const char *script)
{
    qputenv("PATH", m_desk->folder().toLocal8Bit() + ':' + m_path);
    const QString program = m_desk->folder() + QStringLiteral("/Flasqon.exe");
    QVERIFY(writeText(program, script));
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestToolPages::startUpIsWrittenOrFallsBack()
{
    const QString name = QCoreApplication::applicationName(), program = QCoreApplication::applicationFilePath();
    QVERIFY(isChecked("Run on startup_No"));
    for (const auto &[writable, pressed, after] :
         {std::tuple(false, "Yes", "No"), {true, "Yes", "Yes"}, {false, "No", "Yes"}, {true, "No", "No"}}) {
        m_desk->desk.process().startUp().writable = writable;
        press(QStringLiteral("Run on startup_") + pressed);
        QVERIFY(isChecked(QStringLiteral("Run on startup_") + after));
        QVERIFY(toolPage().notice().contains("Run on startup") || (writable && toolPage().notice().isEmpty()));
        QCOMPARE(m_desk->desk.process().startUp().value(name).value_or("none"),
                 QByteArray(after) == "No" ? "none" : QDir::toNativeSeparators(program));
    }
    for (const bool own : {true, false}) { // read anew when it is shown; the other one is another copy of the program
        toolPage().hide();
        m_desk->desk.process().startUp().setValue(name, own ? program : "/elsewhere/quorvel");
        toolPage().show();
        QCOMPARE(isChecked("Run on startup_Yes"), own);
    }
}

void TestToolPages::overlayAndLimitAreSwitched()
{
    for (const QString name : {"Shortcut overlay_No", "Shortcut overlay_Yes", "Shortcut overlay_Yes"}) {
        press(name);
        QVERIFY(hotkeyOverlayOn() == name.endsWith("Yes") && isChecked(name));
    }
    press("Automatic changes_No limit");
    QVERIFY(!automaticWritesADay() && toolPage().notice().isEmpty());
    QFile::remove(QStringLiteral("config.ini"));
    QVERIFY(QDir().mkpath(QStringLiteral("config.ini/full"))); // nothing can be stored
    press("Shortcut overlay_No");
    QVERIFY(toolPage().notice().contains("config.ini") && isChecked("Shortcut overlay_Yes"));
}

/// Nothing of it is there before, and it costs nothing while another panel is shown.
void TestToolPages::healthIsBuiltWhenShown()
{
    QVERIFY(!toolPage().findChild<QPushButton *>("record"));
    toolPage().showPanel("Monitor Health");
    const auto refreshed = [this] {
        readCommandOnce(readRow(Command::Brightness));
        QCoreApplication::processEvents();
        const std::size_t tasks = m_desk->clock.tasksWaiting();
        m_desk->clock.advance(250ms);
        return tasks;
    };
    const QString before = text("healthValue");
    m_desk->monitor().refuse(0x10);
    QCOMPARE(refreshed(), 1u);
    QVERIFY(before == "100 %" && text("healthValue") != before);
    const auto time = [this] { return toolPage().findChild<QFrame *>("healthError")->findChild<QLabel *>()->text(); };
    const QString first = time();
    m_desk->clock.advance(2s);
    m_desk->monitor().refuse(0x10);
    refreshed();
    QCOMPARE(toolPage().findChildren<QFrame *>("healthError").size(), 1);
    QVERIFY(time() > first); // the newest comes first, so its last time is told
    toolPage().showPanel(0);
    QCOMPARE(refreshed(), 0u);
}

void TestToolPages::everythingIsReadOnce()
{
    m_desk->monitor().setValue(0x22, 2);
    readCommandOnce(readRow(Command::SceneMode));
    toolPage().showPanel("Monitor Health");
    m_desk->takeCommands();
    m_desk->monitor().refuse(0x10);
    press("readEverything");
    QTRY_VERIFY(text("healthResult").contains("Not told: Brightness"));
    QStringList asked = m_desk->takeCommands().replaceInStrings("!", ""); // answered or not
    for (const Command command : readableCommands())
        QCOMPARE(asked.removeAll(QStringLiteral("R %1").arg(static_cast<int>(command), 2, 16, QLatin1Char('0'))),
                 command == Command::SceneMode || command == Command::StillPicture ? 2 : 1); // with the block
    QCOMPARE(asked, QStringList(10, "R fe"));
    m_desk->monitor().goDeaf(); // given up at once, rather than for each
    press("readEverything");
    QTRY_VERIFY(text("healthResult").startsWith("The monitor does not answer"));
    QCOMPARE(m_desk->takeRequests().size(), 2);
    m_desk->monitor().recover();
    {
        const auto lock = lockTransport(); // nothing is told meanwhile
        press("readEverything");
        press("readEverything");
    }
    QVERIFY(text("healthResult").startsWith("Cancelled."));
    QTRY_VERIFY(m_queue->isIdle());
    QVERIFY(m_desk->takeCommands().size() <= 1);
    toolPage().findChild<QComboBox *>("healthMonitors")->setCurrentIndex(1); // not the one that is asked
    QVERIFY(!toolPage().findChild<QPushButton *>("readEverything")->isEnabled());
}

void TestToolPages::reportNamesNobody()
{
    toolPage().showPanel("Monitor Health");
    m_desk->monitor().refuse(0x10);
    readCommandOnce(readRow(Command::Brightness));
    press("copyReport");
    const QString report = QGuiApplication::clipboard()->text();
    for (const char *told : {"Q27-OLED", "0000001", "v1.2", "2560 × 1440", "Brightness was not told (0x10, 1x)"})
        QVERIFY2(report.contains(QString::fromUtf8(told)), told);
    const QString place = monitorList[0].identity.place;
    for (const QString &hidden : {m_desk->folder(), QDir::homePath(), place, QStringLiteral("/"), QStringLiteral("\\")})
        QVERIFY2(!place.isEmpty() && !report.contains(hidden), qPrintable(hidden));
}

void TestToolPages::languages_data()
{
    columns<QString, QString, bool>("code", "button", "chosen"); // by its button; the other one was stored before
    row("zh_TW, not its prefix", "zh_TW", "繁體中文", true);
    row("ja_JP", "ja_JP", "日本語", true);
    row("any other Chinese", "zh_HK", "简体中文", false);
}

void TestToolPages::languages()
{
    const auto [code, button, chosen] = fetch<QString, QString, bool>();
    if (chosen) {
        press("Tool language settings_" + button);
        QCOMPARE(toolPage().questions, QStringList{"Language"});
        QCOMPARE(languageSetting(false), code);
        verifyRestart();
        m_tool.reset();
    } else {
        languageSetting(true, code);
    }
    QVERIFY(isChecked("Tool language settings_" + button));
}

void TestToolPages::machineRestarts()
{
    QCOMPARE(machines()->count(), 2);
    machines()->setCurrentIndex(1);
    QCOMPARE(toolPage().questions, QStringList{"Machine Select"});
    QCOMPARE(int(currentMonitorIndex), 1);
    QVERIFY(readText(QStringLiteral("config.ini")).contains("[PCSeting]\nDeviceIndex=1"));
    verifyRestart();
}

void TestToolPages::declinedOrNoChange()
{
    machines()->setCurrentIndex(0);
    for (int round = 0; round < 2; ++round) {
        currentMonitorIndex = static_cast<std::uint8_t>(1 - round);
        m_desk->takeLog();
        toolPage().updateMachineCombox();
        QVERIFY(m_desk->takeLog().contains("updateMachineCombox"));
        QCOMPARE(machines()->currentIndex(), 1 - round);
    }
    QWheelEvent wheel(QPointF(9, 9), machines()->mapToGlobal(QPointF(9, 9)), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(machines(), &wheel);
    QCOMPARE(toolPage().questions, QStringList());
    // Declined, without a copy that takes over, without a file to store it in: every choice is taken back.
    const QByteArray before = readText(kConfigFile);
    m_desk->desk.process().start = [] { return false; };
    for (const QString complaint : {"", "could not be restarted", kConfigFile}) {
        QCOMPARE(readText(kConfigFile), before);
        if (complaint == kConfigFile)
            QVERIFY(QFile::remove(kConfigFile) && QDir().mkpath("config.ini/full")); // which nobody writes over
        toolPage().questions.clear();
        toolPage().answer = !complaint.isEmpty();
        toolPage().showPanel("Machine Select");
        QCOMPARE(toolPage().notice(), QString());
        machines()->setCurrentIndex(1);
        QVERIFY(toolPage().notice().contains(complaint) && toolPage().notice().isEmpty() == complaint.isEmpty());
        QCOMPARE(machines()->currentIndex() + currentMonitorIndex, 0);
        press("Tool language settings_日本語");
        QVERIFY(toolPage().notice().contains(complaint) && isChecked("Tool language settings_English"));
        QCOMPARE(toolPage().questions, (QStringList{"Machine Select", "Language"}));
        QCOMPARE(m_desk->desk.process().started.size(), std::size_t(complaint.isEmpty() ? 0 : 2));
    }
    QCOMPARE(m_desk->desk.process().quits, 0);
}

void TestToolPages::firmwareVersion()
{
    for (const auto &[reply, text] : {std::pair(0x010A, "v1.a"), {0x0110, "v1.10"}, {-1, "–"}}) {
        deviceState.clear();
        deviceState.store(Command::Firmware, reply);
        servicesPage().updateInterfaceData();
        QCOMPARE(servicesPage().findChild<QLabel *>("displayVersion")->text(), QString(text));
    }
}

void TestToolPages::qrCodeByProductLine()
{
    for (const int line : {1, 2, 3, 0, 1}) {
        deviceState.store(Command::Capability, line << 4);
        servicesPage().updateInterfaceData();
        servicesPage().showPanel("QR Code");
        QCOMPARE(servicesPage().findChild<QLabel *>("qrCode")->isVisible(), line == 1);
        QCOMPARE(servicesPage().findChild<LeftTabButton *>("QR Code")->isVisible(), line == 1);
    }
}

void TestToolPages::knowledgeOpens()
{
    QVERIFY(servicesPage().findChild<LeftTabButton *>("Knowledge")->isHidden()); // there is no address yet
    const AddressTranslator translator;
    servicesPage().updateInterfaceData();
    QVERIFY(!servicesPage().findChild<LeftTabButton *>("Knowledge")->isHidden());
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "takeUrl");
    servicesPage().findChild<QPushButton *>("knowledge")->click();
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    QCOMPARE(m_opened, QUrl(kAddress));
    QCOMPARE(servicesPage().notice(), QString());
}

void TestToolPages::upgradeArguments_data()
{
    columns<int, QString, QString>("line", "code", "arguments");
    row("line 1, en", 1, "en", "XB en\n");
    row("line 2, zh", 2, "zh", "PW zh\n");
    row("line 3, zh_CN", 3, "zh_CN", "EXP zh\n");
    row("no line, another language", 0, "ja_JP", "XB ja_JP\n");
    row("English of a country", 1, "en_US", "XB en\n");
    row("ja alone is shown in English", 1, "ja", "XB en\n");
    row("the system's language", 1, "", QStringLiteral("XB %1\n").arg(toolLanguageOf(QLocale::system().name()).code));
}

void TestToolPages::upgradeArguments()
{
    const auto [line, code] = fetch<int, QString>();
    deviceState.store(Command::Capability, line << 4);
    languageSetting(true, code);
    installUpgrader("#!/bin/sh\necho \"$*\"\nread wait\n");
    auto *button = servicesPage().findChild<QPushButton *>("upgrade");
    button->click();
    auto *upgrade = servicesPage().findChild<QProcess *>();
    QVERIFY(upgrade->waitForReadyRead());
    QTEST(QString::fromLocal8Bit(upgrade->readAllStandardOutput()), "arguments");
    button->click();
    QVERIFY(!servicesPage().notice().isEmpty()); // one upgrade at a time
    QCOMPARE(servicesPage().findChildren<QProcess *>(), QList<QProcess *>{upgrade});
    m_desk->clock.advance(30s);
    QVERIFY(!m_desk->takeLog().contains("start failed!"));
    const auto running = static_cast<pid_t>(upgrade->processId());
    m_services.reset(); // the tool ends, and the upgrade goes on
    QCOMPARE(kill(running, SIGKILL), 0);
}

void TestToolPages::missingAndSlowUpgrader()
{
    auto *button = servicesPage().findChild<QPushButton *>("upgrade");
    qputenv("PATH", m_desk->folder().toLocal8Bit());
    button->click();
    servicesPage().findChild<QProcess *>()->waitForStarted();
    QVERIFY(servicesPage().notice().contains("Flasqon.exe"));
    m_desk->clock.advance(30s);
    QCOMPARE(m_desk->takeLog().count("start failed!"), 1);
    installUpgrader("#!/bin/sh\n");
    button->click();
    m_desk->clock.advance(29999ms);
    QCOMPARE(servicesPage().notice(), QString());
    m_desk->clock.advance(1ms);
    QCOMPARE(m_desk->takeLog().count("start failed!"), 1);
    QVERIFY(!servicesPage().notice().isEmpty());
    QVERIFY(servicesPage().findChild<QProcess *>()->waitForFinished()); // it came after all
    QCOMPARE(servicesPage().notice(), QString());
}

QTEST_MAIN(TestToolPages)
#include "tst_toolpages.moc"
