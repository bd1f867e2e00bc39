#include "controls/filequestion.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QToolButton>
#include <QTreeView>

#include "controls/dress.h"
#include "controls/pictures.h"

namespace {

constexpr QSize kQuestionSize(860, 540);
constexpr int kPlacesWidth = 160;

QIcon fileIcon(const char *name)
{
    return QIcon(Pictures::kRoot + QStringLiteral("img/file/%1.png").arg(QLatin1String(name)));
}

/// Icons by kind: those that the system knows of each file come from other programs' code as well.
class PlainIcons : public QFileIconProvider
{
public:
    QIcon icon(IconType kind) const override
    {
        static const QIcon drive = fileIcon("drive"), computer = fileIcon("computer"), folder = fileIcon("folder"),
                           file = fileIcon("file");
        return kind == Drive || kind == Network      ? drive
               : kind == Computer || kind == Desktop ? computer
               : kind == Folder                      ? folder
                                                     : file;
    }
    QIcon icon(const QFileInfo &info) const override
    {
        return icon(info.isRoot() ? Drive : info.isDir() ? Folder : File);
    }
};

/// Sizes and dates in the language of the program: those of the toolkit are always in the system's.
class LocalColumns : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QVariant own = QIdentityProxyModel::data(index, role);
        if (role != Qt::DisplayRole || own.toString().isEmpty()) // folders have no size
            return own;
        const auto *files = static_cast<const QFileSystemModel *>(sourceModel());
        const QModelIndex file = mapToSource(index);
        return index.column() == kSize   ? QLocale().formattedDataSize(files->size(file))
               : index.column() == kDate ? QLocale().toString(files->lastModified(file), QLocale::ShortFormat)
                                         : own;
    }

private:
    static constexpr int kSize = 1;
    static constexpr int kDate = 3;
};

/// Its buttons in the hand of the program's icons, and room for names and dates.
void dress(QFileDialog &dialog)
{
    dressDialog(&dialog);
    for (const auto &[button, icon] : {std::pair("backButton", "back"),
                                       {"forwardButton", "forward"},
                                       {"toParentButton", "up"},
                                       {"newFolderButton", "new_folder"},
                                       {"listModeButton", "list"},
                                       {"detailModeButton", "details"}}) {
        if (auto *found = dialog.findChild<QToolButton *>(QLatin1String(button)))
            found->setIcon(fileIcon(icon));
    }
    for (QPushButton *button : dialog.findChildren<QPushButton *>())
        button->setIcon({});
    for (const QString &box : {QStringLiteral("lookIn"), QStringLiteral("fileType")}) { // else nothing names them
        if (auto *label = dialog.findChild<QLabel *>(box + QStringLiteral("Label")))
            label->setBuddy(dialog.findChild<QComboBox *>(box + QStringLiteral("Combo")));
    }
    dialog.resize(kQuestionSize);
    if (auto *splitter = dialog.findChild<QSplitter *>())
        splitter->setSizes({kPlacesWidth, kQuestionSize.width() - kPlacesWidth});
    if (auto *tree = dialog.findChild<QTreeView *>()) {
        tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

QString ask(QFileDialog &dialog, QFileDialog::AcceptMode mode)
{
    static PlainIcons icons; // the dialog's own thread may still ask while the dialog goes
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setProxyModel(new LocalColumns(&dialog));
    dialog.setIconProvider(&icons);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dress(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString askForFile(QWidget *parent, const QString &caption, const QString &folder, const QString &filter)
{
    QFileDialog dialog(parent, caption, folder, filter);
    const QString name = ask(dialog, QFileDialog::AcceptOpen);
    const QFileInfo file(name);
    return file.isShortcut() ? file.symLinkTarget() : name;
}

QString askForNewFile(QWidget *parent, const QString &caption, const QString &folder, const QString &filter,
                      const QString &suffix)
{
    QFileDialog dialog(parent, caption, folder, filter);
    dialog.setDefaultSuffix(suffix); // before it asks whether a file may be replaced
    return ask(dialog, QFileDialog::AcceptSave);
}
