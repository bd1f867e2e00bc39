#include <sys/stat.h>

#include <functional>

#include <QtTest>

#include "ddc_protocol/loghandler.h"
#include "ledmatrix/animationfile.h"
#include "support/deskfixture.h"
#include "support/fulldisk.h"

using Pairs = QList<QPair<QString, QVariant>>;
using Act = std::function<void(DeskFixture &)>;
Q_DECLARE_METATYPE(Act)

namespace {

const QString kFile = QLatin1String(kConfigFile);

/// What the toolkit makes of a file when it stores these.
QByteArray toolkitBytes(const QByteArray &before, const Pairs &pairs)
{
    static int number = 0; // the toolkit remembers the files it knew
    const QString name = QStringLiteral("toolkit%1.ini").arg(++number);
    if (!before.isEmpty() && !writeText(name, before))
        return "not written";
    QSettings settings(name, QSettings::IniFormat);
    for (const auto &[key, value] : pairs)
        settings.setValue(key, value);
    settings.sync();
    return readText(name);
}

QByteArrayList frames(char digit)
{
    return QByteArrayList(3, QByteArray(1050, digit));
}

bool saveSettings(int length)
{
    return storeSetting(QStringLiteral("a/text"), QString(length, QLatin1Char('x')));
}

bool saveAnimation(int length)
{
    return writeAnimation(kFile, frames(length < 1000 ? '0' : '1'), [](int) { return true; }).isEmpty();
}

} // namespace

class TestFiles : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void bytesAreTheToolkits_data();
    void bytesAreTheToolkits();
    void letterCase();
    void otherTypesAreNotBuilt();
    void hostileFiles_data();
    void hostileFiles();
    void everyDamageIsKept();
    void faultyDisk_data();
    void faultyDisk();
    void linksAreNotFollowed();
    void locks();
    void changesWithinATick();
};

void TestFiles::bytesAreTheToolkits_data()
{
    columns<QByteArray, Pairs>("before", "pairs");
    const auto values = [](const QVariantList &list) {
        Pairs pairs;
        for (const QVariant &value : list)
            pairs.append({QStringLiteral("group/%1").arg(pairs.size()), value});
        return pairs;
    };
    const auto texts = [&values](const char *list) {
        const QStringList each = QString::fromUtf8(list).split('|');
        return values({each.begin(), each.end()});
    };
    const auto keys = [](std::initializer_list<const char *> list) {
        Pairs pairs;
        for (const char *key : list)
            pairs.append({QString::fromUtf8(key), QStringLiteral("v")});
        return pairs;
    };
    row("texts", QByteArray(),
        texts("| | a|a |\ta|a,b|a;b|a=b|\"q\"|don't|\\|C:\\a\\b.exe|%41|50%|#a|[a]|@|@a|@@a|@Variant(x)|@Invalid()|"
              "日本語, 中文|\U0001f600 é\x7f"));
    row("control characters", QByteArray(),
        values({"\a\b\f\n\r\t\v", "\x01",
                "\x01"
                "af0g",
                "\x1f\x01 ;", QString(QChar(0)), QString("a") + QChar(0) + "1", QString("@") + QChar(0)}));
    row("other values", QByteArray(),
        values({0, -7, 123456789012LL, 1.5, true, false, QStringList{}, QStringList{"a"}, QStringList{""},
                QStringList{"a", "", " b", "c,d", "@e", "\"f\""}}));
    row("keys", QByteArray(),
        keys({"plain", "a/b", "a/c/d", "a b/c d", "%/=", "[x]/;y", "日本/é", "a\\b/c", "A/b", "12/switchStatus",
              "notepad++.exe/appPath", "a.b-c_d/'", "_/\"", "//x//y/"}));
    row("General", QByteArray(), keys({"General/Language", "Language", "GeneralX/a", "%General/a"}));
    row("an existing file",
        QByteArray("; a comment\nz=1\n[S2]\nb=1\na = 2 \n[S1]\nx=a, b ,\"c d\"\n[S2]\nc=\\x41\\x4e2d\nb=9\n"
                   "[general]\ny=2;more\r\n[%General]\nw=\"1,2\" 3\nhand=a\\\n  b\\101@\nat=@Foo(1)\n%zz=\n"),
        keys({"S2/new", "S0/new", "S1/a", "S2/b"}));
}

