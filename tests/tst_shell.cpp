#include <thread>

#include <QtTest>

#include "ddc_protocol/loghandler.h"
#include "ddc_protocol/scenemodes.h"
#include "globalapplication.h"
#include "interfacefont.h"
#include "support/deskfixture.h"

namespace {

void log(QtMsgType type, const char *text)
{
    logMessageHandler(type, QMessageLogContext("src/file.cpp", 42, "f", "default"), QString::fromUtf8(text));
}

} // namespace

class TestShell : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    void logLines();
    void logFromManyThreads();
    void languages();
    void damagedSettings();
    void sceneFamilies();
};

void TestShell::logLines()
{
    for (const auto &[type, start] : {std::pair(QtDebugMsg, "Debug:  ("),
                                      {QtInfoMsg, "Debug:  ("},
                                      {QtWarningMsg, "Warning:  ("},
                                      {QtCriticalMsg, "Critical: ("}, // one blank, as it stands
                                      {QtFatalMsg, "Fatal:  ("}}) {
        QFile::remove("QUORVEL_2024-03-09.log");
        m_desk->clock.setNow(QDateTime(QDate(2024, 3, 9), QTime(23, 59, 59, 999)));
        log(type, "100 %1 of %4 \xC3\xA9");
        QCOMPARE(readText("QUORVEL_2024-03-09.log"),
                 start + QByteArray("src/file.cpp) L:(42) \t2024-03-09 23:59:59.999 \t100 %1 of %4 \xC3\xA9\r\n"));
    }
    m_desk->clock.sleep(platform::milliseconds(2)); // past midnight
    log(QtDebugMsg, "early");
    QVERIFY(readText("QUORVEL_2024-03-10.log").contains("2024-03-10 00:00:00.001 \tearly"));
    QVERIFY(QDir().mkdir("gone") && QDir::setCurrent("gone") && QDir(m_desk->folder()).rmdir("gone"));
    log(QtDebugMsg, "lost"); // silently
}

void TestShell::logFromManyThreads()
{
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([] {
            for (int i = 0; i < 50; ++i)
                log(QtDebugMsg, "a line that must stay whole");
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    const QByteArrayList lines = readText("QUORVEL_2024-03-09.log").split('\n');
    QCOMPARE(lines.size(), 8 * 50 + 1);
    for (const QByteArray &line : lines.first(8 * 50))
        QVERIFY(line.startsWith("Debug:  (") && line.endsWith("\ta line that must stay whole\r"));
}

void TestShell::languages()
{
    GlobalApplication application;
    for (const auto &[code, file] :
         std::initializer_list<std::pair<QString, const char *>>{{"zh_TW.Big5", "zh_TW"},
                                                                 {"zh_HK", "zh_CN"},
                                                                 {"en_GB", "en_us"},
                                                                 {"ja", "en_us"},
                                                                 {"ZH_tw", "en_us"},
                                                                 {"xx", "en_us"},
                                                                 {"zh_TW" + QString(1 << 20, 'x'), "zh_TW"}}) {
        QCOMPARE(GlobalApplication::translationFile(code), QStringLiteral(":/Translations/%1.qm").arg(file));
        application.switchApplicationLanguage(code);
    }
    for (const auto &[code, brightness] : std::initializer_list<std::pair<const char *, const char *>>{
             {"ja_JP", "輝度"}, {"en", "Brightness"}, {"zh", "亮度"}, {"en", "Brightness"}, {"zh_TW", "亮度"}}) {
        application.switchApplicationLanguage(code);
        QCOMPARE(QObject::tr("Brightness"), QString(brightness));       // the older translation is gone, not below
        QVERIFY(QObject::tr("        Default").startsWith("        ")); // the blanks are part of the label
        QCOMPARE(QLocale().language(), QLocale(QString(code)).language());
        QCOMPARE(QLocale().script(), QLocale(QString(code)).script());
    }
    for (const auto &[code, families] : std::initializer_list<std::pair<const char *, const char *>>{
             {"zh_TW", "Noto Sans CJK TC|common|Quorvel Scripts"},
             {"ja_JP", "Noto Sans CJK JP|common|Quorvel Scripts"},
             {"zh_CN", "common|Quorvel Scripts"}}) {
        languageSetting(true, code);
        QCOMPARE(interfaceFont("common").families().join('|'), families); // its own shapes before the common ones
    }
    QTranslator partial; // English stands in for what it lacks
    QVERIFY(partial.load(QStringLiteral(PARTIAL_TRANSLATION)));
    QStringList shown;
    for (const char *source : {"Brightness", "Contrast", "LANGUAGE_SHORTCUTKEY", "Follow Setting", "LANGUAGE_ADD_KEY"})
        shown << partial.translate("QObject", source);
    QCOMPARE(shown.join('|'), "Heleco|Kontrasto|Shortcut Keys|Scene Following|Add Shortcut");
    for (const QString &line : m_desk->takeLog())
        QVERIFY(line.size() < 1000); // whatever the settings file holds, the log stays readable
}

void TestShell::damagedSettings()
{
    for (const auto &[file, index, language] :
         {std::tuple(QByteArray(), 0, ""),
          {"no settings at all\n[[[\n=\n", 0, ""},
          {QByteArray("\x00\xff\x1a\x00[PC\x00", 9), 0, ""},
          {"[PCSeting]\nDeviceIndex=first\n", 0, ""},
          {"[PCSeting]\nDeviceIndex=-3\n", -3, ""},
          {"[PCSeting]\nDeviceIndex=99999999999999999999\n", 0, ""},
          {"[%General]\nLanguage=ja_JP\n", 0, "ja_JP"}, // as the program writes it
          {"[General]\nLanguage=zh\n", 0, "zh"}}) {
        QVERIFY(writeText("config.ini", file));
        QCOMPARE(settingsInt(kDeviceIndexKey, 0, false), index);
        QCOMPARE(languageSetting(false), QString(language));
    }
}

void TestShell::sceneFamilies()
{
    constexpr int kEdges[][2] = {{-1, -1}, {0, -1}, {1, 0},  {28, 0}, {29, 1}, {48, 1},
                                 {49, 2},  {80, 2}, {81, 3}, {90, 3}, {91, -1}};
    for (const auto &[value, family] : kEdges) {
        const auto found = familyOfSceneValue(value);
        QCOMPARE(found ? int(*found) : -1, family); // -1: none
        if (const SceneMode *mode = sceneModeOf(value))
            QCOMPARE(int(mode->family), family); // the two tables agree
    }
}

QTEST_MAIN(TestShell)
#include "tst_shell.moc"
