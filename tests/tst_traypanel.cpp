#include <QAbstractItemView>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "support/windowfixture.h"
#include "tray/trayicon.h"
#include "tray/traypanel.h"
#include "tray/traypanelopener.h"
#include "tray/traypanelplace.h"

using namespace std::chrono_literals;

Q_DECLARE_METATYPE(TrayPressFacts)
Q_DECLARE_METATYPE(TrayPress)

/// The panel of the tray icon, while the window is in the tray.
class TestTrayPanel : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void place_data();
    void place();
    void presses_data();
    void presses();
    void opensTrue();
    void wheelIsPaced();
    void sceneGoesThePagesWay();
    void saysWhatIsNotConfirmed();
    void choicesAreKept();
    void keyboard();

private:
    void open(int scene);
    void settle();
    void wheel(QWidget *under, int turn);
    TrayPanel &panel() const { return *m_window->trayPanel()->panel(); }
    template <typename Widget> Widget *shown(const QString &name) const;
};

void TestTrayPanel::open(int scene)
{
    start(scene, 0, [] { (void)storeSetting(QStringLiteral("TrayPanel/First"), QStringLiteral("No such control")); });
    m_window->hide();
    m_desk->clock.advance(5s);
    m_window->trayPanel()->press({});
    settle();
}

void TestTrayPanel::settle()
{
    auto *queue = m_window->findChild<CommandQueue *>();
    QTRY_VERIFY(queue->isIdle() && m_window->tabs()->tabs().front()->isEnabled());
    QCoreApplication::processEvents();
}

void TestTrayPanel::wheel(QWidget *under, int turn)
{
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), {}, {0, turn}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(under, &event);
}

template <typename Widget> Widget *TestTrayPanel::shown(const QString &name) const
{
    for (Widget *widget : panel().findChildren<Widget *>()) {
        if (widget->isVisible() && (widget->accessibleName() == name || widget->property("text") == name))
            return widget;
    }
    return nullptr;
}

void TestTrayPanel::place_data()
{
    columns<QRect, QRect>("available", "icon");
    for (const auto &[scale, size] : {std::pair(100, QSize(1920, 1080)), {150, {1280, 720}}, {200, {960, 540}}}) {
        for (const QPoint corner : {QPoint(0, 0), QPoint(-size.width(), 200)}) {
            const auto screen = [&, corner, size](int x, int y, int w, int h) {
                return QRect(corner + QPoint(x, y), QSize(w, h));
            };
            const int w = size.width();
            const int h = size.height();
            const QByteArray name = QByteArray::number(scale) + (corner.x() < 0 ? " left screen, " : " ");
            row((name + "bottom").constData(), screen(0, 0, w, h - 40), screen(w - 90, h - 32, 24, 24));
            row((name + "bottom, hides itself").constData(), screen(0, 0, w, h), screen(w - 90, h - 32, 24, 24));
            row((name + "top").constData(), screen(0, 40, w, h - 40), screen(w - 30, 8, 24, 24));
            row((name + "left").constData(), screen(40, 0, w - 40, h), screen(8, h - 90, 24, 24));
            row((name + "right").constData(), screen(0, 0, w - 40, h), screen(w - 32, h - 60, 24, 24));
        }
    }
}

void TestTrayPanel::place()
{
    const auto [available, icon] = fetch<QRect, QRect>();
    const QSize size(360, 450);
    const QRect panel(placeTrayPanel(icon, available, size), size);
    QVERIFY(available.contains(panel));
    QVERIFY(!panel.intersects(icon));
    QVERIFY(panel.adjusted(-60, -60, 60, 60).intersects(icon));
    QCOMPARE(placeTrayPanel(icon, available, available.size()),
             available.topLeft() + QPoint(kTrayPanelGap, kTrayPanelGap));
}

void TestTrayPanel::presses_data()
{
    columns<TrayPressFacts, TrayPress>("facts", "meaning");
    row("the first", TrayPressFacts{}, TrayPress::Open);
    row("the second of two", TrayPressFacts{true, 200ms}, TrayPress::ShowWindow);
    row("the second of two, which took the focus", TrayPressFacts{false, 200ms, 10ms}, TrayPress::ShowWindow);
    row("on an open one", TrayPressFacts{true, 2000ms}, TrayPress::Close);
    row("on an open one, which took the focus", TrayPressFacts{false, 2000ms, 100ms}, TrayPress::Close);
    row("after a press elsewhere", TrayPressFacts{false, 2000ms, 900ms}, TrayPress::Open);
    row("with a clock set back", TrayPressFacts{false, -5000ms, -5000ms}, TrayPress::Open);
}

