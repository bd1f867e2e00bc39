#include <QtTest>
#include <QtWidgets>

#include "controls/captionlabel.h"
#include "controls/colorpicker.h"
#include "controls/desktoptoast.h"
#include "controls/lefttabbutton.h"
#include "controls/monitorpicture.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "page/BasicSetting/pagesystemsetting.h"
#include "page/Emberline/lightview.h"
#include "page/Emberline/pageemberline.h"
#include "page/Game/pagegameassistant.h"
#include "page/Game/pagepictureenhanc.h"
#include "page/IO/iotable.h"
#include "page/IO/pageiosetting.h"
#include "page/MultiWindow/pagemultiwindow.h"
#include "page/MultiWindow/windowarranger.h"
#include "page/Office/pageoffice.h"
#include "page/OledCare/pageoledcare.h"
#include "page/Scene/pagescenesetting.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/picturestage.h"
#include "support/sessiondesk.h"
#include "support/wirevalues.h"

using virtualdesk::kForEver;

/// The pages that are a table and its exceptions: scene, picture enhancement, office, I/O, system settings, windows.
class TestPages : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void optionsSend();
    void slidersSend();
    void unknownValuesAreAskedFor();
    void answersDoNotOverwriteTheUser();
    void refusedSettingIsTold();
    void valuesOutOfRange();
    void pointingShowsAndSendsNothing();
    void listByModel();
    void gameRushExcludesAdaptiveSync();
    void functionsThatAreOnAlready();
    void inputPreview();
    void resetFactory();
    void customPaper();
    void restReminder();
    void smallWindowIsArranged_data();
    void smallWindowIsArranged();
    void ownLightColor();
    void lightIsPlayed();

private:
    SettingsPage *anyPage(int which);
    PanelPage *page(int which) { return static_cast<PanelPage *>(anyPage(which)); }
    QPushButton *button(int which, const QString &name) { return anyPage(which)->findChild<QPushButton *>(name); }
    /// Until every question has been answered, and the pages know.
    bool settle()
    {
        const bool idle = QTest::qWaitFor([this] { return m_queue->isIdle(); });
        QCoreApplication::processEvents();
        return idle;
    }

    std::unique_ptr<SessionDesk> m_desk;
    std::unique_ptr<CommandQueue> m_queue;
    std::map<int, std::unique_ptr<SettingsPage>> m_pages;
};

void TestPages::init()
{
    m_desk = std::make_unique<SessionDesk>(10);
    m_queue = std::make_unique<CommandQueue>();
    m_desk->takeCommands();
}

void TestPages::cleanup()
{
    m_pages.clear();
    m_queue.reset();
    m_desk.reset();
}

SettingsPage *TestPages::anyPage(int which)
{
    std::unique_ptr<SettingsPage> &page = m_pages[which];
    if (!page && which == Scene)
        page = std::make_unique<pageSceneSetting>(m_desk->session(), *m_queue);
    else if (!page && which == Picture)
        page = std::make_unique<pagePictureEnhanc>(*m_queue);
    else if (!page && which == Game)
        page = std::make_unique<pageGameAssistant>(*m_queue);
    else if (!page && which == Office)
        page = std::make_unique<PageOffice>(*m_queue);
    else if (!page && which == Lighting)
        page = std::make_unique<pageEmberline>(*m_queue);
    else if (!page && which == Io)
        page = std::make_unique<pageIOSetting>(*m_queue);
    else if (!page && which == Care)
        page = std::make_unique<pageOledCare>(*m_queue);
    else if (!page && which == Windows)
        page = std::make_unique<pageMultiWindow>(*m_queue);
    else if (!page)
        page = std::make_unique<pageSystemSetting>(m_desk->session(), *m_queue);
    if (auto *panels = qobject_cast<PanelPage *>(page.get()))
        panels->build();
    return page.get();
}

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
    QTest::mouseClick(button(System, "Power LED_Level3"), Qt::LeftButton);
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

