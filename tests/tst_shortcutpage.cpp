#include <QtTest>
#include <QtWidgets>

#include "controls/zelmarkeysequenceedit.h"
#include "ddc_protocol/devicestate.h"
#include "page/BasicSetting/pageshortcutkey.h"
#include "page/BasicSetting/shortcutrow.h"
#include "page/engine/keyfields.h"
#include "platform/nativemessage.h"
#include "shortcut/shortcutlist.h"
#include "support/deskfixture.h"

using namespace std::chrono_literals;

namespace {

constexpr std::uint32_t kControl = platform::kModifierControl;
constexpr std::uint32_t kAlt = platform::kModifierAlt;
const QString kFile = QStringLiteral("basicMode.ini");

/// Answers the dialog at once and counts how often it was shown.
class TestedPage : public pageShortcutKey
{
public:
    using pageShortcutKey::pageShortcutKey;
    int conflicts = 0;
    std::function<void()> whileShown = [] {};

protected:
    void showConflict() override
    {
        if (++conflicts == 1)
            whileShown();
    }
};

} // namespace

class TestShortcutPage : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void roundTripIsExact();
    void fitsALowWindow();
    void loading();
    void keysReachTheMonitor();
    void switches();
    void refusedKeysAreShown();
    void twoRowsChangeKeys();
    void addAndDelete();
    void otherMonitorsRowsAreKept();
    void fieldSaysWhyNot();
    void keysInUse();
    void applyWaitsForChanges();
    void unwritableFile();

private:
    void start();
    void start(const std::vector<ShortcutEntry> &entries) { saveShortcuts({true, entries}), start(); }
    ShortcutRow *row(std::size_t index) const { return m_page->shortcutRows()[index]; }
    QPushButton *button(const char *name) const { return m_page->findChild<QPushButton *>(QLatin1String(name)); }
    QStringList press(std::uint32_t modifiers, char key);

    KeyFields m_fields;
    std::unique_ptr<TestedPage> m_page;
};

void TestShortcutPage::init()
{
    DeskSuite::init();
    findDevices();
    deviceState.store(Command::Capability, static_cast<int>(Capability::GameFunctions));
}

void TestShortcutPage::cleanup()
{
    m_page.reset();
    DeskSuite::cleanup();
}

void TestShortcutPage::start()
{
    m_page.reset();
    m_page = std::make_unique<TestedPage>(m_fields);
    m_desk->clock.advance(200ms);
}

QStringList TestShortcutPage::press(std::uint32_t modifiers, char key)
{
    m_desk->takeCommands();
    m_desk->desk.pressKey(modifiers, static_cast<std::uint32_t>(key));
    m_desk->clock.advance(200ms);
    return m_desk->takeCommands();
}

void TestShortcutPage::fitsALowWindow()
{
    start();
    QWidget window;
    m_page->setParent(&window);
    window.show();
    for (const auto &[room, height] : {std::pair(648, 648), {800, 680}}) {
        window.resize(1000, room);
        QTRY_COMPARE(m_page->height(), height);
    }
    m_page->setParent(nullptr);
}

void TestShortcutPage::roundTripIsExact()
{
    const QByteArray text = "[12]\nplusKey=Ctrl+B\nsubKey=Ctrl+Alt+5\nswitchStatus=on\n\n"
                            "[29]\nplusKey=\nsubKey=Alt+Q\nswitchStatus=off\n\n"
                            "[basicMode]\nswitchStatus=off\n";
    writeText(kFile, text);
    start();
    QVERIFY(readText(kFile) == text && m_page->shortcutRows().size() == 2); // the page has stored it once by now
    QVERIFY(!m_page->isMasterOn() && row(0)->plusEdit()->isEnabled());
    QVERIFY(!row(1)->minusEdit()->isEnabled() && !row(1)->minusEdit()->accessibleDescription().isEmpty());
}

