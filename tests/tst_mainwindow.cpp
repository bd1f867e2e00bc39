#include <QtTest>
#include <QtWidgets>

#include "controls/pictures.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "page/Office/pageoffice.h"
#include "page/emptypage.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/panelpage.h"
#include "support/windowfixture.h"
#include "support/wirevalues.h"

namespace {

QStringList shownTexts(const QWidget *page)
{
    QStringList texts;
    for (const QLabel *label : page->findChildren<QLabel *>())
        texts.append(label->text());
    return texts;
}

/// Panels that do not say what they are for.
QStringList unexplainedPanels(PanelPage &page)
{
    QStringList found;
    const int shown = page.currentPanel();
    for (int panel = page.panelCount() - 1; panel >= 0; --panel) {
        page.showPanel(panel);
        if (page.findChild<QLabel *>("help")->text().isEmpty())
            found.append(page.findChild<QLabel *>("title")->text());
    }
    page.showPanel(shown);
    return found;
}

/// Captions by what is drawn above them; the icons of tabs have a narrower border than those of entries.
using Meanings = QMap<QByteArray, QStringList>;

void addMeaning(Meanings &meanings, const QString &icon, const QString &caption)
{
    const QImage image = Pictures::load(Pictures::ofState(icon), 1.0).toImage();
    const int side = 20;
    const QImage drawn = image.copy((image.width() - side) / 2, (image.height() - side) / 2, side, side);
    QStringList &captions =
        meanings[QByteArray(reinterpret_cast<const char *>(drawn.constBits()), drawn.sizeInBytes())];
    if (!captions.contains(caption))
        captions.append(caption);
}

Meanings meaningsIn(const MainWindow &window)
{
    Meanings meanings;
    for (const SceneMode &mode : sceneModes())
        addMeaning(meanings, Pictures::kRoot + "img/entry/" + mode.icon, mode.label);
    for (const LeftTabButton *button : window.findChildren<LeftTabButton *>())
        if (!button->isHidden()) // another model's name for the same thing
            addMeaning(meanings, button->icon(), button->caption());
    for (const TopTab *tab : window.tabs()->tabs())
        addMeaning(meanings, tab->icon(), tab->accessibleName());
    return meanings;
}

} // namespace

class TestMainWindow : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void frameByItself();
    void openingFamily();
    void entriesByModel();
    void entriesSwitchTheScene();
    void entrySwitchesTheScene();
    void otherEntriesNameThemselves();
    void interfaceModes();
    void unreadableBlockIsTriedOnce();
    void refreshKeepsADraggedValue();
    void reconnectShowsTheMonitorsState();
    void reconnectTakesTheMode();
    void unpluggingAndPlugging();

private:
    QString status() const;
};

QString TestMainWindow::status() const
{
    for (const QLabel *label : m_window->findChildren<QLabel *>()) {
        if (label->accessibleName().contains("connected") || label->accessibleName().contains("no "))
            return label->accessibleName().trimmed();
    }
    return {};
}

/// Made without a word to the monitor, walked through by keys, dragged, and closed to the tray.
void TestMainWindow::frameByItself()
{
    start(10);
    QCOMPARE(m_desk->takeRequests(), QStringList());
    QVERIFY(!commandsSuspended);
    QCOMPARE(static_cast<quint32>(m_window->windowFlags() & ~Qt::WindowType_Mask), 0xC800u);
    const auto &tabs = m_window->tabs()->tabs();
    QVERIFY(QAccessible::queryAccessibleInterface(tabs[0])->state().selected);
    m_window->activateWindow();
    tabs[1]->setFocus(Qt::TabFocusReason);
    QTest::keyClick(tabs[1], Qt::Key_Right);
    QTest::keyClick(tabs[2], Qt::Key_Space);
    QCOMPARE(m_window->tabs()->current(), 2);
    for (const std::size_t i : {0, 1, 2}) // as assistive software sees it
        QCOMPARE(bool(QAccessible::queryAccessibleInterface(tabs[i])->state().selected), i == 2);
    QCOMPARE(tabs[2]->accessibleName(), QStringLiteral("Color Space"));

    const QPoint before = m_window->pos();
    for (const QPoint &to : {QPoint(150, 720), QPoint(300, 300)}) { // dragged; and after the button was released
        if (to.x() == 150)
            QTest::mousePress(m_window.get(), Qt::LeftButton, {}, QPoint(120, 740));
        QTest::mouseMove(m_window.get(), to);
        QCOMPARE(m_window->pos() - before, QPoint(30, -20));
        QTest::mouseRelease(m_window.get(), Qt::LeftButton, {}, QPoint(120, 740));
    }
    QCloseEvent event;
    QCoreApplication::sendEvent(m_window.get(), &event);
    QVERIFY(!event.isAccepted() && m_window->isHidden());
    m_window->showWindow();
    QVERIFY(m_window->isVisible());
    m_window->windowHandle()->resize(640, 400); // the same pixels on a screen of twice the scale
    Q_EMIT m_window->windowHandle()->screenChanged(m_window->screen());
    QTRY_COMPARE(m_window->windowHandle()->size(), m_window->minimumSize());
}

