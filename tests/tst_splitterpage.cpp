#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "controls/messagebox.h"
#include "controls/zelmardialog.h"
#include "controls/zelmarkeysequenceedit.h"
#include "ddc_protocol/settingsstore.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/BasicSetting/pageshortcutkey.h"
#include "page/BasicSetting/shortcutrow.h"
#include "page/Splitter/layouteditor.h"
#include "page/Splitter/layouttile.h"
#include "page/Splitter/pagesplitter.h"
#include "page/Splitter/splitting.h"
#include "page/Splitter/zoneoverlay.h"
#include "platform/nativemessage.h"
#include "shortcut/shortcutlist.h"
#include "support/windowfixture.h"
#include "tray/traypanel.h"
#include "tray/traypanelopener.h"

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t kControl = platform::kModifierControl;
const QRect kScreen(0, 0, 1366, 768);

} // namespace

/// The screen splitter from its page, its keys, the tray and its overlay.
class TestSplitterPage : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void keysArrange();
    void noKeyTwice();
    void refusalIsTold();
    void overlayByNumbers();
    void openedFromElsewhere();
    void goesWithTheFront();
    void besideAQuestion();
    void drawingByMouseAndKeys();
    void layoutsOfTheUsersOwn();
    void unwritableFile();
    void screensChange();

private:
    void startWith(const std::function<void()> &prepare = [] {});
    pageSplitter &page() const { return *static_cast<pageSplitter *>(m_window->page(PageId::Splitter)); }
    pageSplitter &openPage();
    ZoneOverlay *overlay() const { return m_window->splitting()->overlay(); }
    QPushButton *button(const char *name) const { return page().findChild<QPushButton *>(QLatin1String(name)); }
    QString zones() { return layoutsText({page().model().chosen()}).section(QLatin1Char(':'), 1); }
    QString place(std::size_t program = 0);
    void pressKey(char key, std::uint32_t modifiers = kControl);
    int conflictsWhile(const std::function<void()> &act);
};

void TestSplitterPage::startWith(const std::function<void()> &prepare)
{
    start(10, 0, [&] {
        m_desk->desk.displays().setDisplays({{QStringLiteral("\\\\.\\DISPLAY1"), kScreen}});
        virtualdesk::ApplicationWindow fixed{{10, 20, 300, 200}};
        fixed.isSizable = false;
        m_desk->desk.applications().setList({{QStringLiteral("C:\\a\\notes.exe"), false, true, {{92, 90, 516, 408}, 8}},
                                             {QStringLiteral("C:\\a\\fixed.exe"), false, true, fixed}});
        prepare();
    });
    m_desk->desk.applications().bringToFront(0);
}

pageSplitter &TestSplitterPage::openPage()
{
    QTest::mouseClick(m_window->tabs()->tabs().back(), Qt::LeftButton);
    QTest::mouseClick(entry(kFamilies - 1, "Screen Splitter"), Qt::LeftButton);
    return page();
}

/// What can be seen of a program's window.
QString TestSplitterPage::place(std::size_t program)
{
    const QRect seen = *m_desk->desk.windows().visibleRect(virtualdesk::Applications::windowOf(program));
    return QStringLiteral("%1,%2 %3x%4").arg(seen.x()).arg(seen.y()).arg(seen.width()).arg(seen.height());
}

void TestSplitterPage::pressKey(char key, std::uint32_t modifiers)
{
    m_desk->desk.pressKey(modifiers, static_cast<std::uint32_t>(key));
}

/// How often the dialog was shown, and answered, while that was done.
int TestSplitterPage::conflictsWhile(const std::function<void()> &act)
{
    int shown = 0;
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [&shown] {
        if (auto *dialog = qobject_cast<ZelmarDialog *>(QApplication::activeModalWidget())) {
            ++shown;
            dialog->accept();
        }
    });
    answer.start(0);
    act();
    return shown;
}

