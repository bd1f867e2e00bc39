#include <QPushButton>
#include <QtTest>

#include "controls/locksign.h"
#include "controls/nowheelslider.h"
#include "ddc_protocol/scenemodes.h"
#include "page/engine/panelpage.h"
#include "page/engine/undobar.h"
#include "support/windowfixture.h"

using namespace std::chrono_literals;

/// What the program spares its users and their monitors.
class TestCare : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void everyLockHasItsReason();
    void lockedEntriesSayWhy();
    void undoOfRiskyChanges_data();
    void undoOfRiskyChanges();

private:
    QStringList unexplained(SettingsPage *page) const;
    QStringList deadEnds(SettingsPage *page) const;
    void show(SettingsPage *page) const;
};

/// Controls of a page that are disabled, themselves or around them, without a word.
QStringList TestCare::unexplained(SettingsPage *page) const
{
    QStringList found;
    for (const QWidget *control : page->widget()->findChildren<QWidget *>()) {
        const bool isUsed = qobject_cast<const QAbstractButton *>(control) || qobject_cast<const QSlider *>(control);
        if (isUsed && !control->isEnabled() && control->accessibleDescription().isEmpty())
            found.append(control->accessibleName());
    }
    return found;
}

/// Shows one of the two pages that have locks; of the picture page the motion function.
void TestCare::show(SettingsPage *page) const
{
    const bool isScene = page == m_window->scenePage();
    const auto family = isScene ? static_cast<int>(*familyOfSceneValue(deviceState.value(Command::SceneMode))) : 5;
    QTest::mouseClick(m_window->tabs()->tabs().at(static_cast<std::size_t>(family)), Qt::LeftButton);
    if (isScene)
        return;
    QTest::mouseClick(entry(family, "Picture Enhance"), Qt::LeftButton);
    static_cast<PanelPage *>(page)->showPanel(1);
}

/// Presses every lock in sight: each leads to something else that can be used.
QStringList TestCare::deadEnds(SettingsPage *page) const
{
    QStringList found;
    for (LockSign *sign : page->widget()->findChildren<LockSign *>()) {
        if (sign->isHidden())
            continue;
        show(page);
        const bool isShown = sign->isVisible();
        sign->setFocus();
        QTest::keyClick(sign, Qt::Key_Space);
        const QWidget *now = m_window->focusWidget();
        if (!isShown || !now || now == sign || !now->isEnabled() || !now->isVisible() || sign->reason().isEmpty() ||
            sign->reason() != sign->toolTip())
            found.append(sign->reason());
    }
    return found;
}

void TestCare::everyLockHasItsReason()
{
    start(10);
    std::set<QString> reasons;
    for (const SceneMode &mode : sceneModes()) {
        for (const auto &[temperature, enhance] : {std::pair(0, 0), {7, 3}, {9, 0}}) {
            deviceState.store(Command::SceneMode, mode.value + 1);
            deviceState.store(Command::ColorTemperature, temperature);
            deviceState.store(Command::ColorEnhance, enhance);
            m_window->refreshPages();
            for (const PageId id :
                 {PageId::Scene, PageId::PictureEnhance, PageId::Office, PageId::SystemSetting, PageId::IoSetting}) {
                SettingsPage *page = m_window->settingsPage(id);
                QCOMPARE(unexplained(page), QStringList());
                QCOMPARE(deadEnds(page).join('|'), QString());
                for (const LockSign *sign : page->widget()->findChildren<LockSign *>())
                    reasons.insert(sign->reason());
            }
        }
    }
    QCOMPARE(reasons.size(), std::size_t(7)); // each of the six rules was met, and free controls
    QVERIFY(m_window->scenePage()->slider("Hue_R")->isEnabled());
}

