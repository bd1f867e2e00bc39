#include <QPushButton>
#include <QtTest>

#include "controls/messagestrip.h"
#include "controls/monitorpicture.h"
#include "controls/nowheelslider.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "page/Scene/pagescenesetting.h"
#include "page/Scene/scenetable.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/picturestage.h"
#include "support/sessiondesk.h"

using namespace std::chrono_literals;

class TestScenePage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void fillingSendsNothing();
    void dragEndsOnTheLastValue();
    void sharpnessKeepsOnlyWhatWasTaken();
    void colorTemperature();
    void colorEnhanceHoldsSaturation();
    void motionOptionsByScene();
    void halves();
    void halfWithUnreadBlock();
    void chooseScene();
    void refusedModeIsTriedAgain();
    void factoryEditsAreNotTheUsers();
    void customHalfIsPictured();

private:
    void start(int scene);
    QPushButton *option(Command command, int value) const { return m_page->optionGroup(command)->buttonOf(value); }
    QPushButton *half(const char *label) const;
    void press(const char *slider, int value);

    std::unique_ptr<SessionDesk> m_desk;
    std::unique_ptr<CommandQueue> m_queue;
    std::unique_ptr<pageSceneSetting> m_page;
};

void TestScenePage::start(int scene)
{
    m_desk = std::make_unique<SessionDesk>(scene);
    m_queue = std::make_unique<CommandQueue>();
    m_page = std::make_unique<pageSceneSetting>(m_desk->session(), *m_queue);
    m_page->resize(1000, 680);
    m_page->show();
    m_desk->takeCommands();
}

void TestScenePage::cleanup()
{
    m_page.reset();
    m_queue.reset();
    QCOMPARE(m_desk ? m_desk->monitor().protocolFaults().total() : 0, 0);
    m_desk.reset();
}

QPushButton *TestScenePage::half(const char *label) const
{
    for (QPushButton *button : m_page->findChildren<QPushButton *>()) {
        if (button->text() == QLatin1String(label))
            return button;
    }
    return nullptr;
}

/// Moves a slider to a value and lets go, as a user does.
void TestScenePage::press(const char *slider, int value)
{
    NoWheelSlider *control = m_page->slider(slider)->slider();
    control->setSliderDown(true);
    control->setSliderPosition(value);
    control->setSliderDown(false);
    m_queue->drain();
    QCoreApplication::processEvents(); // what the queue has to tell
}

void TestScenePage::fillingSendsNothing()
{
    start(10);
    const QByteArray block = m_desk->monitor().block(10);
    QCOMPARE(m_page->slider("Hue_C")->value(), int(block[19]));        // hues: R, G, B, C, M, Y
    QCOMPARE(m_page->slider("Saturation_Y")->value(), int(block[25])); // saturations: R, G, B, Y, C, M
    QVERIFY(option(Command::LocalDimming, block[34])->isChecked());
    for (int round = 0; round < 3; ++round) {
        deviceState.store(Command::Brightness, 10 * round);
        deviceState.store(Command::ColorTemperature, 8 + round);
        m_page->updateInterfaceData();
        m_page->updateControlText();
    }
    m_queue->drain();
    QCOMPARE(m_desk->takeRequests(), QStringList());
    QCOMPARE(m_page->slider("Brightness")->value(), 20);
}

void TestScenePage::dragEndsOnTheLastValue()
{
    start(10);
    NoWheelSlider *control = m_page->slider("Brightness")->slider();
    control->setSliderDown(true);
    for (int value = 0; value <= 100; ++value)
        control->setSliderPosition(value);
    control->setSliderPosition(37);
    control->setSliderDown(false);
    // A click right behind the drag must not overtake its last value.
    QTest::mouseClick(option(Command::Gamma, 4), Qt::LeftButton);
    const QStringList commands = m_desk->takeCommands();
    QCOMPARE(commands.last(), QStringLiteral("W 26=4"));
    QCOMPARE(commands.at(commands.size() - 2), QStringLiteral("W 10=37"));
    QCOMPARE(int(m_desk->monitor().value(0x10)), 37);
}

void TestScenePage::sharpnessKeepsOnlyWhatWasTaken()
{
    start(10);
    press("Sharpness", 7);
    QCOMPARE(deviceState.value(Command::Sharpness), 7);
    m_desk->monitor().refuse(0x87, 2);
    press("Sharpness", 6);
    QVERIFY(!deviceState.sceneBlockValid());
    QCOMPARE(m_page->slider("Sharpness")->value(), 6); // the page leaves its control where the user put it
}

