#include <QtTest>
#include <QtWidgets>

#include "controls/captionlabel.h"
#include "controls/desktoptoast.h"
#include "controls/lefttabbutton.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "page/BasicSetting/pagesystemsetting.h"
#include "page/Game/pagepictureenhanc.h"
#include "page/IO/iotable.h"
#include "page/IO/pageiosetting.h"
#include "page/Office/pageoffice.h"
#include "page/Scene/pagescenesetting.h"
#include "page/engine/optiongrouprow.h"
#include "support/pagessuite.h"

using virtualdesk::kForEver;

/// The pages that are a table and its exceptions: scene, picture enhancement, office, I/O, system settings, windows.
class TestPages : public PagesSuite
{
    Q_OBJECT
private Q_SLOTS:
    void optionsSend();
    void slidersSend();
    void unknownValuesAreAskedFor();
    void answersDoNotOverwriteTheUser();
    void refusedSettingIsTold();
    void valuesOutOfRange();
    void listByModel();
    void gameRushExcludesAdaptiveSync();
    void functionsThatAreOnAlready();
    void inputPreview();
    void resetFactory();
    void customPaper();
    void restReminder();
};

void TestPages::optionsSend()
{
    std::set<QPushButton *> pressed;
    for (const auto &[which, group, code, values] : kOptions) {
        for (const QString &option : QString::fromUtf8(values).split('|')) {
            const QString name = QString::fromUtf8(group) + '_' + option.section('=', 0, 0);
            const int value = option.section('=', 1).toInt();
            QPushButton *pushed = button(which, name);
            QVERIFY2(pushed, qPrintable(name));
            pressed.insert(pushed);
            pushed->click();
            QCOMPARE(m_desk->takeCommands(), QStringList{QStringLiteral("W %1=%2").arg(code).arg(value)});
            QCOMPARE(deviceState.value(Command(QString(code).toInt(nullptr, 16))), value);
            anyPage(which)->updateInterfaceData(); // echoes nothing
            QVERIFY2(pushed->isChecked() != (values == kAlwaysOff && name.endsWith("Enable")), qPrintable(name));
        }
    }
    for (int which = 0; which < kPageNames; ++which) {
        for (const OptionGroupRow *row : anyPage(which)->optionGroups()) {
            QCOMPARE(row->findChild<CaptionLabel *>()->text(),
                     QString::fromUtf8(row->group().caption ? row->group().caption : row->group().label));
            for (QPushButton *offered : row->buttons())
                QVERIFY2(pressed.contains(offered), qPrintable(offered->objectName()));
        }
    }
}

void TestPages::slidersSend()
{
    button(Scene, "Color Temperature_User1")->click(); // whose colours are then set
    m_desk->takeCommands();
    QMap<int, int> found;
    for (const auto &[which, table] : kSliders) {
        for (const QString &entry : QString(table).split('|')) {
            static const QRegularExpression form("(.+) (..) (\\d+)-(\\d+)(?: (.))?$");
            const QRegularExpressionMatch part = form.match(entry);
            SliderWidget *widget = anyPage(which)->slider(part.captured(1).toUtf8().constData());
            QVERIFY2(widget, qPrintable(entry));
            ++found[which];
            const auto command = Command(part.captured(2).toInt(nullptr, 16));
            for (const int end : {part.captured(3).toInt(), part.captured(4).toInt()}) {
                widget->setValue(part.captured(3).toInt() + 1);
                m_queue->drain();
                m_desk->takeCommands();
                const int before = deviceState.value(command);
                widget->slider()->setSliderDown(true);
                widget->slider()->setSliderPosition(end == part.captured(3).toInt() ? -5 : 500);
                m_queue->drain();
                QCoreApplication::processEvents(); // what the queue has to tell
                const QStringList sent{QStringLiteral("W %1=%2").arg(part.captured(2)).arg(end)};
                QCOMPARE(m_desk->takeCommands(), part.captured(5).isEmpty() ? sent : QStringList());
                QCOMPARE(deviceState.value(command), part.captured(5) == "s" ? before : end);
                widget->slider()->setSliderDown(false);
                m_queue->drain();
                QCOMPARE(m_desk->takeCommands(), part.captured(5).isEmpty() ? QStringList() : sent);
                QCOMPARE(deviceState.value(command), end);
            }
        }
    }
    for (int which = 0; which < kPageNames; ++which)
        QCOMPARE(int(anyPage(which)->sliders().size()), found[which]);
}