void TestTrayPanel::presses()
{
    const auto [facts, meaning] = fetch<TrayPressFacts, TrayPress>();
    QCOMPARE(meaningOfTrayPress(facts), meaning);
}

/// What the monitor's own buttons changed is asked for, the mode first, and nothing is written.
void TestTrayPanel::opensTrue()
{
    start(10);
    m_window->hide();
    settle();
    m_desk->monitor().setValue(0xF6, 33);
    m_desk->monitor().setValue(0x45, 2);
    m_desk->clock.advance(5s);
    settle(); // what lamps and care ask for a while after the start
    m_desk->takeCommands();
    TrayIcon icon(m_window.get());
    connect(&icon, &TrayIcon::pressed, this, [this] { m_window->trayPanel()->press({}); });
    connect(&icon, &TrayIcon::showWanted, m_window.get(), &MainWindow::showWindow);
    Q_EMIT icon.activated(QSystemTrayIcon::Trigger);
    settle();
    QCOMPARE(m_desk->takeCommands(), (QStringList{"R 22", "R 45", "R 10", "R 12", "R f6", "R d8"}));
    QCOMPARE(panel().slider("Audio Volume")->value(), 33);
    QVERIFY(shown<QPushButton>("Night Vision: Level2")->isChecked()); // in place of the usual one
    QVERIFY(shown<QPushButton>("Night Vision: Close") && !shown<QPushButton>("Night Vision: Auto-L1"));
    QVERIFY(!m_window->isVisible() && panel().accessibleName().contains("connected"));
    QCOMPARE(panel().optionGroup(Command::NightVision)->height(), 36); // in one line

    m_desk->clock.advance(50ms);
    Q_EMIT icon.activated(QSystemTrayIcon::DoubleClick);
    QVERIFY(m_window->isVisible() && !m_window->trayPanel()->isOpen());
}

void TestTrayPanel::wheelIsPaced()
{
    open(10);
    SliderWidget *brightness = panel().slider("Brightness");
    const int before = brightness->value();
    auto *queue = m_window->findChild<CommandQueue *>();
    const auto writes = [this](const char *what) { return m_desk->takeCommands().filter(QLatin1String(what)).count(); };
    m_desk->takeCommands();
    for (int i = 0; i < 50; ++i) {
        wheel(i % 2 == 0 ? static_cast<QWidget *>(brightness->slider()) : brightness->valueLabel(),
              i < 10 ? 120 : -120);
        (void)QTest::qWaitFor([queue] { return queue->isIdle(); }, 5); // for whatever may go now
        m_desk->clock.advance(20ms);
    }
    m_desk->clock.advance(100ms);
    settle();
    QCOMPARE(int(m_desk->monitor().value(0x10)), before - 30);
    QVERIFY(writes("W 10") <= 12);

    wheel(brightness, -60); // half a notch, and back
    wheel(brightness, 60);
    const auto leave = [&](auto change, const char *mode) {
        m_desk->clock.advance(1s);
        settle();
        const int value = brightness->value();
        wheel(brightness, -120);
        settle();
        m_desk->takeCommands();
        wheel(brightness, -120);
        change(m_window->scenePage()); // a direct command goes behind what waits
        QCOMPARE(m_desk->takeCommands().filter("W "), (QStringList{QStringLiteral("W 10=%1").arg(value - 2), mode}));
        QTRY_COMPARE(brightness->value(), int(m_desk->monitor().value(0x10))); // what waited was the other half's
    };
    leave([](pageSceneSetting *page) { page->switchHalf(true); }, "W 22=9");
    m_window->scenePage()->switchHalf(false);
    settle();
    m_desk->clock.advance(1s);
    settle();
    QCOMPARE(brightness->mark(), Mark::None);
    leave([](pageSceneSetting *page) { page->chooseScene(13); }, "W 22=13");
}

void TestTrayPanel::sceneGoesThePagesWay()
{
    open(10);
    m_desk->takeCommands();
    auto *scenes = shown<QComboBox>("Scene");
    QCOMPARE(scenes->currentText(), QStringLiteral("Movie Mode"));
    Q_EMIT scenes->activated(scenes->findText("Night Mode"));
    settle();
    QCOMPARE(m_desk->takeCommands().filter("W "), QStringList("W 22=13"));
    QVERIFY(entry(0, "Night Mode")->isChecked() && m_window->scenePage()->isDefaultView());
    QVERIFY(shown<QPushButton>("Default")->isChecked());

    QTest::keyClick(scenes, Qt::Key_Down); // opens the list only
    QTest::keyClick(scenes->view(), Qt::Key_Down);
    QTest::keyClick(scenes->view(), Qt::Key_Return);
    settle();
    QCOMPARE(m_desk->takeCommands().filter("W "), QStringList("W 22=15"));
    Q_EMIT scenes->activated(scenes->findText("Night Mode"));
    settle();
    m_desk->takeCommands();
    auto *custom = shown<QPushButton>("Custom");
    custom->setFocus();
    QTest::keyClick(custom, Qt::Key_Space);
    QVERIFY(!custom->isEnabled()); // the block is read first, as on the page
    settle();
    QCOMPARE(m_desk->takeCommands().filter("W "), QStringList("W 22=14"));
    QVERIFY(custom->isChecked() && !m_window->scenePage()->isDefaultView());
    QCOMPARE(panel().focusWidget(), custom);
    QCOMPARE(panel().slider("Brightness")->value(), int(m_desk->monitor().value(0x10)));

    m_desk->monitor().refuse(0x22, virtualdesk::kForEver);
    Q_EMIT scenes->activated(scenes->findText("Movie Mode"));
    settle();
    QCOMPARE(scenes->accessibleDescription(), markText(Mark::Refused));
}