void TestMainWindow::openingFamily()
{
    // The first mode stands behind the maker's own.
    for (const auto &[scene, family, entry] : {std::tuple(1, 0, 1), {10, 0, 5}, {29, 1, 0}, {50, 2, 0}, {85, 3, 2}}) {
        start(scene);
        QCOMPARE(m_window->tabs()->current(), family);
        QCOMPARE(m_window->leftBar(family)->current(), entry);
        QVERIFY(m_window->scenePage()->isVisible());
        QCOMPARE(m_window->scenePage()->isDefaultView(), scene % 2 != 0);
        cleanup();
    }
}

void TestMainWindow::entriesByModel()
{
    for (const std::size_t monitor : {0, 1}) { // the second one lacks the dimming and the game functions
        start(9, monitor);
        const bool first = monitor == 0;
        QCOMPARE(entry(0, "Zelmar Mode") != nullptr, first);
        QCOMPARE(entry(0, "MPCS/LD") == nullptr, first);
        QCOMPARE(m_window->scenePage()->optionGroup(Command::LocalDimming)->isHidden(), !first);
        QCOMPARE(m_window->scenePage()->slider("Halo Control")->isHidden(), !first);
        QVERIFY(m_window->scenePage()->slider("Brightness"));
        QTest::mouseClick(m_window->tabs()->tabs()[5], Qt::LeftButton);
        m_window->setInterfaceMode(kByModel);
        QVERIFY(entry(5, "Picture Enhance")->isSelectable());
        QCOMPARE(entry(5, "Emberline")->isSelectable(), first);
        const auto *empty = m_window->findChild<EmptyPage *>();
        for (const auto &[family, label, lack] : {std::tuple(5, "Game Aid", "Q32-MPCS has no game functions."),
                                                  {6, "Care Content", "Q32-MPCS has no OLED panel to care for."}}) {
            QTest::mouseClick(m_window->tabs()->tabs()[static_cast<std::size_t>(family)], Qt::LeftButton);
            if (!first && family == 6)
                QCOMPARE(shownTexts(empty).first(2), (QStringList{"Oled Care", "Choose an entry on the left."}));
            QTest::mouseClick(entry(family, label), Qt::LeftButton);
            QCOMPARE(empty->isVisible() && shownTexts(empty).contains(lack), !first);
        }
        QCOMPARE(entry(5, "Emberline")->toolTip(), first ? QString() : "Q32-MPCS has no game functions.");
        m_window->setInterfaceMode(kUnlocked);
        if (first)
            cleanup();
    }
}

void TestMainWindow::entriesSwitchTheScene()
{
    for (const std::size_t monitor : {0, 1}) {
        start(90, monitor); // none of the modes
        QStringList lacking;
        for (int family = 0; family < kSceneFamilies; ++family) {
            QTest::mouseClick(m_window->tabs()->tabs()[static_cast<std::size_t>(family)], Qt::LeftButton);
            for (const QString &scene : QString(kScenes[family]).split('|')) {
                LeftTabButton *button = entry(family, scene.section('=', 0, 0).toLatin1().constData());
                if (button)
                    QTest::mouseClick(button, Qt::LeftButton);
                if (!button || QString::number(m_desk->monitor(monitor).value(0x22)) != scene.section('=', 1))
                    lacking.append(scene);
            }
        }
        QCOMPARE(lacking,
                 monitor == 0 ? QStringList({"MPCS/ULL FPS=25", "MPCS/LD=27"}) : QStringList("Zelmar Mode=23"));
        cleanup();
    }
}

