#include <QtTest>
#include <QtWidgets>

#include "controls/colorpicker.h"
#include "controls/monitorpicture.h"
#include "controls/sliderwidget.h"
#include "ddc_protocol/devicestate.h"
#include "page/Emberline/lightview.h"
#include "page/Emberline/pageemberline.h"
#include "page/MultiWindow/pagemultiwindow.h"
#include "page/MultiWindow/windowarranger.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"
#include "page/engine/picturestage.h"
#include "support/pagessuite.h"

using virtualdesk::kForEver;

/// The ring in red, everything else dark.
constexpr std::pair<Command, int> kSteadyRed[] = {
    {Command::LightMode, 1},           {Command::LightColor, 0},     {Command::LightBrightness, 100},
    {Command::LampBeltBrightness, 0},  {Command::LampBeltColor, 1},  {Command::LampBeltFrontColor, 1},
    {Command::LampBeltRearColor, 1},   {Command::LampBeltEffect, 0}, {Command::LightFrontBrightness, 0},
    {Command::LightRearBrightness, 0},
};

/// What pages draw of the monitor: pictures of what options do, windows that are arranged, lamps.
class TestDrawnPages : public PagesSuite
{
    Q_OBJECT
private Q_SLOTS:
    void pointingShowsAndSendsNothing();
    void refusedIsNotOn();
    void crosshairIsExact();
    void optionsAreExplained();
    void wordsBesideTheControls();
    void whatASwitchTurnsOff();
    void smallWindowIsArranged_data();
    void smallWindowIsArranged();
    void ownLightColor();
    void lightIsPlayed();

private:
    PictureStage *openPaper();
};

PictureStage *TestDrawnPages::openPaper()
{
    page(Office)->resize(1000, 680);
    page(Office)->show();
    const bool isSettled = settle();
    m_desk->takeCommands();
    return isSettled ? page(Office)->findChild<QWidget *>("pagePaper")->findChild<PictureStage *>() : nullptr;
}

void TestDrawnPages::pointingShowsAndSendsNothing()
{
    const PictureStage *stage = openPaper();
    QVERIFY(stage);
    const auto seen = [stage] { return stage->picture()->grab().toImage(); };
    const QImage before = seen();
    const QPointF inside(5, 5);
    for (const auto &[option, value] : {std::pair("Paper_Paper_B5", 2), {"Paper_Custom Size", 4}}) {
        QEnterEvent enter(inside, inside, inside);
        QCoreApplication::sendEvent(button(Office, option), &enter);
        QCOMPARE(stage->preview(), std::optional(std::pair(Command::Paper, value)));
        QVERIFY(seen() != before);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(button(Office, option), &leave);
        QVERIFY(!stage->preview() && seen() == before);
    }
    QCOMPARE(m_desk->takeCommands(), QStringList());
}

void TestDrawnPages::refusedIsNotOn()
{
    const PictureStage *stage = openPaper();
    QVERIFY(stage);
    m_desk->monitor().refuse(0xEC, kForEver);
    const auto words = [stage] {
        QStringList shown;
        for (const QLabel *label : stage->findChildren<QLabel *>())
            shown.append(label->isHidden() ? QString() : label->text());
        return shown;
    };
    const QStringList wordsBefore = words();
    button(Office, "Paper_Paper_B5")->click();
    QVERIFY(settle());
    QVERIFY(deviceState.state(Command::Paper) == ValueState::Refused);
    QCOMPARE(words(), wordsBefore);
}

/// What the monitor lays over a game is shown to the pixel: a green cross of 25 pixels in the middle.
void TestDrawnPages::crosshairIsExact()
{
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

    // Beside it stands which keys do the same, as the list of shortcuts is now.
    for (const char *switched : {"on", "off"}) {
        QVERIFY(writeText("basicMode.ini", QByteArray("[25]\nplusKey=Ctrl+Alt+C\nsubKey=\nswitchStatus=") + switched));
        game->showPanel("Game Crosshair");
        const QList<QLabel *> labels = shown->parentWidget()->findChildren<QLabel *>();
        QCOMPARE(std::ranges::any_of(labels, [](const QLabel *label) { return label->text().contains("Ctrl+Alt+C"); }),
                 qstrcmp(switched, "on") == 0);
    }
}

