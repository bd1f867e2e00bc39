#include <QtTest>
#include <QtWidgets>

#include "controls/accessiblecontrol.h"
#include "controls/dress.h"
#include "controls/filequestion.h"
#include "support/deskfixture.h"
#include "toollanguage.h"

/// A text of the toolkit: its context, source and comment.
using ToolkitText = std::tuple<QByteArray, QByteArray, QByteArray>;

/// Hears which texts of the toolkit are asked for; translates none.
class Listener : public QTranslator
{
public:
    Listener() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *comment, int) const override
    {
        // The names of keys stay: files hold combinations by them. The direction of texts is the system's.
        if (!QByteArrayList({"QObject", "QShortcut", "QGuiApplication"}).contains(context) &&
            !QByteArray(source).startsWith("Alt+"))
            asked.insert({context, source, comment});
        return {};
    }

    mutable std::set<ToolkitText> asked;
};

/// Takes the step and closes the menu or the question that it leads to.
static void closing(const std::function<void()> &step)
{
    QTimer closer;
    const QWidget *below = QApplication::activeModalWidget();
    QObject::connect(&closer, &QTimer::timeout, &closer, [below] {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
        else if (QWidget *question = QApplication::activeModalWidget(); question != below)
            question->close();
    });
    closer.start(0);
    step();
}

static void openMenu(QWidget *widget)
{
    const QPoint place = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
    closing([&] { QApplication::sendEvent(widget, &event); });
}

/// Looks into the dialog that opens next, and closes it.
template <typename Dialog> static void lookInto(void (*look)(Dialog *))
{
    QTimer::singleShot(0, [look] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        look(dialog);
        dialog->reject();
    });
}

static void isOnScreen(QDialog *dialog)
{
    QVERIFY(dialog->screen()->availableGeometry().contains(dialog->frameGeometry()));
}

static void readWhole(const QAbstractItemModel *model, const QModelIndex &root)
{
    for (int column = 0; column < model->columnCount(root); ++column) {
        model->headerData(column, Qt::Horizontal);
        for (int row = 0; row < model->rowCount(root); ++row)
            model->index(row, column, root).data();
    }
}

/// Sizes and dates, whatever the system speaks.
static void speaksJapanese(const QFileDialog *dialog, const QAbstractItemModel *files)
{
    const QModelIndex root = dialog->findChild<QAbstractItemView *>("listView")->rootIndex();
    const QModelIndexList found = files->match(files->index(0, 0, root), Qt::DisplayRole, "there.csv");
    QCOMPARE(found.size(), 1);
    const QDateTime date = QFileInfo(dialog->directory(), "there.csv").lastModified();
    QCOMPARE(found.first().siblingAtColumn(1).data().toString(), QStringLiteral("1 バイト"));
    QCOMPARE(found.first().siblingAtColumn(3).data().toString(),
             QLocale(QLocale::Japanese).toString(date, QLocale::ShortFormat));
}

static bool hasOurIcons(const QAbstractItemModel *model, const QModelIndex &root)
{
    for (int row = 0; row < model->rowCount(root); ++row) {
        const auto shown = model->index(row, 0, root).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
        const QStringList kinds = {"folder", "file", "computer", "drive"};
        if (shown.isNull() || std::none_of(kinds.begin(), kinds.end(), [&shown](const QString &kind) {
                return QIcon(":/resource/img/file/" + kind + ".png").pixmap(16).toImage() == shown;
            }))
            return false;
    }
    return model->rowCount(root) > 0;
}

/// Also when the toolkit's thread comes late with those that it asked for before it knew the program's.
static void keepsOurIcons(QFileDialog *dialog, const QAbstractItemView *list)
{
    static QFileIconProvider toolkit;
    dialog->setIconProvider(&toolkit);
    QVERIFY(hasOurIcons(list->model(), list->rootIndex()));
    for (QAbstractItemModel *places : {dialog->findChild<QAbstractItemView *>("sidebar")->model(),
                                       dialog->findChild<QComboBox *>("lookInCombo")->model()}) {
        places->setData(places->index(0, 0), toolkit.icon(QFileIconProvider::Trashcan), Qt::DecorationRole);
        QVERIFY(hasOurIcons(places, {}));
    }
}