void TestSplitterPage::keysArrange()
{
    startWith([] {
        for (const auto &[key, text] : {std::pair("Next", "Ctrl+1"), {"Previous", "Ctrl+2"}, {"Restore", "Alt+3"}})
            QVERIFY(storeSetting(QStringLiteral("Splitter/Key") + key, QLatin1String(text)));
        QVERIFY(storeSetting(QStringLiteral("Splitter/KeyZones"), QStringLiteral("Ctrl+Bogus")));
    });
    for (const auto &[key, modifiers, expected, note] :
         {std::tuple('1', kControl, "0,0 683x720", "notes.exe: Zone 1 of 2"),
          {'1', kControl, "683,0 683x720", "notes.exe: Zone 2 of 2"},
          {'2', kControl, "0,0 683x720", "notes.exe: Zone 1 of 2"},
          {'3', platform::kModifierAlt, "100,90 500x400", "notes.exe: Back at its old place"}}) {
        pressKey(key, modifiers);
        QCOMPARE(place(), QLatin1String(expected));
        QCOMPARE(m_window->overlay()->text(), QLatin1String(note));
    }
    QTest::keyClick(page().keys()->field(SplitAction::Next), Qt::Key_9, Qt::ControlModifier); // counts at once
    pressKey('1');
    QCOMPARE(place(), QStringLiteral("100,90 500x400"));
    pressKey('9');
    QCOMPARE(place(), QStringLiteral("0,0 683x720"));
    QCOMPARE(settingsString(QStringLiteral("Splitter/KeyNext"), {}, false, QLatin1String(kConfigFile)),
             QStringLiteral("Ctrl+9"));
    QTest::keyClick(page().keys()->field(SplitAction::Next), Qt::Key_Backspace);
    QVERIFY(!m_desk->desk.pressKey(kControl, '9'));
}

/// One combination, one function, whichever page has its field: in every order, and pressed while it is registered.
void TestSplitterPage::noKeyTwice()
{
    startWith([] {
        saveShortcuts({true, {{12, true, QStringLiteral("Ctrl+B"), {}}}});
        QVERIFY(storeSetting(QStringLiteral("Splitter/KeyNext"), QStringLiteral("Ctrl+1")));
    });
    auto *shortcuts = static_cast<pageShortcutKey *>(m_window->page(PageId::ShortcutKey));
    ZelmarKeySequenceEdit *minus = shortcuts->shortcutRows()[0]->minusEdit();
    ZelmarKeySequenceEdit *next = page().keys()->field(SplitAction::Next);
    ZelmarKeySequenceEdit *before = page().keys()->field(SplitAction::Previous);
    for (const auto &[field, key] : {std::pair(minus, Qt::Key_1), {before, Qt::Key_1}, {before, Qt::Key_B}}) {
        QCOMPARE(conflictsWhile([&] { QTest::keyClick(field, key, Qt::ControlModifier); }), 1);
        QCOMPARE(field->text(), QString());
    }
    openPage();
    for (const char key : {'B', '1'}) { // the system keeps them from the field
        m_window->activateWindow();
        before->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), before);
        QCOMPARE(conflictsWhile([&] { pressKey(key); }), 1);
    }
    QCOMPARE(place(), QStringLiteral("100,90 500x400"));
    QCOMPARE(conflictsWhile([&] { QTest::keyClick(next, Qt::Key_1, Qt::ControlModifier); }), 0); // its own
    QVERIFY(m_desk->desk.hotKeys().take(kControl, 'K'));
    QTest::keyClick(before, Qt::Key_K, Qt::ControlModifier);
    QVERIFY(page().keys()->findChild<QLabel *>(QStringLiteral("notice"))->text().contains(QLatin1String("Ctrl+K")));
    shortcuts->shortcutRows()[0]->trashButton()->click(); // a row that is gone takes no key
    QCOMPARE(conflictsWhile([&] { QTest::keyClick(before, Qt::Key_B, Qt::ControlModifier); }), 0);
}

/// Also where the user wants no notes of what keys did.
void TestSplitterPage::refusalIsTold()
{
    startWith([] { QVERIFY(storeSetting(QStringLiteral("Splitter/KeyNext"), QStringLiteral("Ctrl+1"))); });
    setHotkeyOverlayOn(false);
    openPage();
    m_desk->desk.applications().bringToFront(1);
    pressKey('1');
    QCOMPARE(m_window->overlay()->text(), QStringLiteral("fixed.exe: The window cannot be resized."));
    QCOMPARE(page().notice(), m_window->overlay()->text());
    QCOMPARE(place(1), QStringLiteral("10,20 300x200"));
    m_desk->desk.applications().setList({});
    button("showZones")->click();
    QVERIFY(page().notice().contains(QLatin1String("No window is in front")));
    QVERIFY(!overlay());
    QTest::mouseClick(m_window->tabs()->tabs().front(), Qt::LeftButton);
    QCOMPARE(openPage().notice(), QString()); // another may be by now
}