void TestMainWindow::entrySwitchesTheScene()
{
    start(10);
    QTest::mouseClick(entry(0, "Night Mode"), Qt::LeftButton);
    QTest::mouseClick(m_window->tabs()->tabs()[1], Qt::LeftButton); // a family without the mode asks to choose
    QVERIFY(!m_window->scenePage()->isVisible());
    QVERIFY(shownTexts(m_window->findChild<EmptyPage *>()).join('|').contains("Night Mode"));
    QTest::keyClick(entry(1, "AdobeRGB"), Qt::Key_Return);
    QVERIFY(m_window->scenePage()->isVisible());
    QCOMPARE(m_desk->takeRequests(), (QStringList{"W 99=13", "W 22=13", "W 99=47", "W 22=47"}));
    QVERIFY(entry(1, "AdobeRGB")->isChecked());
    m_window->leftBar(1)->buttons().front()->setCaption(QStringLiteral("another language"));
    m_window->updateControlText();
    QVERIFY(entry(1, "Display P3 Mode"));
    QCOMPARE(m_window->leftBar(0)->current(), -1); // the mode that is on belongs to the other family
}

/// Of everything that was opened.
static void lookIsCheap(const MainWindow &window)
{
    // A sheet of a whole page is worked out, and kept, for each widget on it.
    for (const OptionGroupRow *row : window.findChildren<OptionGroupRow *>())
        QVERIFY2(!row->testAttribute(Qt::WA_StyleSheet), row->group().label);
}

void TestMainWindow::otherEntriesNameThemselves()
{
    start(10);
    QTest::mouseClick(m_window->tabs()->tabs()[8], Qt::LeftButton);
    QTest::mouseClick(entry(8, "Multi-window"), Qt::LeftButton); // built only now, and asked for at once
    QTRY_VERIFY(deviceState.isKnown(Command(0x50)));
    QTest::mouseClick(entry(8, "System Settings"), Qt::LeftButton);
    QList<int> opened;
    QStringList unexplained;
    for (int family = kSceneFamilies; family < kFamilies; ++family) {
        TopTab *tab = m_window->tabs()->tabs()[static_cast<std::size_t>(family)];
        QTest::mouseClick(tab, Qt::LeftButton);
        const LeftBar *bar = m_window->leftBar(family);
        opened.append(bar->current());
        for (std::size_t i = 0; i < bar->buttons().size(); ++i) {
            QTest::mouseClick(bar->buttons()[i], Qt::LeftButton);
            Page *known = m_window->page(bar->entries()[i].page);
            const QWidget *page = known ? known->widget() : m_window->findChild<EmptyPage *>();
            QVERIFY2(bar->isVisible() && page->isVisible(), bar->entries()[i].label);
            if (auto *panels = dynamic_cast<PanelPage *>(known))
                unexplained += unexplainedPanels(*panels);
            if (const auto *office = qobject_cast<const PageOffice *>(page)) {
                QCOMPARE(office->currentPanel(), int(i));
                m_window->refreshPages(); // which leaves open what is open
                QVERIFY(office->currentPanel() == int(i) && page->isVisible() && bar->current() == int(i));
            }
            if (qobject_cast<const EmptyPage *>(page))
                QVERIFY2(shownTexts(page).contains(bar->buttons()[i]->caption()), bar->entries()[i].label);
        }
    }
    QTest::mouseClick(m_window->tabs()->tabs()[kAccessoryFamily], Qt::LeftButton);
    opened.append(m_window->leftBar(kAccessoryFamily)->current());
    QCOMPARE(opened, (QList<int>{0, 0, 0, 0, 0, 5}));       // the first, and then the one that was left open
    QVERIFY(m_desk->takeRequests().filter("W ").isEmpty()); // opening pages asks, but sends nothing

    lookIsCheap(*m_window);
    const Meanings meanings = meaningsIn(*m_window);
    for (const QStringList &captions : meanings)
        QVERIFY2(captions.size() == 1, qPrintable("one icon means: " + captions.join(", ")));
    QCOMPARE(unexplained, QStringList());
    QVERIFY(meanings.size() > 80); // pages' own entries among them
}