void TestPages::unknownValuesAreAskedFor()
{
    m_desk->monitor().setValue(0xC1, 77);
    m_desk->monitor().refuse(0xC2, kForEver);
    m_desk->takeLog();
    QVERIFY(page(System)->slider("H-Position")->isUnknown());
    QVERIFY(!page(System)->slider("Audio Volume")->isUnknown()); // in the snapshot already
    page(System)->show();
    page(System)->showPanel("OSD Setting");
    QVERIFY(settle());
    QCOMPARE(page(System)->slider("H-Position")->value(), 77);
    QVERIFY(page(System)->slider("V-Position")->isUnknown());
    QCOMPARE(m_desk->takeLog().filter("errorCode"), QStringList());
    QCOMPARE(m_desk->clock.takeWaits(), QList<int>()); // nobody waits for a code that is refused
    const QStringList asked = m_desk->takeCommands();
    QVERIFY(asked.contains("R c1") && !asked.contains("R c5") && asked.filter("W").isEmpty()); // only what is in sight
    m_desk->monitor().recover();
    for (const auto &[later, again] :
         {std::pair(1, QStringList{"R c2"}), {2500, {"R c0", "R c1", "R c2", "R c3", "R e3"}}}) {
        m_desk->clock.advance(platform::milliseconds(later));
        page(System)->hide();
        page(System)->show();
        QVERIFY(settle());
        QCOMPARE(m_desk->takeCommands(), again); // at once only what was not told
    }
    QVERIFY(!page(System)->slider("V-Position")->isUnknown());
}

void TestPages::answersDoNotOverwriteTheUser()
{
    {
        const auto busy = lockTransport(); // the question is on its way
        page(System)->show();
        page(System)->showPanel("Power LED");
        deviceState.wish(Command::PowerLed, 4);
    }
    QVERIFY(settle());
    QCOMPARE(deviceState.value(Command::PowerLed), 4);
    QVERIFY(button(System, "Power LED_Level3")->isChecked());
}

void TestPages::refusedSettingIsTold()
{
    m_desk->monitor().refuse(0xC5, 2);
    page(System)->slider("V-Position")->slider()->setSliderPosition(7); // is taken first, and told afterwards
    QTest::mouseClick(button(System, "Power LED_Level3"), Qt::LeftButton);
    QVERIFY(settle());
    QVERIFY(page(System)->notice().contains("did not take"));
    QTest::mouseClick(button(System, "Power LED_Level3"), Qt::LeftButton);
    QCOMPARE(page(System)->notice(), QString());
}

void TestPages::valuesOutOfRange()
{
    deviceState.store(Command::OsdHPosition, 5000);
    deviceState.store(Command::PowerLed, 99);
    page(System)->updateInterfaceData();
    QCOMPARE(page(System)->slider("H-Position")->value(), 100);
    for (const QPushButton *option : page(System)->optionGroup(Command::PowerLed)->buttons())
        QVERIFY(!option->isChecked());
    QCOMPARE(m_desk->takeCommands(), QStringList());
}

