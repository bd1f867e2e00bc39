#include <QtTest>
#include <QtWidgets>

#include "controls/messagestrip.h"
#include "following/followlist.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/Nightloom/parts/workpanel.h"
#include "page/Splitter/splitting.h"
#include "page/Splitter/zoneoverlay.h"
#include "page/engine/boundtexts.h"
#include "page/engine/panelpage.h"
#include "support/windowfixture.h"
#include "tray/traypanel.h"
#include "tray/traypanelopener.h"
#include "virtualdesk/deskwindow.h"
#include "virtualdesk/osdfunctions.h"
#include "virtualdesk/osdlist.h"

using namespace std::chrono_literals;

namespace {

using Interface = QAccessibleInterface;

QString nameOf(const Interface *at)
{
    return at->text(QAccessible::Name);
}

Interface *seen(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

void walk(Interface *at, const std::function<void(Interface *)> &visit)
{
    visit(at);
    for (int i = 0; i < at->childCount(); ++i) {
        if (Interface *child = at->child(i); child && !child->state().invisible)
            walk(child, visit);
    }
}

/// What the keyboard or a press reaches; the inner field of a control that takes the focus itself is none.
bool isControl(const Interface *at)
{
    const auto *widget = qobject_cast<QWidget *>(at->object());
    const bool isInner = widget && widget->focusProxy();
    const bool isArea = qobject_cast<const QScrollArea *>(widget); // scrolled by keys, and no more
    return at->state().focusable && !isInner && !isArea;
}

bool isRole(const Interface *at, std::initializer_list<QAccessible::Role> roles)
{
    return std::find(roles.begin(), roles.end(), at->role()) != roles.end();
}

bool isChoice(const Interface *at)
{
    return isRole(at, {QAccessible::RadioButton, QAccessible::PageTab}) && at->object();
}

/// One that can be used is the only one that Tab finds, and it is the chosen one unless that cannot be used.
bool isOneStop(const std::vector<Interface *> &choices)
{
    int stops = 0;
    bool chosenWithout = false;
    bool usable = false;
    for (const Interface *choice : choices) {
        const auto *widget = static_cast<QWidget *>(choice->object());
        const bool isStop = widget->focusPolicy() & Qt::TabFocus;
        const bool isChosen = choice->state().checked || choice->state().selected;
        stops += isStop;
        usable = usable || !choice->state().disabled;
        chosenWithout = chosenWithout || (isChosen && !choice->state().disabled && !isStop && !widget->hasFocus());
    }
    return !usable || (stops == 1 && !chosenWithout);
}

/// Why a thing cannot be understood by who does not see it; empty when it can.
QString faultOf(Interface *at, std::map<QString, int> &names)
{
    static const QRegularExpression kWord(QStringLiteral("\\w"), QRegularExpression::UseUnicodePropertiesOption);
    const bool isNamed = nameOf(at).contains(kWord);
    if (isControl(at) && !isRole(at, {QAccessible::Button, QAccessible::CheckBox, QAccessible::RadioButton,
                                      QAccessible::PageTab, QAccessible::Slider, QAccessible::SpinBox,
                                      QAccessible::ComboBox, QAccessible::EditableText, QAccessible::Canvas,
                                      QAccessible::PageTabList, QAccessible::ButtonMenu, QAccessible::ColorChooser}))
        return QStringLiteral("no role");
    if ((isControl(at) || isRole(at, {QAccessible::Button, QAccessible::Grouping, QAccessible::Pane, QAccessible::Chart,
                                      QAccessible::Canvas})) &&
        !isNamed)
        return QStringLiteral("no name");
    if (isRole(at, {QAccessible::Slider, QAccessible::RadioButton, QAccessible::Button}) &&
        names[QString::number(at->role()) + nameOf(at)]++ > 0)
        return QStringLiteral("the name of another one");
    if (isRole(at, {QAccessible::Slider, QAccessible::Chart, QAccessible::Canvas, QAccessible::ColorChooser}) &&
        at->text(QAccessible::Value).isEmpty())
        return QStringLiteral("no value");
    if (at->state().disabled && qobject_cast<QPushButton *>(at->object()) &&
        at->text(QAccessible::Description).isEmpty())
        return QStringLiteral("locked without a reason");
    if (at->role() == QAccessible::ComboBox && nameOf(at) == at->text(QAccessible::Value))
        return QStringLiteral("no name but its value");
    std::vector<Interface *> choices;
    for (int i = 0; i < at->childCount(); ++i) {
        if (Interface *child = at->child(i); child && isChoice(child) && !child->state().invisible)
            choices.push_back(child);
    }
    if (!choices.empty() && !isRole(at, {QAccessible::Grouping, QAccessible::PageTabList}))
        return QStringLiteral("no group of its choices");
    return isOneStop(choices) ? QString() : QStringLiteral("not one stop");
}

/// Two options of which one is "off", whatever the two are called.
bool isOnOff(const OptionGroup &group)
{
    static const QSet<QByteArray> kOff = {"Disable", "Close", "No", "Off"};
    return group.options.size() == 2 && std::ranges::any_of(group.options, [](const Option &option) {
               return option.value == 0 && kOff.contains(QByteArray(option.label).trimmed());
           });
}

QStringList faultsIn(QWidget *window)
{
    QStringList found;
    std::map<QString, int> names;
    walk(seen(window), [&](Interface *at) {
        const QString fault = faultOf(at, names);
        const QObject *object = at->object();
        if (!fault.isEmpty())
            found += QStringLiteral("%1 %2 \"%3\": %4")
                         .arg(object ? object->metaObject()->className() : "",
                              object ? object->objectName() : QString(), nameOf(at), fault);
    });
    return found;
}

} // namespace

/// What the keyboard and assistive software reach, and how.
class TestReach : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void everyControlSaysWhatItIs();
    void arrowsOnlyMove();
    void tabsTellTheirStates();
    void listedEntriesTellTheirStates();
    void assistiveSoftwareMovesSliders();
    void oneObjectTells();

private:
    void open(int family, const char *label);
    OptionGroupRow *openInputs();
};