void TestSplitterPage::overlayByNumbers()
{
    startWith();
    QVERIFY(!overlay()); // it costs nothing until it is wanted
    for (const auto &[act, expected] : std::initializer_list<std::pair<std::function<void()>, const char *>>{
             {[this] { QTest::keyClick(overlay(), Qt::Key_2); }, "683,0 683x720"},
             {[this] { QTest::keyClick(overlay(), Qt::Key_Escape); }, "683,0 683x720"},
             {[this] { QTest::keyClick(overlay()->zones()[1], Qt::Key_Left); }, "683,0 683x720"}, // only moves
             {[this] { QTest::mouseClick(overlay()->zones()[0], Qt::LeftButton); }, "0,0 683x720"},
             {[this] { QTest::keyClick(overlay()->zones()[0], Qt::Key_Return); }, "100,90 500x400"},
             {[this] { QTest::keyClick(overlay(), Qt::Key_3); }, "100,90 500x400"}}) {
        if (!overlay() || !overlay()->isVisible())
            m_window->onSpliter();
        QVERIFY(overlay()->isVisible());
        m_desk->desk.applications().leaveFront(); // it takes the front itself
        const QString before = place();
        int marked = 0;
        for (const QPushButton *zone : overlay()->zones())
            marked += zone->isChecked();
        QCOMPARE(marked, before.startsWith(QLatin1String("100,")) ? 0 : 1);
        act();
        QCOMPARE(place(), QLatin1String(expected));
        QCOMPARE(m_desk->desk.windows().foregroundWindow() != nullptr, !overlay()->isVisible() && before != place());
        m_desk->desk.applications().bringToFront(0);
    }
}

/// The tray's panel, the page's button and the slots mean the window that was in front before them.
void TestSplitterPage::openedFromElsewhere()
{
    startWith();
    openPage();
    page().model().add(QStringLiteral("Mine"));
    page().editor()->cut(Cut::Across);
    const std::pair<std::function<void()>, std::size_t> ways[] = {
        {[this] { m_window->onSpliter(); }, 3},
        {[this] { m_window->onSpliterFixed(); }, 2},
        {[this] { button("showZones")->click(); }, 3},
        {[this] {
             m_window->trayPanel()->press({});
             m_window->trayPanel()->panel()->findChild<QPushButton *>(QStringLiteral("arrangeWindow"))->click();
             QVERIFY(!m_window->trayPanel()->isOpen());
         },
         3}};
    m_desk->desk.applications().leaveFront();
    for (const auto &[open, count] : ways) {
        open();
        QCOMPARE(overlay()->zones().size(), count);
        QVERIFY(overlay()->isVisible() && overlay()->accessibleName().contains(QLatin1String("notes.exe")));
        overlay()->hide();
    }
}

/// While it opens the front may come and go.
void TestSplitterPage::goesWithTheFront()
{
    startWith();
    m_window->onSpliter();
    for (const auto age : {0ms, 500ms}) {
        overlay()->activateWindow();
        QTRY_VERIFY(overlay()->isActiveWindow());
        m_desk->clock.advance(age);
        m_window->activateWindow();
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(overlay()->isVisible(), age == 0ms);
    }
    for (const bool shown : {true, false}) { // opening once more closes it
        m_window->onSpliter();
        QCOMPARE(overlay()->isVisible(), shown);
    }
}

/// A question holds up the program's window, not the zones: they are for the window of another program.
void TestSplitterPage::besideAQuestion()
{
    startWith();
    QTimer::singleShot(0, this, [this] {
        QPointer question = QApplication::activeModalWidget();
        const auto closeAnyhow = qScopeGuard([question] { question->close(); });
        m_window->onSpliter();
        const QPushButton *zone = overlay()->zones()[1];
        QTest::mouseClick(overlay()->windowHandle(), Qt::LeftButton, {}, zone->mapTo(overlay(), zone->rect().center()));
        QCOMPARE(place(), QStringLiteral("683,0 683x720"));
        QVERIFY(question && question->isVisible());
        m_window->showInFront();
        QTRY_VERIFY(question->isActiveWindow()); // what the window waits for has the keyboard
    });
    askYesNo(QStringLiteral("title"), QStringLiteral("text"), m_window.get());
}