/// Itself or by its group; but for a switch beside the options of its own command, and names of languages.
void TestDrawnPages::optionsAreExplained()
{
    for (int which = 0; which < kPageNames; ++which) {
        const auto &rows = anyPage(which)->optionGroups();
        for (const OptionGroupRow *row : rows) {
            const OptionGroup &group = row->group();
            const bool repeats = std::ranges::count_if(rows, [&group](const OptionGroupRow *other) {
                                     return other->group().command == group.command;
                                 }) > 1;
            for (const Option &option : group.options)
                QVERIFY2(option.words || group.help || (repeats && group.look == GroupLook::Switch) ||
                             group.command == Command::OsdLanguage,
                         qPrintable(QString("%1 of %2").arg(option.label, group.label)));
        }
    }
}

/// What is told of an option while the pointer is on it, what of the one that is on, and whether a switch turns it off.
void TestDrawnPages::wordsBesideTheControls()
{
    for (const auto &[command, value] : {std::pair(Command::CareMode, 1),
                                         {Command::LightMode, 1},
                                         {Command::LightTimer, 2},
                                         {Command::LightWithScreen, 0},
                                         {Command::QuickBoot, 0},
                                         {Command::HawkEyeVision, 0},
                                         {Command::HawkEyeContrast, 2}})
        deviceState.told(command, value);
    struct Told
    {
        int page;
        const char *panel, *option, *before, *pointed, *after;
    };
    for (const auto &[which, panel, option, before, pointed, after] :
         {Told{Care, "panelCarePlan", "Care Mode_Auto", "Manual", "begins by itself", "Manual"},
          {Care, "panelCarePlan", "Desktop Reminder_         Disable", "", "never over", "Switched on."},
          {Lighting, "pageLightMode", "Light Mode_Eye Care", "On now.", "calm white", "On now."},
          {Lighting, "pageLightTimes", "Light Timer_Close", "On now.", "goes out by itself", "On now."},
          {Io, "pageQuickBoot", "Quick Boot_         Enable", "Switched off.", "Quick Boot · Enable", "Switched off."},
          {Game, "gameHawkEye", "HawkEye Contrast_Level5", "", "fog", "switched off now."}}) {
        page(which)->resize(1000, 680);
        page(which)->show();
        for (int place = 0; !button(which, option)->isVisible(); ++place)
            page(which)->showPanel(place);
        const auto *words = page(which)->findChild<QWidget *>(panel)->findChild<OptionWords *>();
        const auto shown = [words] {
            QString all;
            for (const QLabel *label : words->findChildren<QLabel *>())
                all += label->isHidden() ? QString() : label->text() + '\n';
            return all;
        };
        QEnterEvent enter({}, {}, {});
        QEvent leave(QEvent::Leave);
        QVERIFY2(shown().contains(before), qPrintable(shown()));
        QCoreApplication::sendEvent(button(which, option), &enter);
        QVERIFY2(shown().contains(pointed), qPrintable(shown()));
        QCoreApplication::sendEvent(button(which, option), &leave);
        QVERIFY2(shown().contains(after), qPrintable(shown()));
    }
    QVERIFY(settle() && m_desk->takeCommands().filter("W").isEmpty());
}

/// An option that is chosen, and what it rests on.
struct Resting
{
    int page;
    const char *panel, *widget;
    Command group;
    int chosen;
    const char *name;
    Command on;
    int offValue, onValue;
};
constexpr Resting kResting[] = {
    {Game, "Game Crosshair", "gameCrosshair", Command::CrosshairShape, 1, "Shape · Cross", Command::Crosshair, 0, 1},
    {Lighting, "Effect", "pageLightEffect", Command::LightEffect, 3, "Effect · Wave", Command::LightMode, 1, 2},
};