void TestShortcutPage::loading()
{
    QByteArray many = "[3]\nplusKey=Ctrl+3\nswitchStatus=on\n";
    for (int i = 100; i < 20100; ++i)
        many += "[" + QByteArray::number(i) + "]\nswitchStatus=on\n";
    for (const auto &[text, functions, keys, field] : // the keys that are registered afterwards; the first field
         {std::tuple(QByteArray(), QList<int>(), 0, ""),
          {"[30]\nswitchStatus=on\n[-1]\nswitchStatus=on\n[x]\nswitchStatus=on\n[07]\nswitchStatus=on\n", {}, 0, ""},
          {"[1]\nswitchStatus=on\n[2]\nplusKey=Ctrl+2\n", {1}, 0, ""},
          {"[1]\nplusKey=Ctrl+1\nswitchStatus=ON\n", {1}, 0, "Ctrl+1"},
          {"[1]\nplusKey=Ctrl+Bogus\nsubKey=,,,\nswitchStatus=on\n", {1}, 0, ""},
          {"[1]\nplusKey=\"Ctrl+A, Ctrl+B\"\nswitchStatus=on\n", {1}, 1, "Ctrl+A"},
          {"[1]\nplusKey=Ctrl+1\nswitchStatus=on\n[2]\nplusKey=Ctrl+1\nsubKey=Ctrl+2\nswitchStatus=on\n",
           {1, 2},
           2,
           "Ctrl+1"},
          {"[9]\nswitchStatus=on\n[10]\nswitchStatus=on\n[2]\nswitchStatus=off\n", {2, 9, 10}, 0, ""},
          {QByteArray::fromHex("7f454c460000010203") + "\n<html>\n{ }\n", {}, 0, ""}, // another program's file
          {many, {3}, 1, "Ctrl+3"}}) {
        if (!text.isEmpty())
            writeText(kFile, text);
        start();
        QList<int> shown;
        for (const ShortcutRow *each : m_page->shortcutRows())
            shown.append(each->function());
        QCOMPARE(shown, functions);
        QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(keys));
        QCOMPARE(shown.isEmpty() ? QString() : row(0)->plusEdit()->text(), QLatin1String(field));
    }
    QVERIFY(keySequenceOf(QStringLiteral("Ctrl+Bogus")).isEmpty());
}

void TestShortcutPage::keysReachTheMonitor()
{
    m_desk->monitor().setValue(0x10, 95);
    start({{12, true, QStringLiteral("Ctrl+B"), QStringLiteral("Alt+B")}});
    deviceState.store(Command::SceneMode, 9);
    QCOMPARE(press(kControl, 'B'), (QStringList{"R 10", "W 10=100"}));
    QCOMPARE(press(kAlt, 'B'), (QStringList{"R 10", "W 10=90"}));
}

void TestShortcutPage::switches()
{
    start({{1, true, QStringLiteral("Ctrl+1"), QStringLiteral("Ctrl+2")}});
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(2));
    row(0)->switchButton()->click();
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0));
    QVERIFY(!row(0)->plusEdit()->isEnabled());
    QCOMPARE(row(0)->switchButton()->accessibleDescription(), QStringLiteral("Off"));
    QCOMPARE(row(0)->plusEdit()->text(), QStringLiteral("Ctrl+1"));
    QVERIFY(readText(kFile).contains("switchStatus=off"));
    row(0)->switchButton()->click();
    QCOMPARE(press(kControl, '2'), QStringList{"W 22=4"});
    button("pushButton")->click(); // all of them
    QVERIFY(readText(kFile).contains("[basicMode]\nswitchStatus=off"));
    QVERIFY(!m_page->notice().isEmpty());
    row(0)->switchButton()->click(); // the rows' switches work on, but register nothing now
    row(0)->switchButton()->click();
    QTest::keyClick(row(0)->minusEdit(), Qt::Key_3, Qt::ControlModifier);
    button("pushButtonAppli")->click();
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0));
    QVERIFY(m_desk->desk.hotKeys().take(kControl, '1')); // by another program
    start();
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0)); // nor does the next start
    QVERIFY(!row(0)->isTaken(0));
    button("pushButton")->click();
    QVERIFY(row(0)->isTaken(0));
    QCOMPARE(press(kControl, '3'), QStringList{"W 22=4"});
}

void TestShortcutPage::refusedKeysAreShown()
{
    m_desk->desk.hotKeys().take(kControl, 'K');
    const QString key = QStringLiteral("Ctrl+K");
    start({{1, true, key, QStringLiteral("Ctrl+L")}, {2, true, key, key}});
    QVERIFY(row(0)->isTaken(0) && !row(0)->isTaken(1));
    QCOMPARE(row(1)->findChild<QLabel *>(QStringLiteral("problem"))->text().count(key), 1);
    const auto *problem = row(0)->findChild<QLabel *>(QStringLiteral("problem"));
    QVERIFY(!problem->isHidden());
    QVERIFY(problem->text().contains(key));
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_J, Qt::ControlModifier);
    button("pushButtonAppli")->click();
    QVERIFY(problem->isHidden());
    QCOMPARE(press(kControl, 'J'), QStringList{"W 22=3"});
}

