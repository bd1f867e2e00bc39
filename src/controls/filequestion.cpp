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
constexpr int kPlaceUrl = Qt::UserRole + 1; // the toolkit's role of a place's address

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

/// They outlive each dialog, whose thread may still ask while the dialog goes.
PlainIcons &plainIcons()
{
    static PlainIcons icons;
    return icons;
}

/// Sizes and dates in the language of the program: those of the toolkit are always in the system's. And the icons once
/// more: the dialog's thread may have asked for the toolkit's before it was told of ours.
class FileTable : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        const auto *files = static_cast<const QFileSystemModel *>(sourceModel());
        const QModelIndex file = mapToSource(index);
        if (role == Qt::DecorationRole && index.column() == 0)
            return plainIcons().icon(!file.parent().isValid() ? PlainIcons::Drive
                                     : files->isDir(file)     ? PlainIcons::Folder
                                                              : PlainIcons::File);
        const QVariant own = QIdentityProxyModel::data(index, role);
        if (role != Qt::DisplayRole || own.toString().isEmpty()) // folders have no size
            return own;
        return index.column() == kSize   ? QLocale().formattedDataSize(files->size(file))
               : index.column() == kDate ? QLocale().toString(files->lastModified(file), QLocale::ShortFormat)
                                         : own;
    }

private:
    static constexpr int kSize = 1;
    static constexpr int kDate = 3;
};

/// The same for the places beside the files and for the folders above them, which have a model of their own.
void keepIcons(QAbstractItemModel *places)
{
    const auto keep = [places] {
        for (int row = 0; row < places->rowCount(); ++row) {
            const QModelIndex place = places->index(row, 0);
            const bool isFolder = place.data(kPlaceUrl).toUrl().path().size() > 1;
            const QIcon icon = plainIcons().icon(isFolder ? PlainIcons::Folder : PlainIcons::Computer);
            if (place.data(Qt::DecorationRole).value<QIcon>().cacheKey() != icon.cacheKey())
                places->setData(place, icon, Qt::DecorationRole);
        }
    };
    QObject::connect(places, &QAbstractItemModel::dataChanged, places, keep);
    QObject::connect(places, &QAbstractItemModel::rowsInserted, places, keep);
    keep();
}

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
    if (auto *above = dialog.findChild<QComboBox *>(QStringLiteral("lookInCombo")))
        keepIcons(above->model());
    if (auto *beside = dialog.findChild<QAbstractItemView *>(QStringLiteral("sidebar")))
        keepIcons(beside->model());
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
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setIconProvider(&plainIcons());
    dialog.setProxyModel(new FileTable(&dialog));
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dress(dialog);
    holdUpItsWindow(&dialog);
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