static void dragOn(QWidget *widget, QPoint from, QPoint to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    QTest::mouseMove(widget, to);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

void TestSplitterPage::drawingByMouseAndKeys()
{
    startWith();
    LayoutEditor *editor = openPage().editor();
    const auto at = [editor](double x, double y) {
        const QRectF screen = editor->screenRect();
        return (screen.topLeft() + QPointF(screen.width() * x, screen.height() * y)).toPoint();
    };
    const auto drag = [editor](QPoint from, QPoint to) { dragOn(editor, from, to); };
    const QString halves = zones();
    drag(at(0.25, 0.2), at(0.25, 0.7));
    QCOMPARE(zones(), halves); // a fixed one stays
    button("layoutNew")->click();
    const QString cut = QStringLiteral("0-0-1260-5040+1260-0-2520-5040+2520-0-5040-5040");
    const QString moved = QStringLiteral("0-0-1260-5040+1260-0-3360-5040+3360-0-5040-5040");
    const QString crossed = QStringLiteral("0-0-1260-5040+1260-0-3360-2520+3360-0-5040-5040+1260-2520-3360-5040");
    for (const auto &[act, expected] : std::initializer_list<std::pair<std::function<void()>, QString>>{
             {[&] { drag(at(0.25, 0.5), at(0.25, 0.51)); }, halves}, // too short to be meant
             {[&] { drag(at(0.251, 0.2), at(0.26, 0.7)); }, cut},
             {[&] {
                  QTest::mousePress(editor, Qt::LeftButton, Qt::NoModifier, at(0.497, 0.2));
                  QTest::mouseMove(editor, at(0.665, 0.3));
                  QTest::keyClick(editor, Qt::Key_Escape);
                  QTest::mouseRelease(editor, Qt::LeftButton, Qt::NoModifier, at(0.665, 0.3));
              },
              cut},
             {[&] { drag(at(0.497, 0.2), at(0.665, 0.3)); }, moved},
             {[&] { QTest::keyClick(editor, Qt::Key_Left); }, moved},
             {[&] { QTest::keyClick(editor, Qt::Key_Right); }, moved},
             {[&] { button("layoutCutAcross")->click(); }, crossed},
             {[&] { button("layoutUndo")->click(); }, moved},
             {[&] { QTest::keyClick(editor, Qt::Key_Left, Qt::ControlModifier); }, // an edge of the zone that is chosen
              QStringLiteral("0-0-1260-5040+1260-0-3255-5040+3255-0-5040-5040")},
             {[&] { button("layoutUndo")->click(); }, moved},
             {[&] { button("layoutJoin")->click(); }, QStringLiteral("0-0-3360-5040+3360-0-5040-5040")}}) {
        act();
        QCOMPARE(zones(), expected);
        QCOMPARE(loadLayouts(page().model().screen().key()).chosen, page().model().chosen()); // stored at once
    }
}

void TestSplitterPage::layoutsOfTheUsersOwn()
{
    startWith();
    openPage();
    const QString halves = zones();
    button("layoutNew")->click();
    button("layoutCutAcross")->click();
    auto *name = page().findChild<QLineEdit *>(QStringLiteral("layoutName"));
    name->setText(QStringLiteral("  Code / chat "));
    Q_EMIT name->editingFinished();
    QCOMPARE(page().tiles().back()->accessibleName(), QStringLiteral("Code / chat"));
    QVERIFY(page().tiles().back()->checkedState().value_or(false));
    button("layoutDelete")->click();
    QCOMPARE(page().tiles().size(), std::size_t(4));
    button("layoutUndo")->click();
    QTest::keyClick(page().tiles().front(), Qt::Key_Space);
    QCOMPARE(zones(), halves);
    QCOMPARE(page().tiles().size(), std::size_t(5));
}

/// What the file does not take is not made.
void TestSplitterPage::unwritableFile()
{
    startWith();
    openPage();
    QFile::remove(QLatin1String(kConfigFile));
    QVERIFY(QDir().mkdir(QLatin1String(kConfigFile)));
    button("layoutNew")->click();
    QCOMPARE(page().tiles().size(), std::size_t(4));
    QVERIFY(page().notice().contains(QLatin1String(kConfigFile)));
    QVERIFY(QDir().rmdir(QLatin1String(kConfigFile)));
    button("layoutNew")->click();
    QCOMPARE(page().tiles().size(), std::size_t(5));
    QCOMPARE(page().notice(), QString());
}

void TestSplitterPage::screensChange()
{
    startWith();
    openPage();
    QCOMPARE(page().screenBox()->currentText(), QStringLiteral("Q27-OLED · 1366 × 768"));
    button("layoutNew")->click();
    for (const auto &[screen, tiles] : {std::pair(QRect(0, 0, 800, 600), 4), {kScreen, 5}}) {
        m_desk->desk.displays().setDisplays({{QStringLiteral("\\\\.\\DISPLAY1"), screen}});
        m_window->onSpliter();
        QVERIFY(overlay()->isVisible());
        m_desk->desk.changeDisplays();
        QVERIFY(!overlay()->isVisible());
        QCOMPARE(page().tiles().size(), std::size_t(tiles));
        QVERIFY(!button("layoutUndo")->isEnabled()); // what was changed belongs to another screen
    }
}

QTEST_MAIN(TestSplitterPage)
#include "tst_splitterpage.moc"