void TestTrayPanel::saysWhatIsNotConfirmed()
{
    start(10);
    m_desk->monitor().refuse(0xF6, virtualdesk::kForEver);
    deviceState.forgetSettings();
    m_window->hide();
    m_window->trayPanel()->press({});
    settle();
    SliderWidget *volume = panel().slider("Audio Volume");
    QVERIFY(volume->isUnknown());
    m_desk->takeCommands();
    wheel(volume, 120); // a step from where?
    settle();
    QCOMPARE(m_desk->takeCommands().filter("W "), QStringList());

    m_desk->monitor().refuse(0x12, virtualdesk::kForEver);
    SliderWidget *contrast = panel().slider("Contrast");
    const int wanted = contrast->value() + 1;
    wheel(contrast, 120);
    settle();
    QCOMPARE(contrast->mark(), Mark::Refused);
    QCOMPARE(contrast->value(), wanted); // stays where the user put it
}

void TestTrayPanel::choicesAreKept()
{
    open(10);
    QVERIFY(panel().slider("Low Blue Light")->isVisible()); // for one that does not exist
    auto *menu = panel().findChild<QToolButton *>()->menu();
    const auto choose = [menu](int place, const char *name) {
        Q_EMIT menu->aboutToShow();
        for (QAction *action : menu->actions().at(place)->menu()->actions()) {
            if (action->text() == QLatin1String(name))
                action->trigger();
        }
    };
    choose(0, "Sharpness");
    settle();
    QCOMPARE(panel().slider("Sharpness")->value(), int(m_desk->monitor().value(0x87)));
    QVERIFY(!panel().slider("Low Blue Light")->isVisible());
    choose(1, "Sharpness"); // the two places are exchanged
    m_window.reset();
    m_window = std::make_unique<MainWindow>(m_desk->session());
    m_window->trayPanel()->press({});
    QVERIFY(shown<QPushButton>("Night Vision: Close")->mapTo(&panel(), QPoint()).y() <
            panel().slider("Sharpness")->mapTo(&panel(), QPoint()).y());
}

/// The whole panel by keys, each stop with a name, and away by Escape or by going elsewhere.
void TestTrayPanel::keyboard()
{
    open(10);
    QStringList stops; // once for each group of buttons: arrows go on from there
    for (int i = 0; i < 9; ++i) {
        const QWidget *stop = QApplication::focusWidget();
        const QString text = stop->property("text").toString();
        stops += stop->accessibleName().isEmpty() ? text : stop->accessibleName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(stops, (QStringList{"Scene", "Custom", "Brightness", "Contrast", "Audio Volume", "Low Blue Light",
                                 "Night Vision: Close", "Arrange the window", "Choose the controls"}));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!m_window->trayPanel()->isOpen());
    m_window->trayPanel()->press({});
    Q_EMIT qGuiApp->focusWindowChanged(nullptr); // what was under way before
    QVERIFY(m_window->trayPanel()->isOpen());
    Q_EMIT qGuiApp->focusWindowChanged(panel().windowHandle());
    Q_EMIT qGuiApp->focusWindowChanged(nullptr); // the notification area takes it back at first
    QVERIFY(m_window->trayPanel()->isOpen());
    panel().move(-5000, 0); // its screen goes
    Q_EMIT QGuiApplication::primaryScreen()->availableGeometryChanged({});
    QTRY_VERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(panel().geometry()));
    m_desk->clock.advance(400ms);
    Q_EMIT qGuiApp->focusWindowChanged(nullptr);
    QVERIFY(!m_window->trayPanel()->isOpen());
    m_window->trayPanel()->press({}); // the press that took the focus away
    QVERIFY(!m_window->trayPanel()->isOpen());
}

QTEST_MAIN(TestTrayPanel)
#include "tst_traypanel.moc"