void TestShortcutPage::twoRowsChangeKeys()
{
    start({{1, true, QStringLiteral("Ctrl+1"), {}}, {2, true, QStringLiteral("Ctrl+2"), {}}});
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_Backspace);
    QTest::keyClick(row(1)->plusEdit(), Qt::Key_1, Qt::ControlModifier);
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_2, Qt::ControlModifier);
    QCOMPARE(press(kControl, '1'), QStringList{"W 22=3"}); // not before it is applied
    button("pushButtonAppli")->click();
    QCOMPARE(press(kControl, '1'), QStringList{"W 22=5"});
    QCOMPARE(press(kControl, '2'), QStringList{"W 22=3"});
    start({{1, true, QStringLiteral("Ctrl+A"), {}}, {2, true, QStringLiteral("Alt+B"), {}}});
    for (const std::size_t count : {0, 2}) { // they have one id; the system may take either away
        button("pushButton")->click();
        QCOMPARE(m_desk->desk.hotKeys().count(), count);
    }
    row(1)->trashButton()->click();
    QCOMPARE(press(kControl, 'A'), QStringList{"W 22=3"});
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(1));
}

void TestShortcutPage::addAndDelete()
{
    start();
    QComboBox *box = m_page->functionBox();
    const auto isMarked = [box](int row) {
        const QModelIndex entry = box->model()->index(row, 0);
        return !entry.flags().testFlag(Qt::ItemIsEnabled) && entry.data(Qt::CheckStateRole) == Qt::Checked;
    };
    box->setCurrentIndex(12);
    QVERIFY(!isMarked(12));
    button("pushButton_2")->click();
    QVERIFY(isMarked(12) && !isMarked(11));
    m_page->show();
    box->showPopup();
    QCOMPARE(box->view()->viewport()->height() / box->view()->sizeHintForRow(0), 10);
    QVERIFY(box->view()->verticalScrollBar()->isVisible());
    box->hidePopup();
    button("pushButton_2")->click(); // a function has one row
    QCOMPARE(m_page->shortcutRows().size(), std::size_t(1));
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_B, Qt::ControlModifier);
    button("pushButtonAppli")->click();
    QCOMPARE(loadShortcuts().entries, (std::vector<ShortcutEntry>{{12, true, QStringLiteral("Ctrl+B"), {}}}));
    row(0)->trashButton()->click();
    QVERIFY(!isMarked(12));
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0));
    button("pushButton_2")->click(); // it may come again
    QCOMPARE(m_page->shortcutRows().size(), std::size_t(1));
    QVERIFY(row(0)->plusEdit()->text().isEmpty());
}

void TestShortcutPage::otherMonitorsRowsAreKept()
{
    const ShortcutEntry game{26, true, QStringLiteral("Ctrl+G"), {}};
    saveShortcuts({true, {{1, true, {}, {}}, game}});
    deviceState.store(Command::Capability, 0);
    start();
    QCOMPARE(m_page->functionBox()->count(), 24);
    QCOMPARE(m_page->shortcutRows().size(), std::size_t(1));
    QCOMPARE(m_desk->desk.hotKeys().count(), std::size_t(0));
    button("pushButtonAppli")->click();
    QCOMPARE(loadShortcuts().entries.back(), game);

    const FixedValues rule{Command::AudioMute, 1, 0};
    const ShortcutFunction functions[] = {
        {5, "one", rule}, {2, "two", rule, Capability::GameFunctions}, {9, "three", rule}};
    const auto offered = shortcutFunctionsOf(deviceState, functions); // one may be missing anywhere
    QVERIFY(offered.size() == 2 && offered[0]->number == 5 && offered[1]->number == 9);
}