static void walkFileDialog(QFileDialog *dialog)
{
    describeControlsToAssistiveSoftware();
    for (QComboBox *box : dialog->findChildren<QComboBox *>()) {
        const QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(box);
        QVERIFY2(!seen->text(QAccessible::Name).isEmpty(), qPrintable(box->objectName()));
    }
    auto *list = dialog->findChild<QAbstractItemView *>("listView");
    auto *name = dialog->findChild<QLineEdit *>("fileNameEdit");
    QTRY_VERIFY_WITH_TIMEOUT(list->model()->rowCount(list->rootIndex()) >= 3, 5000);
    readWhole(list->model(), list->rootIndex());
    speaksJapanese(dialog, list->model());
    keepsOurIcons(dialog, list);
    openMenu(name);
    openMenu(dialog->findChild<QAbstractItemView *>("sidebar"));
    for (const char *text : {"there.csv", "nowhere.csv", "none/none.csv"}) {
        name->setText(text);
        closing([&] { QMetaObject::invokeMethod(dialog, "accept"); });
        dialog->show(); // the name was taken where the dialog opens files
    }
    name->clear();
    openMenu(list->viewport());
    for (const int row : {0, 1, 2}) {
        list->setCurrentIndex(list->model()->index(row, 0, list->rootIndex()));
        closing([&] { dialog->findChild<QAction *>("qt_delete_action")->trigger(); });
    }
    closing([&] { dialog->findChild<QAction *>("qt_new_folder_action")->trigger(); });
}

/// The dialogs, their menus and questions, and the menus of fields: what the program can show of the toolkit.
class TestToolkit : public DeskSuite
{
    Q_OBJECT
private Q_SLOTS:
    /// Some systems have fonts of their own for menus and questions.
    void oneFontForAll()
    {
        constexpr const char *kKinds[] = {"QMenu", "QMessageBox", "QAbstractItemView"};
        for (const char *kind : kKinds)
            QApplication::setFont(QFont("of the system"), kind);
        dressApplication();
        for (const char *kind : kKinds)
            QCOMPARE(QApplication::font(kind), QApplication::font());
    }

    /// Also the dialog for files, on a screen that is smaller than it would be.
    void dialogsFitTheScreen()
    {
        dressApplication();
        lookInto(&isOnScreen);
        askForFile(nullptr, "caption", m_desk->folder(), "*.*");
        lookInto(&isOnScreen);
        QColorDialog::getColor(Qt::red, nullptr, {}, QColorDialog::DontUseNativeDialog);
    }

    void everyTextIsTranslated()
    {
        Listener listener;
        QVERIFY(writeText("there.csv", "1") && writeText("locked.csv", "1") && QDir().mkdir("folder"));
        QVERIFY(QFile::setPermissions("locked.csv", QFile::ReadOwner));
        QLocale::setDefault(QLocale(QLocale::Japanese));
        lookInto(&walkFileDialog);
        askForFile(nullptr, "caption", m_desk->folder(), "*.*");
        lookInto(&walkFileDialog);
        askForNewFile(nullptr, "caption", m_desk->folder(), "*.*", "csv");
        lookInto<QColorDialog>([](QColorDialog *dialog) { openMenu(dialog->findChild<QLineEdit *>()); });
        QColorDialog::getColor(Qt::red, nullptr, {}, QColorDialog::DontUseNativeDialog);

        QLineEdit line("text");
        QPlainTextEdit page("text");
        QScrollBar across(Qt::Horizontal);
        QScrollBar down(Qt::Vertical);
        QSpinBox number;
        QTabBar tabs;
        QKeySequenceEdit keys;
        for (QWidget *widget :
             std::initializer_list<QWidget *>{&line, page.viewport(), &across, &down, &number, &tabs, &keys})
            openMenu(widget);

        QStringList missing;
        for (const ToolLanguage &language : toolLanguages()) {
            QTranslator translation;
            QVERIFY(translation.load(QString(language.translation)));
            for (const auto &[context, source, comment] : listener.asked) {
                if (translation.translate(context.constData(), source.constData(), comment.constData()).isEmpty())
                    missing << QStringList{language.code, context, source, comment}.join(" | ");
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
        QVERIFY(listener.asked.size() > 80); // it heard them at all
    }
};

QTEST_MAIN(TestToolkit)
#include "tst_toolkit.moc"