void TestPages::listByModel()
{
    m_pages.clear();
    page(Picture)->show();
    for (const auto &[capability, items, motion] :
         {std::tuple(64, 10, "MPCS"), {3, 12, "DyDs"}, {0, 10, "DyDs"}, {64, 10, "MPCS"}}) {
        page(Picture)->showPanel("Localdimming"); // which not every monitor has
        const bool isLost = page(Picture)->currentPanel() != 0 && capability != 3;
        deviceState.told(Command::Capability, capability); // another monitor may have come
        QVERIFY(settle());
        QCOMPARE(page(Picture)->panelCount(), items);
        QCOMPARE(page(Picture)->entries().size(), std::size_t(items));
        QCOMPARE(page(Picture)->entries()[1]->caption(), QString(motion));
        QVERIFY(button(Picture, motion + QStringLiteral("_Ull-Level3")));
        QCOMPARE(page(Picture)->notice().contains("Localdimming"), isLost);
        QCOMPARE(anyPage(Scene)->slider(Command::HaloControl)->isHidden(), (capability & 2) == 0);
        page(Picture)->showPanel(0);
    }
}

void TestPages::gameRushExcludesAdaptiveSync()
{
    QTest::mouseClick(button(Picture, "Game Rush_         Enable"), Qt::LeftButton);
    m_desk->takeCommands();
    QTest::mouseClick(page(Picture)->entries().back(), Qt::LeftButton);
    QCOMPARE(page(Picture)->currentPanel(), 0);
    QVERIFY(page(Picture)->entries().front()->isChecked());
    QCOMPARE(page(Picture)->notice(), QStringLiteral("Game Rush already enabled!"));
    QTest::mouseClick(button(Picture, "Game Rush_         Disable"), Qt::LeftButton);
    QTest::mouseClick(page(Picture)->entries().back(), Qt::LeftButton);
    QCOMPARE(page(Picture)->currentPanel(), page(Picture)->panelCount() - 1);
    QCOMPARE(page(Picture)->notice(), QString());
}

void TestPages::functionsThatAreOnAlready()
{
    m_desk->monitor().setValue(0x61, 1);
    deviceState.told(Command::QuickBoot, 1);
    deviceState.told(Command::Cec, 0);
    page(Io)->updateInterfaceData();
    QTest::mouseClick(button(Io, "CEC_         Enable"), Qt::LeftButton);
    QCOMPARE(page(Io)->notice(), QStringLiteral("Quick Boot already enabled!"));
    QVERIFY(button(Io, "CEC_         Disable")->isChecked()); // as before the press
    QCOMPARE(m_desk->takeCommands(), QStringList{"R 61"});    // asked before it is refused
    QTest::mouseClick(button(Io, "Quick Boot_         Disable"), Qt::LeftButton);
    QTest::mouseClick(button(Io, "CEC_         Enable"), Qt::LeftButton);
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W 61=0", "W d9=1"}));
    QCOMPARE(page(Io)->notice(), QString());
    for (const char *option : {"Menu Lock_         Enable", "Menu Lock_         Enable"})
        QTest::mouseClick(button(System, option), Qt::LeftButton);
    QCOMPARE(page(System)->notice(), QStringLiteral("Menu lock already opened!"));
    QTest::mouseClick(button(System, "Menu Lock_         Disable"), Qt::LeftButton);
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W c4=1", "R c4", "W c4=0"})); // opened once
}

void TestPages::inputPreview()
{
    deviceState.store(Command::InputSignal, 1);
    page(Io)->updateInterfaceData();
    auto *preview = page(Io)->findChild<QLabel *>(kPreviewPart);
    auto *now = page(Io)->findChild<QLabel *>(kInputNowPart);
    QVERIFY(!preview->isHidden());
    QCOMPARE(now->text(), QStringLiteral("On now: DP1"));
    QTest::mouseClick(button(Io, "Input Signal_Auto"), Qt::LeftButton);
    QVERIFY(preview->isHidden());
    QTest::mouseClick(button(Io, "Input Signal_HDMI2"), Qt::LeftButton);
    QVERIFY(!preview->isHidden());
    QCOMPARE(now->text(), QStringLiteral("On now: DP1")); // the picture still comes from there
}

