#include "controls/filequestion.h"

#include <QFileDialog>
#include <QFileIconProvider>

namespace {

/// Icons by kind: those that the system knows of each file come from other programs' code as well.
class PlainIcons : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo &info) const override
    {
        return icon(info.isRoot() ? Drive : info.isDir() ? Folder : File);
    }
};

QString ask(QFileDialog &dialog, QFileDialog::AcceptMode mode)
{
    static PlainIcons icons; // the dialog's own thread may still ask while the dialog goes
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setIconProvider(&icons);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
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
