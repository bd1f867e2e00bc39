#include <QtTest>
#include <QtWidgets>

#include "controls/flowlayout.h"
#include "controls/messagebox.h"
#include "controls/palette.h"
#include "controls/phrases.h"
#include "controls/sharedfonts.h"
#include "controls/tooltips.h"
#include "controls/wrappedlabel.h"

/// Where lines of text end.
class TestLines : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void shortLastLineTakesWords();
    void linesEndAtPhrases();
    void linesEndWhereTheTextPauses();
    void labelIsAsHighAsItsPhrases();
    void boxIsAsWideAsItsLines();
    void widgetsStandInEvenLines();
    void longTipsAreBroken();
};

/// There are never more lines for it.
void TestLines::shortLastLineTakesWords()
{
    const QString text = QStringLiteral("A caption of some length");
    QFont font;
    font.setPixelSize(20);
    const QFontMetrics metrics(font);
    const int room = metrics.horizontalAdvance(text) + 4;
    const auto linesIn = [&](const QString &words, int width) {
        return metrics.boundingRect(QRect(0, 0, width, 999), Qt::TextWordWrap, words).height() / metrics.height();
    };
    for (const auto &[rest, lines, evened] :
         {std::tuple("", 1, false), {" now", 2, true}, {" on and on it goes", 2, false}}) {
        const QString words = text + QLatin1String(rest);
        const QString even = evenLines(words, font, room);
        QCOMPARE(even != words, evened);
        QCOMPARE(linesIn(even, room), lines);
        const QString first = even.section(u'\n', 0, 0);
        QVERIFY(!evened ||
                metrics.horizontalAdvance(first) < metrics.horizontalAdvance(QStringLiteral("A caption of some")));
    }
}

void TestLines::linesEndAtPhrases()
{
    QCOMPARE(
        phrasesOf(QStringLiteral("お使いの画面で「オフ」を選ぶと、Type-C 端子の映像が出ません。")),
        QStringList({"お使いの", "画面で", "「オフ」を", "選ぶと、", "Type-C ", "端子の", "映像が", "出ません。"}));
    QCOMPARE(phrasesOf(QStringLiteral("オフ\u00a0= 点いたままです。")).size(), 1);
    QCOMPARE(phrasesOf(QStringLiteral("由电脑支配，而非 LED。")), // 支配 is not listed
             QStringList({"由", "电脑", "支", "配，", "而非 ", "LED。"}));
    QCOMPARE(phrasesOf(QStringLiteral("屏幕“标尺”“角度 尺”的「色」。")), // a quoted label is one word
             QStringList({"屏幕", "“标尺”", "“角度 尺”", "的", "「色」。"}));
    QCOMPARE(phrasesOf(QStringLiteral("A caption")), QStringList());
    QCOMPARE(phrasesOf(QStringLiteral("光り方を切り替え、書き込みます。")), // verbs of two verbs
             QStringList({"光り方を", "切り替え、", "書き込みます。"}));
    const QFont font;
    const auto widthOf = [&font](const QString &text) { return qCeil(QFontMetricsF(font).horizontalAdvance(text)); };
    const QString text = QStringLiteral("色を確かめるときはオフにしてください。");
    const QString lines = QStringLiteral("色を確かめるときは\nオフにしてください。");
    QCOMPARE(evenLines(text, font, widthOf(QStringLiteral("色を確かめるときはオフに"))), lines);
    QCOMPARE(evenLines(text, font, widthOf(QStringLiteral("色を確かめると"))), text); // a phrase is longer
    QCOMPARE(evenLines(QStringLiteral("Rhythm · Screen"), font, widthOf(QStringLiteral("Rhythm · Scr"))),
             QStringLiteral("Rhythm\nScreen"));
}

/// Where that takes no line more, no last line is very short, and no other less than half of one.
void TestLines::linesEndWhereTheTextPauses()
{
    QCOMPARE(clausesOf(QStringLiteral("「甲。乙」，丙、丁：0.5 秒。")),
             QStringList({"「甲。乙」，", "丙、丁：", "0.5 秒。"}));
    QCOMPARE(clausesOf(QStringLiteral("消すと、暗いです。")), QStringList({"消すと、", "暗いです。"}));
    const QFont font;
    for (const auto &[room, text, lines] :
         {std::tuple("A caption. For what", "A caption. For what is, so", "A caption.\nFor what is, so"),
          {"A caption. For what is", "A caption. For what is long, so and on",
           "A caption. For what is long, so and on"},
          {"適合遊戲，也適合看電影。看", "適合遊戲，也適合看電影。看書關閉。", "適合遊戲，也適合看電影。\n看書關閉。"},
          {"For what is longer", "Yes. For what is longer", "Yes. For what is longer"},
          {"適合遊戲。看電影", "適合遊戲。看電影請關閉。", "適合遊戲。\n看電影請關閉。"},
          {"電話を充電し続けます。", "電話を充電し続けます。消すと切れます。",
           "電話を充電し続けます。\n消すと切れます。"},
          {"交互に見るため", "交互に見る画面です。消せます。", "交互に見る\n画面です。\n消せます。"},
          {"為手機充電並使用鍵盤。", "為手機充電並使用鍵盤。好", "為手機充電並\n使用鍵盤。好"}}) {
        const int width = qCeil(QFontMetricsF(font).horizontalAdvance(QString::fromUtf8(room))) + 1;
        QCOMPARE(evenLines(QString::fromUtf8(text), font, width), QString::fromUtf8(lines));
    }
}