void TestScenePage::colorTemperature()
{
    start(10);
    QTest::mouseClick(option(Command::ColorTemperature, 9), Qt::LeftButton);
    QVERIFY(m_page->slider("UserR")->isEnabled());
    QVERIFY(!m_page->slider(kNightViewSlider)->isEnabled());
    QCOMPARE(m_page->slider("UserG")->value(), deviceState.value(Command::User2Green));
    QTest::mouseClick(option(Command::ColorTemperature, 0), Qt::LeftButton);
    for (const char *name : kUserColourSliders) {
        QVERIFY(!m_page->slider(name)->isEnabled());
        QCOMPARE(m_page->slider(name)->value(), 0);
    }
    QTest::mouseClick(option(Command::ColorTemperature, 7), Qt::LeftButton);
    QVERIFY(m_page->slider(kNightViewSlider)->isEnabled());
    m_queue->drain();
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W 14=9", "W 14=0", "W 14=7"})); // the sliders' moves sent nothing

    for (int i = 0; i < 9; ++i) {
        QTest::mouseClick(option(Command::ColorTemperature, 8 + i / 3), Qt::LeftButton);
        m_desk->takeCommands();
        press(kUserColourSliders[i % 3], 11 + i);
        QCOMPARE(m_desk->takeCommands(), QStringList{QStringLiteral("W %1=%2").arg(0x16 + i, 0, 16).arg(11 + i)});
    }
    QTest::mouseClick(option(Command::ColorTemperature, 8), Qt::LeftButton);
    QCOMPARE(m_page->slider("UserB")->value(), 13); // each preset keeps its own

    NoWheelSlider *red = m_page->slider("UserR")->slider();
    red->setSliderDown(true);
    red->setSliderPosition(44);
    m_queue->drain();
    QCoreApplication::processEvents();
    QCOMPARE(red->value(), 44);
    deviceState.told(Command::ColorTemperature, 9); // by the monitor's own buttons
    QCoreApplication::processEvents();
    QVERIFY(!red->isSliderDown());
    QCOMPARE(red->value(), 14);
}

void TestScenePage::colorEnhanceHoldsSaturation()
{
    for (const auto &[scene, enhance] : {std::pair(10, 0), {10, 3}, {22, 0}, {22, 3}}) { // 22 is black and white
        start(scene);
        deviceState.store(Command::ColorEnhance, enhance);
        m_page->updateInterfaceData();
        QCOMPARE(m_page->slider("Saturation_R")->isEnabled(), scene == 10 && enhance == 0);
        QCOMPARE(m_page->slider("Hue_R")->isEnabled(), scene == 10);
        QCOMPARE(m_page->slider("Color Enchance")->isEnabled(), scene == 10);
        if (scene == 10) {
            press("Color Enchance", enhance == 0 ? 1 : 0);
            QCOMPARE(m_page->slider("Saturation_M")->isEnabled(), enhance != 0);
        }
        deviceState.store(Command::SceneMode, scene - 1); // the factory half is as colourful
        m_page->updateInterfaceData();
        QCOMPARE(m_page->slider("Hue_R")->isEnabled(), scene == 10);
        cleanup();
    }
}

void TestScenePage::motionOptionsByScene()
{
    start(10);
    for (const auto &[scene, enabled] :
         {std::pair(26, QList<int>{2, 6, 7, 8}), {28, {2, 3, 4, 5}}, {10, {2, 3, 4, 5, 6, 7, 8}}}) {
        deviceState.store(Command::SceneMode, scene);
        m_page->updateInterfaceData();
        QList<int> found;
        for (int value = 2; value <= 8; ++value) {
            if (option(Command::MotionTech, value)->isEnabled())
                found.append(value);
        }
        QCOMPARE(found, enabled);
        QCOMPARE(m_page->optionGroup(Command::LocalDimming)->isHidden(), scene == 26);
    }
}

void TestScenePage::halves()
{
    start(10);
    QMap<QRgb, QStringList> dots;
    for (SliderWidget *slider : m_page->sliders()) {
        if (slider->name().contains('_'))
            dots[slider->grab().toImage().pixel(4, slider->height() / 2)].append(slider->name());
    }
    QCOMPARE(dots.size(), 6); // a colour's two sliders have one dot
    for (const QStringList &names : std::as_const(dots))
        QVERIFY(names.size() == 2 && names.front().section('_', 1) == names.back().section('_', 1));
    cleanup();
    const auto rows = {std::tuple(10, "        Default", QStringList{"W 22=9"}),
                       {10, "        Custom", QStringList()}, // is on already
                       {9, "        Default", QStringList()}};
    for (const auto &[scene, label, sent] : rows) {
        start(scene);
        QSignalSpy shown(m_page.get(), &pageSceneSetting::viewShown);
        QTest::mouseClick(half(label), Qt::LeftButton);
        QCOMPARE(m_desk->takeCommands(), sent);
        const bool isDefault = QByteArray(label).contains("Default");
        QCOMPARE(shown.last().first().toBool(), isDefault);
        QCOMPARE(deviceState.value(Command::SceneMode), isDefault ? 9 : 10);
        cleanup();
    }
}

