#include <QLocalSocket>
#include <QtTest>

#include "elevation.h"
#include "loading.h"
#include "relaunch.h"
#include "singleapplication.h"
#include "support/deskfixture.h"
#include "windowscale.h"
#include "workingfolder.h"

/// Before there is a window: folder, rights, what is loaded, and who is let in.
class TestStart : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void workingFolders();
    void workingFolderIsSettled();
    void elevatedCopyGetsTheFolder();
    void loadingIsNotSteered();
    void floodOfConnections();
    void copyFindsNoServer();
    void windowFitsTheScreen();
};

void TestStart::workingFolders()
{
    // The facts: settings in the current folder (c), it can be written (w), settings beside the program (o).
    for (const auto &[current, facts, chosen] : {std::tuple("/home", "wo", ""),
                                                 {"/disc", "co", ""}, // settings that cannot be written
                                                 {"C:/Windows/System32", "cw", ""},
                                                 {"/disc", "", "/data/QUORVEL"},
                                                 {"/disc", "o", "/own"},
                                                 {"C:/Windows", "wo", "/own"},
                                                 {"c:/windows/SYSTEM32/drivers", "w", "/data/QUORVEL"},
                                                 {"C:/Windows.old", "w", ""}}) { // only named alike
        const QByteArray is(facts);
        FolderFacts all{current, is.contains('c'), is.contains('w'), "/own", is.contains('o'), {"C:/Windows"}, "/data"};
        QCOMPARE(workingFolderFor(all), QString(chosen));
        all.localData.clear();
        QVERIFY(!workingFolderFor(all).contains("QUORVEL")); // nobody tells where
    }
}

void TestStart::workingFolderIsSettled()
{
    const QString data = m_desk->folder() + "/local data";
    qputenv("XDG_DATA_HOME", data.toLocal8Bit());
    m_desk->desk.process().systemFolders = QStringList{m_desk->folder()};
    QVERIFY(writeText("config.ini", ""));
    settleWorkingFolder();
    QCOMPARE(QDir::currentPath(), m_desk->folder());
    m_desk->desk.process().systemFolders.clear();
    QVERIFY(QDir::setCurrent("/proc")); // not even an administrator makes a file there
    settleWorkingFolder();
    QCOMPARE(QDir::currentPath(), data + "/QUORVEL");
    QVERIFY(QDir::current().isEmpty());
}

void TestStart::elevatedCopyGetsTheFolder()
{
    char name[] = "quorvel", argument[] = "runas";
    char *arguments[] = {name, argument};
    QVERIFY(!handedToElevatedCopy(1, arguments));
    m_desk->desk.process().administrator = false;
    QVERIFY(!handedToElevatedCopy(2, arguments));
    QVERIFY(m_desk->desk.process().elevated.empty());
    QVERIFY(QDir::current().mkdir("ein Ordner 名") && QDir::setCurrent("ein Ordner 名"));
    QVERIFY(handedToElevatedCopy(1, arguments));
    QCOMPARE(m_desk->desk.process().elevated.at(0).folder, m_desk->folder() + "/ein Ordner 名");
}

void TestStart::loadingIsNotSteered()
{
    for (const char *name : {"QT_PLUGIN_PATH", "qt_qpa_platform_plugin_path", "QT_STYLE_OVERRIDE", "QT_OPENGL"})
        QVERIFY2(steersLoading(name), name);
    for (const char *name : {"PATH", "QT_SCALE_FACTOR", "QT_QPA", "QT_STYLE"})
        QVERIFY2(!steersLoading(name), name);

    qputenv("QT_STYLE_OVERRIDE", "somebody's");
    QByteArrayList line{"quorvel", "--platform", "x", "-style=y", "-testability", "runas", "-plugin"};
    char *arguments[8] = {};
    std::transform(line.begin(), line.end(), arguments, [](QByteArray &argument) { return argument.data(); });
    int count = 7;
    hardenLoading(count, arguments); // here everybody may load what he likes
    QVERIFY(qEnvironmentVariableIsSet("QT_STYLE_OVERRIDE") && count == 7);
    m_desk->desk.process().restrictsLibraries = true;
    hardenLoading(count, arguments);
    QVERIFY(!qEnvironmentVariableIsSet("QT_STYLE_OVERRIDE") && count == 2 && !arguments[2]);
    QCOMPARE(arguments[1], "runas");
    QCOMPARE(QCoreApplication::libraryPaths(), QStringList{QCoreApplication::applicationDirPath()});
}