void TestReach::everyControlSaysWhatItIs()
{
    start(10, 0, [] { saveFollowList({{QStringLiteral("C:/Games/game.exe"), 1}}); });
    for (const auto &[page, button] :
         {std::pair(PageId::ShortcutKey, "pushButton_2"), {PageId::LedCanvas, "Add Frame"}})
        m_window->page(page)->widget()->findChild<QPushButton *>(QLatin1String(button))->click();
    QSet<QString> faults;
    onEveryPage([&](QWidget *page) {
        if (seen(page)->role() != QAccessible::Pane || nameOf(seen(page)).isEmpty())
            faults.insert(QStringLiteral("%1: no named panel").arg(page->objectName()));
        for (const QString &fault : faultsIn(m_window.get()))
            faults.insert(fault);
        for (const OptionGroupRow *row : page->findChildren<OptionGroupRow *>()) {
            if (isOnOff(row->group()) != (row->group().look == GroupLook::Switch))
                faults.insert(QStringLiteral("%1: no switch, or one too many").arg(row->accessibleName()));
        }
    });
    m_window->trayPanel()->press({});
    m_desk->desk.applications().bringToFront(0);
    m_window->onSpliter();
    virtualdesk::DeskWindow desk(m_desk->desk);
    desk.show();
    QScrollBar *menu = desk.findChild<virtualdesk::OsdList *>()->verticalScrollBar();
    menu->setValue(menu->maximum()); // its rows are made as they come into sight
    const QList<QPushButton *> steps = desk.findChildren<QPushButton *>(QStringLiteral("osdButton"));
    QCOMPARE(std::size_t(steps.size()), 2 * virtualdesk::osdMenu().size());
    for (QWidget *other :
         std::initializer_list<QWidget *>{m_window->trayPanel()->panel(), m_window->splitting()->overlay(), &desk}) {
        for (const QString &fault : faultsIn(other))
            faults.insert(fault);
    }
    QStringList sorted = faults.values();
    sorted.sort();
    QVERIFY2(sorted.isEmpty(), qPrintable(sorted.join(QLatin1Char('\n'))));
}