/// It is on only where the monitor has told what it rests on: its switch, or a mode.
void TestDrawnPages::whatASwitchTurnsOff()
{
    m_desk->monitor().setPlugged(false); // it tells nothing by itself
    for (const Resting &row : kResting) {
        auto *shownPage = page(row.page);
        shownPage->resize(1000, 680);
        shownPage->show();
        shownPage->showPanel(row.panel);
        QVERIFY(settle());
        deviceState.told(row.group, row.chosen);
        auto *words = shownPage->findChild<QWidget *>(row.widget)->findChild<OptionWords *>();
        const auto isSaid = [words](const QString &text) {
            return std::ranges::any_of(words->findChildren<QLabel *>(),
                                       [&text](const QLabel *label) { return label->text() == text; });
        };
        QTRY_VERIFY(isSaid(row.name));
        QVERIFY(!isSaid("On now.") && !isSaid("Chosen, and switched off now."));
        deviceState.told(row.on, row.offValue);
        QTRY_VERIFY(isSaid("Chosen, and switched off now."));
        deviceState.told(row.on, row.onValue);
        QTRY_VERIFY(isSaid("On now."));
    }
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

void TestDrawnPages::smallWindowIsArranged_data()
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

void TestDrawnPages::smallWindowIsArranged()
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
    for (const Command odd : {Command::InsetPlace, Command::InsetSize}) { // no option has that number
        deviceState.told(odd, 84);
        page(Windows)->updateInterfaceData();
        act(*windows);
        QCOMPARE(m_desk->takeCommands().join(' '), QString());
        QVERIFY(windows->insetNow().isEmpty());
        deviceState.told(odd, 1);
    }
}

/// Three values that are told as one, and what is known of the lamps then.
void TestDrawnPages::ownLightColor()
{
    auto *lighting = static_cast<pageEmberline *>(page(Lighting));
    deviceState.told(Command::LightMode, 1);
    for (const int color : {6, 8}) {
        button(Lighting, color == 8 ? "Light Color_Custom" : "Light Color_White")->click();
        lighting->updateInterfaceData();
        QCOMPARE(!lighting->ownColor()->parentWidget()->isHidden(), color == 8);
    }
    deviceState.told(Command::LightRed, 200); // a part of it is no colour yet
    lighting->updateInterfaceData();
    QCOMPARE(lighting->ownColor()->accessibleDescription(), QString("unknown"));
    QCOMPARE(lightLook(deviceState).color, LightLook::Color(qRgb(255, 255, 255)));
    for (const auto &[refused, said, shown] : {std::tuple(std::vector<std::uint8_t>(), "", qRgb(250, 128, 7)),
                                               {{0x7B}, "only a part", qRgb(0, 128, 9)}, // what the monitor has then
                                               {{0x7A, 0x7B, 0x7C}, "did not take", qRgb(0, 128, 9)}}) {
        m_desk->takeCommands();
        for (const std::uint8_t code : refused)
            m_desk->monitor().refuse(code, kForEver);
        const QColor wished = *said ? QColor(0, 200, 9) : QColor(250, 128, 7);
        Q_EMIT lighting->ownColor()->sigColorChanged(wished);
        const QStringList sent = m_desk->takeCommands().filter("W");
        for (const auto &[code, part] : {std::pair("7a", wished.red()), {"7b", wished.green()}, {"7c", wished.blue()}})
            QVERIFY2(!sent.filter(QStringLiteral("W %1=%2").arg(code).arg(part)).isEmpty(), code);
        QVERIFY2(*said ? lighting->notice().contains(said) : lighting->notice().isEmpty(), said);
        QCOMPARE(lighting->findChild<QAbstractButton *>("stripAction")->isHidden(), !*said);
        QCOMPARE(lighting->ownColor()->color().rgb(), shown);
        QCOMPARE(lightLook(deviceState).color, LightLook::Color(shown));
        m_desk->monitor().recover();
    }
}

/// While somebody can see it, something moves and the user lets it; each lamp as it is set.
void TestDrawnPages::lightIsPlayed()
{
    for (const auto &[command, value] : kSteadyRed) {
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

QTEST_MAIN(TestDrawnPages)
#include "tst_drawnpages.moc"
