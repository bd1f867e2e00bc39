#include <QPushButton>
#include <QtTest>

#include "controls/locksign.h"
#include "controls/nowheelslider.h"
#include "ddc_protocol/scenemodes.h"
#include "page/engine/panelpage.h"
#include "support/windowfixture.h"

/// What the program spares its users and their monitors.
class TestCare : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void everyLockHasItsReason();
    void lockedEntriesSayWhy();

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
        if (!isShown || !now || now == sign || !now->isEnabled() || !now->isVisible() || sign->reason().isEmpty() || sign->reason() != sign->toolTip())
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
            for (const PageId id : {PageId::Scene, PageId::PictureEnhance, PageId::Office, PageId::SystemSetting,
                                    PageId::IoSetting}) {
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

QTEST_MAIN(TestCare)
#include "tst_care.moc"