void TestPages::resetFactory()
{
    QSignalSpy begins(static_cast<pageSystemSetting *>(page(System)), &pageSystemSetting::resetBegins);
    QTest::mouseClick(button(System, "Reset Factory_No"), Qt::LeftButton);
    QCOMPARE(m_desk->takeCommands(), QStringList());
    m_desk->monitor().refuse(0xC7, 2); // the command with its retry
    QTest::mouseClick(button(System, "Reset Factory_Yes"), Qt::LeftButton);
    QVERIFY(begins.isEmpty() && !page(System)->notice().isEmpty());
    QCOMPARE(settingsInt("SystemMode/Brightness", 0, false), 0);
    QCOMPARE(m_desk->clock.tasksWaiting(), std::size_t(0));
    m_desk->takeCommands();
    QTest::mouseClick(button(System, "Reset Factory_Yes"), Qt::LeftButton);
    QCOMPARE(m_desk->takeCommands(), QStringList{"W c7=0"});
    QCOMPARE(begins.count(), 1);
    QCOMPARE(settingsInt("SystemMode/Brightness", 0, false), 10);
    m_desk->clock.advance(platform::milliseconds(19999));
    QVERIFY(m_desk->desk.process().started.empty());
    int mark = 0;
    m_desk->desk.process().start = [&mark] {
        mark = settingsInt(kRestartKey, 0, false);
        return true;
    };
    m_desk->clock.advance(platform::milliseconds(1));
    QCOMPARE(m_desk->desk.process().started.size(), std::size_t(1)); // the search of a reset is a fresh start
    QCOMPARE(mark, 1);                                               // which finds the mark already
}

void TestPages::customPaper()
{
    auto *width = page(Office)->findChild<QSpinBox *>("paperWidth");
    auto *height = page(Office)->findChild<QSpinBox *>("paperHeight");
    QVERIFY(width->parentWidget()->isHidden());
    QTest::mouseClick(button(Office, "Paper_Custom Size"), Qt::LeftButton);
    QVERIFY(!width->parentWidget()->isHidden());
    m_desk->takeCommands();
    QTest::mouseClick(button(Office, "paperApply"), Qt::LeftButton); // begins with A4
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W ec=4", "W ef=210", "W ef=33065"}));
    height->setValue(148);
    width->setValue(100000);
    QCOMPARE(width->value(), int(deviceState.officeMaximumHorizontal));
    QTest::mouseClick(button(Office, "paperApply"), Qt::LeftButton);
    QCOMPARE(m_desk->monitor().protocolFaults().badValues, 0);
    PageOffice next(*m_queue);
    QCOMPARE(next.findChild<QSpinBox *>("paperWidth")->value(), width->value());
    QCOMPARE(next.findChild<QSpinBox *>("paperHeight")->value(), 148);
    m_desk->desk.fileFaults.replace.failFrom(1);
    height->setValue(149);
    QTest::mouseClick(button(Office, "paperApply"), Qt::LeftButton);
    QVERIFY(page(Office)->notice().contains("config.ini"));
}

void TestPages::restReminder()
{
    auto *office = static_cast<PageOffice *>(page(Office));
    QTest::mouseClick(button(Office, "Eyeshield Remind_30s"), Qt::LeftButton);
    for (const auto &[later, shown] : {std::pair(29999, false), {1, true}, {10000, false}, {20000, true}}) {
        QCoreApplication::processEvents();                    // what the monitor took is told
        m_desk->clock.advance(platform::milliseconds(later)); // goes away by itself, and comes again
        QCOMPARE(office->toast()->isVisible(), shown);
    }
    QTest::mouseClick(button(Office, "Eyeshield Remind_Close"), Qt::LeftButton);
    QCoreApplication::processEvents();
    m_desk->clock.advance(std::chrono::hours(9));
    QVERIFY(!office->toast()->isVisible());
    deviceState.store(Command::RestTimer, 1); // as it is read when the program starts
    office->updateInterfaceData();
    m_desk->clock.advance(platform::milliseconds(30000));
    QVERIFY(office->toast()->isVisible());
}

QTEST_MAIN(TestPages)
#include "tst_pages.moc"