void TestPages::pointingShowsAndSendsNothing()
{
    PanelPage *office = page(Office);
    office->resize(1000, 680);
    office->show();
    QVERIFY(settle());
    m_desk->takeCommands();
    auto *stage = office->findChild<QWidget *>("pagePaper")->findChild<PictureStage *>();
    const auto seen = [stage] { return stage->picture()->grab().toImage(); };
    const QImage before = seen();
    const QPointF inside(5, 5);
    QEnterEvent enter(inside, inside, inside);
    QCoreApplication::sendEvent(button(Office, "Paper_Paper_B5"), &enter);
    QCOMPARE(stage->preview(), std::optional(std::pair(Command::Paper, 2)));
    QVERIFY(seen() != before);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(button(Office, "Paper_Paper_B5"), &leave);
    QVERIFY(!stage->preview() && seen() == before);
    QCOMPARE(m_desk->takeCommands(), QStringList());

    // What the monitor lays over a game is shown to the pixel: a green cross of 25 pixels in the middle.
    PanelPage *game = page(Game);
    game->resize(1000, 680);
    for (const auto &[command, value] : {std::pair(Command::Crosshair, 1),
                                         {Command::CrosshairShape, 1},
                                         {Command::CrosshairColor, 2},
                                         {Command::CrosshairPlace, 2}})
        deviceState.told(command, value);
    game->showPanel("Game Crosshair");
    game->show();
    auto *shown = game->findChild<QWidget *>("gameCrosshair")->findChild<PictureStage *>()->picture();
    const QRectF screen = shown->screenRect();
    const QPoint middle(qRound(screen.center().x()), qRound(screen.center().y()));
    const QImage image = shown->grab().toImage();
    constexpr QRgb kGreen = 0xff4bff7d;
    for (const auto &[x, isOn] : {std::pair(-13, false), {-12, true}, {0, true}, {12, true}, {13, false}})
        QCOMPARE(image.pixel(middle + QPoint(x, 0)) == kGreen, isOn);
}

