#include <QtTest>
#include <QtWidgets>

#include "controls/picturelabel.h"
#include "page/engine/panelpage.h"
#include "support/windowfixture.h"
#include "toollanguage.h"

/// The window on a screen that has less room than it wants.
class TestSmallScreen : public WindowFixture
{
    Q_OBJECT
private Q_SLOTS:
    void whatScrolls();
    void theScreenChanges();
    void nothingIsSqueezed_data();
    void nothingIsSqueezed();

private:
    void startOn(QSize pixels);
    QStringList squeezed() const;
    QStringList squeezedOnEachPage();
};

void TestSmallScreen::startOn(QSize pixels)
{
    start(10, 0, [&] { m_desk->desk.workArea = platform::WorkArea{pixels, 1.0}; });
}

/// Where the screen has no room for the window, it is lower, with the picture's edges as they are drawn, and where that
/// is not enough, its parts scroll and come into sight with the keyboard.
void TestSmallScreen::whatScrolls()
{
    const auto ground = [this](QSize pixels) {
        startOn(pixels);
        return m_window->findChild<PictureLabel *>()->pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
    };
    const QImage whole = ground({1920, 1040});
    cleanup();
    const QImage lower = ground({1366, 728});
    QCOMPARE(m_window->size(), QSize(1280, 728));
    QCOMPARE(lower.copy(0, 0, 1280, 80), whole.copy(0, 0, 1280, 80));
    QCOMPARE(lower.copy(0, 648, 1280, 80), whole.copy(0, 720, 1280, 80));
    cleanup();
    QCOMPARE(ground({1024, 540}).size(), QSize(1280, 720));
    QCOMPARE(m_window->size(), QSize(1024, 540));
    const auto isInSight = [](const QWidget *part) { return part->visibleRegion().boundingRect() == part->rect(); };
    const auto *close = m_window->findChild<QWidget *>("windowClose");
    const auto &tabs = m_window->tabs()->tabs();
    const auto &entries = m_window->leftBar(0)->buttons();
    QVERIFY(isInSight(tabs.front()) && !isInSight(tabs.back()) && !isInSight(close));
    m_window->activateWindow();
    tabs.front()->setFocus();
    QTest::keyClick(tabs.front(), Qt::Key_End);
    QVERIFY(isInSight(tabs.back()) && !isInSight(entries.front()));
    entries.front()->setFocus();
    QTest::keyClick(entries.front(), Qt::Key_End);
    QVERIFY(isInSight(entries.back()));
    const auto *scrolled = m_window->findChild<QScrollArea *>();
    scrolled->horizontalScrollBar()->setValue(1280);
    scrolled->verticalScrollBar()->setValue(0);
    QVERIFY(isInSight(close));
    Q_EMIT m_window->findChild<SettingsPage *>()->settingWanted(Command::SceneMode);
    QVERIFY(qobject_cast<LeftTabButton *>(m_window->focusWidget()) && isInSight(m_window->focusWidget()));
}

/// The window has no more than the screen's room, whatever that was before; what its bars lie on is no hole in it.
void TestSmallScreen::theScreenChanges()
{
    startOn({1920, 1040});
    const auto change = [this](QSize pixels) {
        m_desk->desk.workArea = platform::WorkArea{pixels, 1.0};
        const QScreen *screen = QGuiApplication::primaryScreen();
        Q_EMIT QGuiApplication::primaryScreen()->availableGeometryChanged(screen->availableGeometry());
        QCoreApplication::processEvents();
        return m_window->size();
    };
    QCOMPARE(change({1366, 728}), QSize(1280, 728));
    const QPoint onBar(1278, 700);
    QCOMPARE(m_window->grab().toImage().pixelColor(onBar).alpha(), 255);
    QCOMPARE(change({800, 560}), QSize(800, 560));
    const QScrollBar *across = m_window->findChild<QScrollArea *>()->horizontalScrollBar();
    QVERIFY(across->isVisible());
    QCOMPARE(change({1080, 1880}), QSize(1080, 800));
    QCOMPARE(change({1920, 1040}), QSize(1280, 800));
    QVERIFY(!across->isVisible());
}

/// What can be seen and is lower than it must be: of a text all lines count.
QStringList TestSmallScreen::squeezed() const
{
    QStringList found;
    for (const QWidget *part : m_window->findChildren<QWidget *>()) {
        if (!part->isVisible() || part->visibleRegion().isEmpty())
            continue;
        const auto *label = qobject_cast<const QLabel *>(part);
        const bool isText = label && !label->text().isEmpty();
        const int needed = !isText                      ? part->minimumSizeHint().height()
                           : label->hasHeightForWidth() ? label->heightForWidth(label->width())
                                                        : label->sizeHint().height();
        if (part->height() < std::min(needed, part->maximumHeight()))
            found << QString("%1 %2 '%3': %4 of %5")
                         .arg(part->metaObject()->className(), part->objectName(), isText ? label->text() : QString())
                         .arg(part->height())
                         .arg(needed);
    }
    return found;
}

QStringList TestSmallScreen::squeezedOnEachPage()
{
    QStringList found;
    onEveryPage([&](const QWidget *page) {
        QStringList parts;
        (void)QTest::qWaitFor([&] { return (parts = squeezed()).isEmpty(); }); // laid out in several steps
        for (const QString &part : std::as_const(parts))
            found << QString("%1: %2").arg(page->objectName(), part);
    });
    return found;
}

void TestSmallScreen::nothingIsSqueezed_data()
{
    QTest::addColumn<QString>("translation");
    for (const ToolLanguage &language : toolLanguages())
        QTest::newRow(language.code) << QString(language.translation);
}

/// As much room as a notebook of 768 lines has beside its taskbar.
void TestSmallScreen::nothingIsSqueezed()
{
    QFETCH(QString, translation);
    QTranslator translator;
    QVERIFY(translator.load(translation));
    QCoreApplication::installTranslator(&translator);
    startOn({1366, 720});
    const QStringList found = squeezedOnEachPage();
    QVERIFY2(found.isEmpty(), qPrintable(found.join('\n')));
}

QTEST_MAIN(TestSmallScreen)
#include "tst_smallscreen.moc"