void TestScenePage::halfWithUnreadBlock()
{
    for (const bool readable : {true, false}) {
        start(9); // starting in the factory half, the block has not been read
        const int before = m_page->slider("Brightness")->value();
        QSignalSpy begins(m_page.get(), &pageSceneSetting::modeChangeBegins);
        QSignalSpy ended(m_page.get(), &pageSceneSetting::modeChangeEnded);
        m_desk->monitor().setBlock(10, QByteArray(1, char(77)));
        m_desk->monitor().dropChunks(readable ? 0 : virtualdesk::kForEver);
        {
            const auto busy = lockTransport(); // before the worker's first request
            half("Make it your own")->setFocus();
            if (readable)
                QTest::mouseClick(half("        Custom"), Qt::LeftButton);
            else
                QTest::keyClick(half("Make it your own"), Qt::Key_Space); // does the same
            deviceState.told(Command::SceneMode, 9);                      // as a reconnection meanwhile finds it
        }
        QCOMPARE(begins.count(), 1);
        QTRY_COMPARE(ended.count(), 1);
        const QStringList sent = m_desk->takeCommands();
        if (readable)
            QCOMPARE(sent, QStringList({"R 22", "R 0a"}) + QStringList(10, "R fe") + QStringList("W 22=10"));
        QVERIFY(sent.contains("W 22=10")); // what cannot be read is asked for once more in the background
        QVERIFY(m_page->focusWidget() && m_page->focusWidget()->isVisible()); // it went with the half
        QVERIFY(half("        Custom")->isChecked() && m_page->slider("Brightness")->isVisible());
        QCOMPARE(m_page->slider("Brightness")->value(), readable ? 77 : before);
        QCOMPARE(deviceState.sceneBlockValid(), readable);
        QCOMPARE(deviceState.value(Command::SceneMode), 10);
        cleanup();
    }
}

void TestScenePage::chooseScene()
{
    start(10);
    m_page->chooseScene(9); // on already, in its custom half
    QCOMPARE(m_desk->takeCommands(), QStringList());
    m_page->slider("Brightness")->slider()->setSliderPosition(5);
    m_page->chooseScene(13);
    QCOMPARE(m_desk->takeCommands(), (QStringList{"W 10=5", "W 22=13"}));
    QCOMPARE(int(m_desk->monitor().block(10).at(0)), 5); // the drag belonged to the mode before
    QVERIFY(!deviceState.sceneBlockValid());             // and the block on the page does no longer
    QVERIFY(m_page->isDefaultView());
    QCOMPARE(deviceState.lastSceneModeSent.load(), 13);
}

/// The monitor is asked for its mode as soon as it took none, and tells the one that it is in.
void TestScenePage::refusedModeIsTriedAgain()
{
    const auto rows = {std::tuple(13, "Night Mode", "W 22=13"), {9, "Movie Mode: Default", "W 22=9"}};
    for (const auto &[wished, name, sent] : rows) {
        start(10);
        setReconnectHandler([] { deviceState.told(Command::SceneMode, 10); });
        m_desk->monitor().refuse(0x22, 2); // the command with its retry
        if (wished == 13)
            m_page->chooseScene(13);
        else
            QTest::mouseClick(half("        Default"), Qt::LeftButton);
        QCOMPARE(m_page->notice(), QStringLiteral("The monitor did not take \"%1\".").arg(QLatin1String(name)));
        QTRY_VERIFY(half("        Custom")->isChecked());
        m_desk->clock.advance(1min); // whatever is still known of the refusal
        deviceState.told(Command::SceneMode, 10);
        m_desk->takeCommands();
        m_page->findChild<MessageStrip *>()->button()->click(); // "Try again"
        QCOMPARE(m_desk->takeCommands(), QStringList{QLatin1String(sent)});
        QCOMPARE(m_page->notice(), QString());
        cleanup();
    }
}

void TestScenePage::factoryEditsAreNotTheUsers()
{
    start(10);
    QTest::mouseClick(half("        Default"), Qt::LeftButton);
    deviceState.wish(Command::BlackLevel, 3); // on another page, while the factory mode is on
    QTest::mouseClick(half("        Custom"), Qt::LeftButton);
    QCOMPARE(m_page->slider("Black Level")->value(), int(m_desk->monitor().block(10).at(5)));
}

/// Each setting shows at once, and an option before it is chosen; what is not in sight is not even built.
void TestScenePage::customHalfIsPictured()
{
    start(1);
    QVERIFY(!m_page->findChild<PictureStage *>());
    cleanup();
    start(2);
    auto *stage = m_page->findChild<PictureStage *>();
    const auto seen = [stage] { return stage->picture()->grab().toImage(); };
    QCoreApplication::processEvents();
    QVERIFY(stage->isVisible());
    QList<QImage> pictures{seen()};
    for (const auto &[command, value] :
         {std::pair(Command::Gamma, 0), {Command::ColorTemperature, 6}, {Command::GrayResponse, 4}}) {
        QEnterEvent enter({}, {}, {});
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(option(command, value), &enter);
        QVERIFY(!pictures.contains(seen()));
        pictures.append(seen());
        QCoreApplication::sendEvent(option(command, value), &leave);
        QCOMPARE(seen(), pictures.first());
    }
    QCOMPARE(m_desk->takeCommands().filter("W"), QStringList());
    deviceState.told(Command::Brightness, 5);
    QVERIFY(seen() != pictures.first());
}

QTEST_MAIN(TestScenePage)
#include "tst_scenepage.moc"