void TestPages::listByModel()
{
    for (const auto &[capability, items, motion] : {std::tuple(3, 12, "DyDs"), {0, 10, "DyDs"}, {64, 10, "MPCS"}}) {
        m_pages.clear();
        deviceState.store(Command::Capability, capability);
        QCOMPARE(page(Picture)->panelCount(), items);
        QCOMPARE(page(Picture)->entries()[1]->caption(), QString(motion));
        QVERIFY(button(Picture, motion + QStringLiteral("_Ull-Level3")));
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

using Arrange = std::function<void(WindowArranger &)>;
Q_DECLARE_METATYPE(Arrange)

/// Takes hold of the small window at a part of it, -1 to 1 from its middle, and lets go at a part of the screen.
static Arrange drag(QPointF at, QPointF to, bool letGo = true)
{
    return [=](WindowArranger &windows) {
        const auto point = [](const QRectF &rect, QPointF part) {
            return rect.center() + QPointF(part.x() * rect.width() / 2, part.y() * rect.height() / 2);
        };
        const QPoint end = point(windows.screen(), to).toPoint();
        QTest::mousePress(&windows, Qt::LeftButton, {}, point(windows.insetNow(), at).toPoint());
        for (const QPoint &way : {QPoint(0, 0), end / 2, end}) // right across the other corners
            QTest::mouseMove(&windows, way);
        letGo ? QTest::mouseRelease(&windows, Qt::LeftButton, {}, end) : QTest::keyClick(&windows, Qt::Key_Escape);
    };
}

static Arrange keys(std::initializer_list<Qt::Key> pressed)
{
    return [pressed = std::vector(pressed)](WindowArranger &windows) {
        for (const Qt::Key key : pressed)
            QTest::keyClick(&windows, key);
    };
}

void TestPages::smallWindowIsArranged_data()
{
    columns<Arrange, int, QString>("act", "mode", "sent");
    // It begins in the upper right corner, in the middle size: its free corner is the lower left one.
    const QPointF middle(0, 0);
    row("to a corner", drag(middle, {-0.9, 0.9}), 1, "W 55=2");
    row("back where it was", drag(middle, {0.3, -0.3}), 1, "");
    row("and not let go of", drag(middle, {-0.9, 0.9}, false), 1, "");
    row("free corner outwards", drag({-1, 1}, {-0.5, 0.5}), 1, "W 54=2");
    row("lower edge inwards", drag({0, 1}, {0, -0.9}), 1, "W 54=0");
    row("left edge, hardly", drag({-1, 0}, {0.25, 0}), 1, "");
    row("an edge that does not move", drag({0.9, 0.2}, {0.95, -0.6}), 1, "");
    row("beside it", drag({-2, 2}, {-0.9, 0.9}), 1, "");
    row("keys", keys({Qt::Key_Right, Qt::Key_Left, Qt::Key_Down, Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Minus}), 1,
        "W 55=0 W 55=2 W 54=2 W 54=1");
    row("round the corners", keys({Qt::Key_Space, Qt::Key_Space, Qt::Key_Space, Qt::Key_Space}), 1,
        "W 55=3 W 55=2 W 55=0 W 55=1");
    for (const int mode : {0, 2}) {
        row(mode == 0 ? "one window" : "side by side", keys({Qt::Key_Left, Qt::Key_Plus, Qt::Key_Space}), mode, "");
        row(mode == 0 ? "dragged in one" : "dragged side by side", drag({0.6, -0.6}, {-0.9, 0.9}), mode, "");
    }
}

void TestPages::smallWindowIsArranged()
{
    const auto [act, mode, sent] = fetch<Arrange, int, QString>();
    for (const auto &[code, value] : {std::pair(0x50, mode), {0x54, 1}, {0x55, 1}})
        deviceState.told(Command(code), value);
    auto *windows = static_cast<pageMultiWindow *>(page(Windows))->arranger();
    for (QWidget *each : {windows->parentWidget(), static_cast<QWidget *>(windows)})
        each->resize(500, 330);
    act(*windows);
    QCOMPARE(m_desk->takeCommands().join(' '), sent);
    QCOMPARE(windows->isUsable(), mode == 1);
    QCOMPARE(windows->toolTip().isEmpty(), mode == 1);
    QCOMPARE(button(Windows, "Place_Top Left")->isEnabled(), mode == 1);
    QVERIFY(!windows->valueText().isEmpty());
}

/// Three values that are told as one, and what is known of the lamps then.
void TestPages::ownLightColor()
{
    auto *lighting = static_cast<pageEmberline *>(page(Lighting));
    deviceState.told(Command::LightMode, 1);
    for (const int color : {6, 8}) {
        button(Lighting, color == 8 ? "Light Color_Custom" : "Light Color_White")->click();
        lighting->updateInterfaceData();
        QCOMPARE(!lighting->ownColor()->parentWidget()->isHidden(), color == 8);
    }
    for (const auto &[refused, said] :
         {std::pair(std::vector<std::uint8_t>(), ""), {{0x7B}, "only a part"}, {{0x7A, 0x7B, 0x7C}, "did not take"}}) {
        m_desk->takeCommands();
        for (const std::uint8_t code : refused)
            m_desk->monitor().refuse(code, kForEver);
        Q_EMIT lighting->ownColor()->sigColorChanged(QColor(250, 128, 7));
        const QStringList sent = m_desk->takeCommands().filter("W");
        for (const char *part : {"W 7a=250", "W 7b=128", "W 7c=7"})
            QVERIFY2(!sent.filter(part).isEmpty(), part);
        QVERIFY2(*said ? lighting->notice().contains(said) : lighting->notice().isEmpty(), said);
        m_desk->monitor().recover();
    }
}

/// While somebody can see it, something moves and the user lets it; each lamp as it is set.
void TestPages::lightIsPlayed()
{
    for (const auto &[command, value] : {std::pair(Command::LightMode, 1),
                                         {Command::LightColor, 0},
                                         {Command::LightBrightness, 100},
                                         {Command::LampBeltBrightness, 0},
                                         {Command::LampBeltColor, 1},
                                         {Command::LampBeltFrontColor, 1},
                                         {Command::LampBeltRearColor, 1},
                                         {Command::LampBeltEffect, 0},
                                         {Command::LightFrontBrightness, 0},
                                         {Command::LightRearBrightness, 0}}) {
        deviceState.told(command, value);
        m_desk->monitor().setValue(static_cast<std::uint8_t>(command), static_cast<std::uint16_t>(value));
    }
    page(Lighting)->show();
    auto *view = page(Lighting)->findChild<QWidget *>("pageLightMode")->findChild<LightView *>();
    QCOMPARE(view->isVisible() && !view->isPlaying(), true);
    const QRgb red = view->frame().ring[0];
    QVERIFY(qRed(red) == 255 && qGreen(red) < 60 && view->frame().ring[31] == red);
    for (const auto &[event, color] : {std::pair(QEvent::Enter, qRgb(0, 0, 0)), {QEvent::Leave, red}}) {
        QEnterEvent enter({}, {}, {});
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(button(Lighting, "Light Mode_Close"), event == QEvent::Enter ? &enter : &leave);
        QCOMPARE(view->frame().ring[0], color); // tried out, and nothing is sent
    }
    QVERIFY(settle() && m_desk->takeCommands().filter("W").isEmpty());
    deviceState.told(Command::LightMode, 2); // it breathes
    page(Lighting)->updateInterfaceData();
    QVERIFY(view->isPlaying());
    std::set<QRgb> seen;
    for (int frame = 0; frame < 100; ++frame) {
        m_desk->clock.advance(platform::milliseconds(50));
        seen.insert(view->frame().ring[0]);
    }
    QVERIFY(seen.size() > 20);
    QVERIFY(settle());
    for (const bool isHidden : {true, false}) {
        m_desk->desk.animatesControls = isHidden;
        page(Lighting)->setVisible(!isHidden);
        QVERIFY(settle());
        QVERIFY(!view->isPlaying());
        m_desk->clock.advance(platform::milliseconds(50));
        QCOMPARE(m_desk->clock.tasksWaiting(), std::size_t(0)); // nothing runs on
    }
}

QTEST_MAIN(TestPages)
#include "tst_pages.moc"