void TestFiles::bytesAreTheToolkits()
{
    const auto [before, pairs] = fetch<QByteArray, Pairs>();
    QVERIFY(before.isEmpty() || writeText(kFile, before));
    for (const auto &[key, value] : pairs)
        QVERIFY(storeSetting(key, value));
    QCOMPARE(readText(kFile), toolkitBytes(before, pairs));
    QSettings toolkit(kFile, QSettings::IniFormat);
    for (const auto &[key, value] : pairs) {
        const bool isList = toolkit.value(key).typeId() == QMetaType::QStringList;
        QCOMPARE(settingsString(key, {}, false, kFile),
                 isList ? value.toStringList().join(", ") : toolkit.value(key).toString());
    }
}

void TestFiles::letterCase()
{
    const QStringList keys = {"GAME.exe/a", "Game.exe/A", "Game.exe/a", "General/a", "game.exe/a", "general/a"};
    QList<QPair<QString, QString>> settings;
    for (const QString &key : keys)
        settings.append({key, key});
    QVERIFY(writeAllSettings(kFile, settings));
    QCOMPARE(readAllSettings(kFile), settings);
    clearSettingsFile(kFile);
    QVERIFY(readAllSettings(kFile).isEmpty());
}

void TestFiles::otherTypesAreNotBuilt()
{
    const QByteArray lines = "bytes=@ByteArray(\\x1\\xff)\nnested=\"@Variant(" +
                             QByteArray("\\0\\0\\0\\t\\0\\0\\0\\0\\x1").repeated(50000) + ",)\"\nnone=@Invalid()\n" +
                             "rect=@Rect(1 2 3 4)\n";
    QVERIFY(writeText(kFile, "[a]\n" + lines));
    QCOMPARE(settingsString("a/nested", {}, false, kFile), QString());
    QCOMPARE(readAllSettings(kFile).size(), 4);
    QVERIFY(storeSetting("a/z", 1));
    QCOMPARE(readText(kFile), "[a]\n" + lines + "z=1\n");
}

void TestFiles::hostileFiles_data()
{
    columns<Act, bool>("makeFile", "canBeReplaced");
    const auto holding = [](const QByteArray &bytes) { return Act([bytes](auto &) { writeText(kFile, bytes); }); };
    row("a folder", Act([](auto &) { QDir().mkdir(kFile); }), false);
    row("a pipe", Act([](auto &) { mkfifo("config.ini", 0600); }), false);
    row("too large", holding("[a]\n" + QByteArray("b=1\n").repeated(2 << 20)), true);
    row("a long line", holding("a=" + QByteArray(3000000, '\x01')), false); // more when written
    row("sections", holding(QByteArray("[").repeated(4000000)), true);
    row("zeros", holding(QByteArray(4000000, '\0')), true);
}

void TestFiles::hostileFiles()
{
    const auto [makeFile, canBeReplaced] = fetch<Act, bool>();
    makeFile(*m_desk);
    QCOMPARE(settingsInt(kDeviceIndexKey, 0, false), 0);
    QCOMPARE(storeSetting(kDeviceIndexKey, 3), canBeReplaced);
    QCOMPARE(settingsInt(kDeviceIndexKey, 0, false), canBeReplaced ? 3 : 0);
    QCOMPARE(m_desk->takeLog().join('\n').contains("Cannot write config.ini"), !canBeReplaced);
}

void TestFiles::everyDamageIsKept()
{
    const QByteArrayList damages = {"somebody's\n",
                                    QByteArray(5 << 20, 'x'),
                                    QByteArray("a=\n").repeated(50001),
                                    "a=" + QByteArray(50000, ','),
                                    "[a\n",
                                    "somebody's\n",
                                    "[a\n"};
    for (const QByteArray &damage : damages) {
        QVERIFY(writeText(kFile, damage));
        settingsInt(kDeviceIndexKey, 3, true);
        QCOMPARE(settingsInt(kDeviceIndexKey, 0, false), 3);
    }
    for (int i = 0; i < 5; ++i)
        QCOMPARE(readText("config.ini.bad" + (i > 0 ? QString::number(i + 1) : QString())), damages[i]);
    QCOMPARE(QDir().entryList({"*.bad*"}).size(), 5);
    for (int i = 0; i < 9; ++i) {
        QVERIFY(writeText(kFile, "more " + QByteArray::number(i)));
        QVERIFY(storeSetting(kDeviceIndexKey, 3));
    }
    QCOMPARE(QDir().entryList({"*.bad*"}).size(), 9);
    QCOMPARE(readText("config.ini.bad9"), "more 8");
}