void TestMainWindow::interfaceModes()
{
    start(10);
    const auto &buttons = m_window->leftBar(kAccessoryFamily)->buttons();
    // Each after the lock; the last number is that of the accessory's entries that can be chosen.
    for (const auto &[code, tabs, entries] : {std::tuple(kLocked, false, 0),
                                              {kUnlocked, true, 6},
                                              {kByModel, true, 6},
                                              {kBusy, true, 1},
                                              {kBusyEnded, true, 6}}) {
        m_window->setInterfaceMode(kLocked);
        m_window->setInterfaceMode(code);
        QCOMPARE(m_window->tabs()->tabs().front()->isEnabled(), tabs);
        QCOMPARE(entry(0, "Night Mode")->isEnabled(), tabs);
        QCOMPARE(std::count_if(buttons.begin(), buttons.end(), [](auto *button) { return button->isEnabled(); }),
                 entries);
        if (!tabs) {
            QTest::mouseClick(entry(0, "Night Mode"), Qt::LeftButton);
            QCOMPARE(m_desk->takeRequests(), QStringList());
        }
    }
}

void TestMainWindow::unreadableBlockIsTriedOnce()
{
    start(9);
    m_desk->clock.advance(platform::milliseconds(1000));
    const std::size_t tasks = m_desk->clock.tasksWaiting(); // the look at the panel's use
    m_desk->monitor().setValue(0x22, 10);                   // by the monitor's own buttons
    m_desk->monitor().dropChunks(virtualdesk::kForEver);
    m_desk->session().delayedSearchDevices();
    QStringList asked;
    QTRY_VERIFY((asked += m_desk->takeCommands()).contains("R 0a"));
    for (int round = 0; round < 5; ++round)
        m_desk->clock.advance(platform::milliseconds(200)); // the reconnections that follow a failed block
    QVERIFY(!m_desk->takeCommands().contains("R 0a"));
    QCOMPARE(m_desk->clock.tasksWaiting(), tasks);
}

void TestMainWindow::refreshKeepsADraggedValue()
{
    start(10);
    {
        const auto busy = lockTransport();
        m_window->scenePage()->slider("Brightness")->slider()->setSliderPosition(17);
    }
    m_window->refreshPages(); // must not swallow what the drag has still to send
    QCOMPARE(int(m_desk->monitor().value(0x10)), 17);
    QVERIFY(!commandsSuspended);
}

void TestMainWindow::reconnectShowsTheMonitorsState()
{
    start(10);
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    m_desk->monitor().goDeaf();
    m_desk->clock.takeWaits();
    QTest::mouseClick(entry(0, "Night Mode"), Qt::LeftButton);
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED no answer"));
    QCOMPARE(m_desk->clock.takeWaits(), (QList<int>{100, 100})); // the write's own; the window does not wait on top
    m_desk->monitor().recover();
    m_desk->session().delayedSearchDevices();
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    QVERIFY(entry(0, "Movie Mode")->isChecked()); // what the monitor says is on
    QVERIFY(!m_window->scenePage()->isDefaultView());
    QTRY_VERIFY(deviceState.sceneBlockValid());
}

void TestMainWindow::reconnectTakesTheMode()
{
    // No mode, the lowest, the one that was on, another, the highest, and beyond; with the block where it is needed.
    for (const auto &[mode, taken] :
         {std::pair(0, false), {1, true}, {10, true}, {14, true}, {90, true}, {91, false}}) {
        start(10);
        m_desk->monitor().setValue(0x22, static_cast<std::uint16_t>(mode));
        m_desk->session().delayedSearchDevices();
        QCOMPARE(status().section(' ', 2), QStringLiteral("connected")); // it answers, whatever it says
        QCOMPARE(deviceState.value(Command::SceneMode), taken ? mode : 10);
        QCOMPARE(m_window->scenePage()->isDefaultView(), mode == 1);
        QTRY_COMPARE(deviceState.sceneBlockValid(), mode != 1);
        cleanup();
    }
}

void TestMainWindow::unpluggingAndPlugging()
{
    start(10);
    m_desk->takeCommands();
    m_desk->desk.unplug(1); // told twice
    m_desk->clock.advance(platform::milliseconds(299));
    QCOMPARE(m_desk->takeCommands(), QStringList());
    m_desk->clock.advance(platform::milliseconds(301));
    QCOMPARE(m_desk->takeCommands(), QStringList{"R 22"});
    m_desk->desk.unplug(0);
    m_desk->clock.advance(platform::milliseconds(300));
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED no answer"));
    m_desk->desk.plug(0);
    m_desk->clock.advance(platform::milliseconds(1000));
    QCOMPARE(status(), QStringLiteral("1. Q27-OLED connected"));
    QCOMPARE(m_desk->desk.handles().faults(), 0);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