void TestCare::lockedEntriesSayWhy()
{
    start(10);
    m_window->tabs()->tabs().at(5)->setFocus();
    for (const auto &[code, capability] : {std::pair(kLocked, 0xFFFF), {kBusy, 0xFFFF}, {kByModel, 0}}) {
        deviceState.store(Command::Capability, capability);
        QTest::mouseClick(m_window->tabs()->tabs().at(5), Qt::LeftButton);
        m_window->setInterfaceMode(code);
        int locked = 0;
        for (int family = 0; family < kFamilies; ++family) {
            for (const LeftTabButton *button : m_window->leftBar(family)->buttons()) {
                const bool usable = button->isEnabled() && button->isSelectable();
                locked += !usable;
                QVERIFY(usable == button->toolTip().isEmpty() && button->accessibleDescription() == button->toolTip());
            }
        }
        QVERIFY(locked > 0);
        m_window->setInterfaceMode(kBusyEnded);
    }
}

void TestCare::undoOfRiskyChanges_data()
{
    columns<PageId, int, int, int, bool>("page", "command", "before", "value", "offered");
    QTest::newRow("output range") << PageId::IoSetting << 0x60 << 0 << 2 << true;
    QTest::newRow("OSD language") << PageId::SystemSetting << 0xCC << 2 << 13 << true;
    QTest::newRow("overdrive") << PageId::PictureEnhance << 0x49 << 1 << 4 << true;
    QTest::newRow("overdrive, not at its top") << PageId::PictureEnhance << 0x49 << 1 << 3 << false;
    QTest::newRow("menu lock") << PageId::SystemSetting << 0xC4 << 0 << 1 << true;
    QTest::newRow("menu unlocked") << PageId::SystemSetting << 0xC4 << 1 << 0 << false;
    QTest::newRow("power saving") << PageId::SystemSetting << 0xC6 << 0 << 2 << true;
    QTest::newRow("input") << PageId::IoSetting << 0x57 << 1 << 4 << false;
    QTest::newRow("nothing changed") << PageId::IoSetting << 0x60 << 2 << 2 << false;
}

void TestCare::undoOfRiskyChanges()
{
    QFETCH(const PageId, page);
    QFETCH(const int, command);
    QFETCH(const int, before);
    QFETCH(const int, value);
    QFETCH(const bool, offered);
    start(10);
    SettingsPage *settings = m_window->settingsPage(page);
    const UndoBar *bar = settings->undoBar();
    const auto change = [&] {
        deviceState.store(Command(command), before);
        settings->optionGroup(Command(command))->buttonOf(value)->click();
        QCoreApplication::processEvents();
        m_desk->takeCommands();
        return bar->offered().has_value();
    };
    QCOMPARE(change(), offered);
    if (!offered)
        return;
    m_desk->clock.advance(14s);
    QTest::keyClick(bar->button(), Qt::Key_Space);
    QCOMPARE(m_desk->takeCommands(), QStringList{QStringLiteral("W %1=%2").arg(command, 0, 16).arg(before)});
    QVERIFY(bar->isHidden() && deviceState.confirmed(Command(command)) == before);

    QVERIFY(change());
    m_desk->clock.advance(14s);
    QVERIFY(change()); // has its own time
    m_desk->clock.advance(14s);
    QVERIFY(!bar->isHidden());
    m_desk->clock.advance(1s);
    QVERIFY(bar->isHidden() && m_desk->takeCommands().isEmpty()); // nothing goes back by itself
    QCOMPARE(int(m_desk->monitor().value(std::uint8_t(command))), value);

    m_desk->monitor().refuseWrites(2);
    QVERIFY(!change()); // there is nothing to go back from
    m_desk->clock.advance(1min);
    QVERIFY(change());
    deviceState.told(Command(command), before); // by the monitor's own buttons
    QCoreApplication::processEvents();
    QVERIFY(!bar->offered());
    QVERIFY(change());
    currentMonitorIndex = 1;
    bar->button()->click();
    QVERIFY(!bar->offered() && m_desk->takeCommands(1).isEmpty());
}

QTEST_MAIN(TestCare)
#include "tst_care.moc"