/// One line more, for which the label is as high; none more where that line has no room.
void TestLines::labelIsAsHighAsItsPhrases()
{
    WrappedLabel label;
    label.setWordWrap(true);
    label.setText(QStringLiteral("明るさを確かめるときは消してください。"));
    const QFontMetrics metrics(label.font());
    const int room = metrics.horizontalAdvance(QStringLiteral("明るさを確かめるとき"));
    const int height = metrics.height() + 2 * metrics.lineSpacing();
    QVERIFY(label.QLabel::heightForWidth(room) < height);
    QCOMPARE(label.heightForWidth(room), height);
    QCOMPARE(evenLines(label.text(), label.font(), room, 1),
             QStringLiteral("明るさを\n確かめるときは\n消してください。"));
    QCOMPARE(evenLines(label.text(), label.font(), room), label.text());
}

/// Also once the toolkit has laid it out anew.
void TestLines::boxIsAsWideAsItsLines()
{
    const int usual = std::min(QGuiApplication::primaryScreen()->size().width() / 2, 500);
    QString text = QStringLiteral("Some");
    while (QFontMetrics(QApplication::font()).horizontalAdvance(text) < usual - 50)
        text += QStringLiteral(" words");
    int width = 0;
    QTimer::singleShot(0, this, [&width] {
        QWidget *box = QApplication::activeModalWidget();
        QEvent request(QEvent::LayoutRequest);
        QCoreApplication::sendEvent(box, &request);
        width = box->width();
        box->close();
    });
    showMessage(QMessageBox::Warning, QStringLiteral("Warning"), text, QStringLiteral("OK"), QMessageBox::YesRole,
                nullptr);
    QVERIFY(width > 0 && width < usual * 9 / 10);
}

/// The widgets in each line; none is alone on the last, and what hangs on the last one moves none of them.
void TestLines::widgetsStandInEvenLines()
{
    constexpr int kWide = 40;
    constexpr int kGap = 8;
    for (const auto &[count, room, expected] :
         {std::tuple(4, 4, "4 "), {5, 4, "3 2 "}, {7, 6, "4 3 "}, {9, 4, "3 3 3 "}, {3, 1, "1 1 1 "}}) {
        QWidget holder;
        auto *flow = new FlowLayout(kGap, &holder);
        for (int i = 0; i < count; ++i) {
            auto *widget = new QWidget(&holder);
            widget->setFixedSize(kWide, kWide);
            flow->addWidget(widget);
        }
        auto *mark = new QWidget(&holder);
        mark->setFixedSize(kGap, kGap);
        flow->addHanging(mark);
        flow->setGeometry(QRect(0, 0, room * (kWide + kGap), 999));
        std::map<int, int> lines;
        for (int i = 0; i < count; ++i)
            ++lines[flow->itemAt(i)->geometry().top()];
        QString found;
        for (const auto &[top, widgets] : lines)
            found += QStringLiteral("%1 ").arg(widgets);
        QCOMPARE(found, QLatin1String(expected));
    }
}

void TestLines::longTipsAreBroken()
{
    setUpSharedFonts();
    dressToolTips();
    QWidget widget;
    for (const QString &text :
         {QStringLiteral("Saturation has no effect while Color Enchance is above zero.").repeated(3),
          "C:/<b>" + QString(90, 'x'), QStringLiteral("亮度和对比度由显示器决定").repeated(20)}) {
        widget.setToolTip(text);
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QApplication::sendEvent(&widget, &event);
        QTextDocument shown;
        Qt::mightBeRichText(QToolTip::text()) ? shown.setHtml(QToolTip::text()) : shown.setPlainText(QToolTip::text());
        const QStringList lines = shown.toPlainText().split('\n');
        QCOMPARE(lines.join(QString()).remove(' '), QString(text).remove(' ')); // nothing is lost
        for (const QString &line : lines)
            QVERIFY(QFontMetrics(QToolTip::font()).horizontalAdvance(line) <= 360 && lines.size() > 1);
        for (QWidget *tip : QApplication::topLevelWidgets()) {
            if (tip->inherits("QTipLabel"))
                QCOMPARE(tip->grab().toImage().pixel(0, tip->height() / 2), Palette::kEdge); // its frame
        }
    }
}

QTEST_MAIN(TestLines)
#include "tst_lines.moc"