void TestReach::open(int family, const char *label)
{
    QTest::mouseClick(m_window->tabs()->tabs()[static_cast<std::size_t>(family)], Qt::LeftButton);
    QTest::mouseClick(entry(family, label), Qt::LeftButton);
}

OptionGroupRow *TestReach::openInputs()
{
    start(10);
    open(kFamilies - 1, "I/O Settings");
    auto *page = static_cast<PanelPage *>(m_window->settingsPage(PageId::IoSetting));
    page->showPanel("Input Signal");
    m_window->activateWindow();
    return page->optionGroup(Command::InputSignal);
}

/// Nobody switches the input by walking past it; what presses sends what the mouse sends.
void TestReach::arrowsOnlyMove()
{
    const auto buttons = openInputs()->buttons();
    const auto sent = [this](auto &&act) {
        m_desk->takeCommands();
        act();
        QCoreApplication::processEvents();
        return m_desk->takeCommands().filter(QStringLiteral("W")).join(QLatin1Char(' '));
    };
    const auto key = [this](Qt::Key which) { QTest::keyClick(m_window->focusWidget(), which); };
    for (int way = 0; way < 4; ++way) {
        QTest::mouseClick(buttons[1], Qt::LeftButton);
        buttons[1]->setFocus(Qt::TabFocusReason);
        QCOMPARE(sent([&] {
                     for (const Qt::Key walk : {Qt::Key_Right, Qt::Key_End, Qt::Key_Up, Qt::Key_Home, Qt::Key_Down,
                                                Qt::Key_Down, Qt::Key_Right})
                         key(walk);
                 }),
                 QString());
        QCOMPARE(m_window->focusWidget(), buttons[3]);
        QVERIFY(seen(buttons[1])->state().checked);
        const std::function<void()> presses[] = {
            [&] { QTest::mouseClick(buttons[3], Qt::LeftButton); }, [&] { key(Qt::Key_Space); },
            [&] { key(Qt::Key_Enter); },
            [&] { seen(buttons[3])->actionInterface()->doAction(QAccessibleActionInterface::pressAction()); }};
        QCOMPARE(sent(presses[way]), QStringLiteral("W 57=3"));
        QVERIFY(seen(buttons[3])->state().checked && !seen(buttons[1])->state().checked);
    }
    virtualdesk::DeskWindow desk(m_desk->desk);
    auto *tabs = desk.findChild<QTabBar *>();
    for (const auto &[walk, open] : {std::pair(Qt::Key_Right, 0), {Qt::Key_End, 0}, {Qt::Key_Return, 3}}) {
        QTest::keyClick(tabs, walk);
        QCOMPARE(tabs->currentIndex(), open);
    }
}

/// Those of a bar are no widgets.
void TestReach::tabsTellTheirStates()
{
    start(10);
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    open(kFamilies - 2, "Custom Mode");
    const QWidget *canvas = m_window->page(PageId::LedCanvas)->widget();
    canvas->findChild<QPushButton *>(QStringLiteral("Add Frame"))->click();
    auto *tabs = canvas->findChild<QTabBar *>();
    const auto told = [tabs] {
        QStringList said = {nameOf(seen(tabs))};
        walk(seen(tabs), [&said](Interface *at) {
            if (at->state().selected)
                said += nameOf(at) + QStringLiteral(" chosen");
            if (at->state().focused)
                said += nameOf(at) + QStringLiteral(" focused");
        });
        return said.join(QStringLiteral(", "));
    };
    QCOMPARE(told(), QStringLiteral("Frames, Frame 2 chosen"));
    tabs->setFocus();
    QTest::keyClick(tabs, Qt::Key_Home);
    QCOMPARE(told(), QStringLiteral("Frames, Frame 1 focused, Frame 2 chosen"));
    seen(tabs)->child(0)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(told(), QStringLiteral("Frames, Frame 1 chosen, Frame 1 focused"));
}