void TestFiles::faultyDisk_data()
{
    columns<bool, Act, int>("isAnimation", "breakDisk", "bytes"); // that fit on it
    const QPair<const char *, Act> faults[] = {
        {"write", [](DeskFixture &desk) { desk.desk.fileFaults.write.failAt(1); }},
        {"flush", [](DeskFixture &desk) { desk.desk.fileFaults.flush.failAt(1); }},
        {"replace", [](DeskFixture &desk) { desk.desk.fileFaults.replace.failAt(1); }},
    };
    for (const bool isAnimation : {false, true}) {
        for (const auto &[name, fault] : faults)
            QTest::addRow("%s %d", name, isAnimation) << isAnimation << fault << 0;
        for (const int bytes : {1, 200, 1300})
            QTest::addRow("full at %d %d", bytes, isAnimation) << isAnimation << Act([](auto &) {}) << bytes;
    }
}

/// A save that fails leaves the old file and nothing else, and says so; the next one works.
void TestFiles::faultyDisk()
{
    const auto [isAnimation, breakDisk, bytes] = fetch<bool, Act, int>();
    const auto save = isAnimation ? saveAnimation : saveSettings;
    QVERIFY(save(800));
    const QByteArray before = readText(kFile);
    {
        std::optional<FullDisk> full;
        if (bytes > 0)
            full.emplace(bytes);
        breakDisk(*m_desk);
        QVERIFY(!save(1400));
    }
    QCOMPARE(readText(kFile), before);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList(kFile));
    const QString log = m_desk->takeLog().join('\n');
    QVERIFY(isAnimation || (log.contains("Cannot write config.ini") && !log.contains("locked")));
    QVERIFY(save(1400));
    QVERIFY(readText(kFile).size() > 1400);
}

void TestFiles::linksAreNotFollowed()
{
    const auto log = [] {
        logMessageHandler(QtDebugMsg, QMessageLogContext(), "text");
        return QDir().entryInfoList({"QUORVEL_*.log"}).value(0).size() > 4;
    };
    const QString logFile = "QUORVEL_" + m_desk->clock.now().toString("yyyy-MM-dd") + ".log";
    const std::pair<QString, std::function<bool()>> writers[] = {
        {kFile, [] { return saveSettings(5); }},
        {"a.csv", [] { return writeAnimation("a.csv", frames('1'), [](int) { return true; }).isEmpty(); }},
        {"a.txt", [] { return appendFrame("a.txt", "1").isEmpty(); }},
        {logFile, log},
    };
    for (const auto &[name, write] : writers) {
        for (const char *target : {"target", "nothing"}) {
            QVERIFY(writeText("target", "kept") && QFile::link(target, name));
            QVERIFY(!write());
            QVERIFY(QFileInfo(name).isSymLink() && !QFile::exists("nothing"));
            QCOMPARE(readText("target"), "kept");
            QFile::remove(name);
        }
        QVERIFY(write());
    }
}

void TestFiles::locks()
{
    QVERIFY(storeSetting(kDeviceIndexKey, 1));
    QVERIFY(writeText("config.ini.lock", {})); // of a process that was killed early
    const QStringList young = {"config.ini.ab.new", "config.ini.abcdef.new", "config.ini.abcdef.newer"};
    const QStringList old = {"config.ini.ghijkl.new", "config.ini.ghijkl.new.lock", "config.ini.ghijkl.new.Xy12Zz"};
    for (const QString &name : young + old) {
        QFile file(name);
        QVERIFY(writeText(name, "x") && file.open(QIODevice::Append));
        const int age = name == young[1] ? 9 : 61; // s
        file.setFileTime(QDateTime::currentDateTime().addSecs(-age), QFileDevice::FileModificationTime);
    }
    QVERIFY(storeSetting(kDeviceIndexKey, 2));
    QCOMPARE(QDir().entryList({"*.new*"}), young);
    QLockFile held("config.ini.lock");
    const std::function<bool()> lockings[] = {[] { return QDir().mkdir("config.ini.lock"); }, // and for ever
                                              [] { return ::mkfifo("config.ini.lock", 0600) == 0; },
                                              [&held] { return held.tryLock(); }};
    for (const auto &lock : lockings) {
        QVERIFY(lock());
        QElapsedTimer time;
        time.start();
        QCOMPARE(settingsInt(kDeviceIndexKey, 0, false), 2);
        QVERIFY(time.elapsed() < 900);
        QVERIFY(!storeSetting(kDeviceIndexKey, 3));
        QVERIFY(time.elapsed() < 3000 && (!held.isLocked() || time.elapsed() >= 1000));
        QVERIFY(QDir().rmdir("config.ini.lock") || QFile::remove("config.ini.lock"));
    }
}

void TestFiles::changesWithinATick()
{
    for (int i = 100; i < 140; ++i) {
        settingsInt(kDeviceIndexKey, i, true);
        QCOMPARE(settingsInt(kDeviceIndexKey, 0, false), i);
    }
}

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