void TestStart::floodOfConnections()
{
    QSignalSpy told(qApp, SIGNAL(anotherInstanceStarted()));
    std::vector<std::unique_ptr<QLocalSocket>> clients(40);
    for (auto &client : clients) {
        client = std::make_unique<QLocalSocket>();
        client->connectToServer("QUORVEL");
        client->write(QByteArray(1 << 20, 'x'));
    }
    const auto open = [](const auto &client) { return client->state() == QLocalSocket::ConnectedState; };
    QTRY_COMPARE(std::count_if(clients.begin(), clients.end(), open), 8);
    for (const QLocalSocket *kept : qApp->findChildren<QLocalSocket *>())
        QVERIFY(kept->bytesAvailable() <= 64 * 1024);
    QCOMPARE(told.count(), 8);
    m_desk->clock.advance(platform::milliseconds(1000));
    QTRY_VERIFY(std::none_of(clients.begin(), clients.end(), open));
}

void TestStart::copyFindsNoServer()
{
    QVERIFY(!SingleApplication::isNameTaken({nullptr, 8})); // out of memory is nobody else's name
    const auto isServed = [] {
        QLocalSocket client;
        client.connectToServer("QUORVEL");
        return client.waitForConnected(0);
    };
    for (const bool starts : {false, true}) {
        QVERIFY(isServed());
        bool found = true;
        m_desk->desk.process().start = [&] { return found = isServed(), starts; };
        QCOMPARE(relaunchAndQuit(), starts);
        QVERIFY(!found);
        QCOMPARE(isServed(), !starts);
        QCOMPARE(m_desk->desk.process().quits, int(starts));
    }
}

void TestStart::windowFitsTheScreen()
{
    // The user's own factor is there again afterwards, for the programs that are started from here.
    for (const auto &[pixels, scale, own, wanted, room] :
         {std::tuple(QSize(1920, 1040), 1.0, "", "", QSize(1280, 800)),
          {QSize(1920, 1020), 1.5, "", "0.8333333333333334", QSize(1280, 800)},
          {QSize(1366, 728), 1.0, "", "", QSize(1280, 728)},
          {QSize(1366, 728), 1.25, "", "0.8", QSize(1280, 728)},
          {QSize(1920, 1020), 1.0, "1.5", "1.25", QSize(1280, 800)},
          {QSize(1024, 500), 1.0, "junk", "junk", QSize(1024, 500)},
          {QSize(1080, 1880), 1.0, "", "", QSize(1080, 800)},
          {QSize(1080, 1880), 1.25, "", "0.8", QSize(1080, 800)},
          {QSize(3840, 2060), 2.0, "", "", QSize(1280, 800)}}) {
        if (*own)
            qputenv("QT_SCALE_FACTOR", own);
        const platform::WorkArea area{pixels, scale};
        WindowScale chosen(area);
        QCOMPARE(qgetenv("QT_SCALE_FACTOR"), QByteArray(wanted));
        const bool isNumber = QByteArray(wanted).toDouble() > 0;
        QCOMPARE(roomFor(area, scale * (isNumber ? QByteArray(wanted).toDouble() : 1)), room);
        chosen.takeBack();
        QCOMPARE(qgetenv("QT_SCALE_FACTOR"), QByteArray(own));
        qunsetenv("QT_SCALE_FACTOR");
    }
}

int main(int argc, char **argv)
{
    const QTemporaryDir folder; // another program's server is not this one's
    qputenv("TMPDIR", folder.path().toLocal8Bit());
    SingleApplication application(argc, argv);
    TestStart test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_start.moc"