void TestShortcutPage::fieldSaysWhyNot()
{
    start({{1, true, {}, {}}});
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_Control, Qt::ControlModifier); // only the beginning of one
    QVERIFY(m_page->notice().isEmpty());
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_A, Qt::ShiftModifier);
    const QString noModifier = m_page->notice();
    QVERIFY(!noModifier.isEmpty());
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_5, Qt::ControlModifier | Qt::KeypadModifier);
    QVERIFY(!m_page->notice().isEmpty() && m_page->notice() != noModifier);
    QVERIFY(row(0)->plusEdit()->text().isEmpty());
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_A, Qt::AltModifier);
    QVERIFY(m_page->notice().contains(button("pushButtonAppli")->text())); // what to do next
}

/// The system keeps a registered combination from every field, so it comes back as a hot key.
void TestShortcutPage::keysInUse()
{
    start({{1, true, QStringLiteral("Ctrl+1"), {}}, {2, true, QStringLiteral("Ctrl+1"), {}}});
    m_page->show();
    m_page->activateWindow();
    for (QWidget *visited : {row(0)->plusEdit(), row(1)->minusEdit(), row(1)->plusEdit()}) {
        visited->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), visited);
    }
    QVERIFY(m_page->conflicts == 0 && m_page->notice().isEmpty()); // visits neither change nor ask
    QStringList asked;                                             // of the monitor, by the key that is held down still
    m_page->whileShown = [this, &asked] { asked = press(kControl, '1'); };
    QCOMPARE(press(kControl, '1'), QStringList());
    QCOMPARE(asked, QStringList());
    QCOMPARE(m_page->conflicts, 1);
    row(0)->plusEdit()->setFocus();
    QCOMPARE(press(kControl, '1'), QStringList());
    QCOMPARE(row(0)->plusEdit()->text(), QStringLiteral("Ctrl+1"));
    QCOMPARE(m_page->conflicts, 1);
    button("pushButtonAppli")->setFocus();
    QCOMPARE(press(kControl, '1'), QStringList{"W 22=3"});
    QTest::keyClick(row(1)->minusEdit(), Qt::Key_1, Qt::ControlModifier); // where the system let it through
    QCOMPARE(m_page->conflicts, 2);
    QCOMPARE(row(1)->minusEdit()->text(), QString());
    QCOMPARE(row(0)->plusEdit()->text(), QStringLiteral("Ctrl+1"));
    QTest::keyClick(row(1)->minusEdit(), Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier); // another combination
    QTest::keyClick(row(0)->plusEdit(), Qt::Key_1, Qt::ControlModifier);                      // its own is no conflict
    QTest::keyClick(row(0)->minusEdit(), Qt::Key_Backspace);                                  // nor are empty fields
    QCOMPARE(m_page->conflicts, 2);
}

/// Lit is what differs from what is stored and registered.
void TestShortcutPage::applyWaitsForChanges()
{
    start({{1, true, {}, {}}, {2, true, QStringLiteral("Ctrl+1"), {}}});
    const auto isLit = [this] { return button("pushButtonAppli")->property("waiting").toBool(); };
    for (const bool lit : {true, false}) { // a change, and the way back
        QTest::keyClick(row(0)->minusEdit(), lit ? Qt::Key_5 : Qt::Key_Backspace, Qt::ControlModifier);
        QCOMPARE(isLit(), lit);
    }
    button("pushButton_2")->click();
    row(2)->trashButton()->click(); // never counted
    QVERIFY(!isLit());
    row(1)->trashButton()->click(); // gives its keys back, so the same row is news
    m_page->functionBox()->setCurrentIndex(2);
    button("pushButton_2")->click();
    row(1)->plusEdit()->setKeySequence(QKeySequence(Qt::CTRL | Qt::Key_1));
    QVERIFY(isLit());
}

void TestShortcutPage::unwritableFile()
{
    start({{12, true, QStringLiteral("Ctrl+B"), {}}});
    QVERIFY(QDir().mkdir(kFile + QStringLiteral(".d"))); // a folder under the file's name takes no settings
    QFile::remove(kFile);
    QVERIFY(QDir().rename(kFile + QStringLiteral(".d"), kFile));
    m_page->functionBox()->setCurrentIndex(2);
    button("pushButton_2")->click();
    button("pushButtonAppli")->click();
    QVERIFY(m_page->notice().contains(kFile));
    QVERIFY(button("pushButtonAppli")->property("waiting").toBool());
    QVERIFY(loadShortcuts().entries.empty()); // nobody is told what the file did not take
}

QTEST_MAIN(TestShortcutPage)
#include "tst_shortcutpage.moc"