/// Nor are those of a list.
void TestReach::listedEntriesTellTheirStates()
{
    start(10);
    open(kFamilies - 1, "Shortcut Key");
    const QWidget *keys = m_window->page(PageId::ShortcutKey)->widget();
    auto *box = keys->findChild<QComboBox *>();
    box->setCurrentIndex(1);
    keys->findChild<QPushButton *>(QStringLiteral("pushButton_2"))->click();
    box->showPopup();
    Interface *list = seen(box)->child(0);
    Interface *listed = list->child(1);
    QCOMPARE(nameOf(list), nameOf(seen(box)));
    QVERIFY(listed->state().disabled && !listed->state().selectable && listed->state().checked);
    QVERIFY(!listed->text(QAccessible::Description).isEmpty() && listed->actionInterface()->actionNames().isEmpty());
    QVERIFY(!list->child(2)->state().disabled && !list->child(2)->state().checked);
    list->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QTRY_COMPARE(box->currentIndex(), 2);
}

/// Also those that send when they are let go.
void TestReach::assistiveSoftwareMovesSliders()
{
    start(10);
    for (const auto &[name, code, value, text] :
         {std::tuple("Brightness", 0x10, 37, "37 %"), {"CR Enhance", 0x41, 4, "4 of 5"}}) {
        Interface *slider = seen(m_window->scenePage()->slider(name)->slider());
        slider->valueInterface()->setCurrentValue(value);
        QTRY_COMPARE(int(m_desk->monitor().value(std::uint8_t(code))), value);
        QCOMPARE(slider->text(QAccessible::Value), QLatin1String(text));
        slider->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
        QTRY_COMPARE(int(m_desk->monitor().value(std::uint8_t(code))), value - 1);
    }
    QWidget *below = m_window->scenePage()->slider("Hue_R")->slider();
    QVERIFY(below->visibleRegion().isEmpty());
    seen(below)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(!below->visibleRegion().isEmpty()); // who is led there by a voice may see a little
    m_window->page(PageId::SystemSetting)->widget()->show();
    for (const auto &[name, text] :
         {std::pair("Show Time(s)", "20 s"), {"No Signal Timer", "20 min"}, {"H-Position", "20 %"}}) {
        SliderWidget *slider = m_window->settingsPage(PageId::SystemSetting)->slider(name);
        slider->setValue(20);
        QCOMPARE(seen(slider->slider())->text(QAccessible::Value), QLatin1String(text));
    }
    SliderWidget *unread = m_window->scenePage()->slider("Contrast");
    unread->setMark(Mark::Unknown);
    QCOMPARE(seen(unread->slider())->text(QAccessible::Description), QStringLiteral("unknown"));
}

void TestReach::oneObjectTells()
{
    OptionGroupRow *inputs = openInputs();
    QWidget *object = nullptr;
    walk(seen(m_window.get()), [&object](Interface *at) {
        if (at->role() == QAccessible::StatusBar)
            object = static_cast<QWidget *>(at->object());
    });
    QVERIFY(object);
    const auto told = [object](auto &&act) {
        object->setAccessibleName({});
        act();
        return object->accessibleName();
    };
    m_desk->monitor().refuseWrites(virtualdesk::kForEver);
    QCOMPARE(told([&] { inputs->buttons()[2]->click(); }), QStringLiteral("The monitor did not take \"DP2\"."));
    QCOMPARE(told([&] { m_window->overlay()->showNote(QStringLiteral("Brightness"), QStringLiteral("60")); }),
             QStringLiteral("Brightness: 60"));
    m_desk->monitor().recover();
    BoundTexts texts;
    MessageStrip strip(nullptr);
    WorkPanel work(texts, strip);
    work.begin({{"", 0, 100, platform::milliseconds(100)}});
    QStringList progress;
    for (int i = 0; i <= 100; ++i) { // what is quick is not told on its way
        m_desk->clock.advance(i <= 50 ? 100ms : 0ms);
        progress += told([&] { work.showProgress(i); });
    }
    progress += told([&] { work.end(true); });
    progress.removeAll(QString());
    QCOMPARE(progress.join(QLatin1Char(' ')), QStringLiteral("25% 50% 100%"));
    QVERIFY(told([&] {
                m_desk->desk.unplug(0);
                m_window->deviceRemoved();
                m_desk->clock.advance(1s);
            }).contains(QStringLiteral("no answer")));
}

QTEST_MAIN(TestReach)
#include "tst_reach.moc"
