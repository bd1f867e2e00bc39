#include <QDebug>
#include <QFontDatabase>
#include <QResource>

#include "controls/dress.h"
#include "controls/messagebox.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/loghandler.h"
#include "elevation.h"
#include "globalapplication.h"
#include "interfacefont.h"
#include "loading.h"
#include "mainwindow.h"
#include "platform/deskfactory.h"
#include "searchdevicedlg.h"
#include "singleapplication.h"
#include "toollanguage.h"
#include "windowscale.h"
#include "workingfolder.h"

namespace {

constexpr platform::milliseconds kStartUpWait{1000};

void loadInterfaceFont()
{
    // Handed over as bytes the font is in memory once; named by its file, every reader of it keeps a copy.
    const QResource file(QStringLiteral(":/resource/HARMONYOS_SANS_SC_REGULAR.TTF"));
    const int id = QFontDatabase::addApplicationFontFromData(file.uncompressedData());
    if (id == -1) {
        qDebug() << "Failed to load font.";
        return;
    }
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        qDebug() << "Failed to find font family.";
        return;
    }
    QFont font = interfaceFont(families.first());
    font.setPixelSize(18);
    QApplication::setFont(font);
}

/// Before the first window.
void dressProgram()
{
    loadInterfaceFont();
    setUpSharedFonts();
    dressApplication();
}

int runProgram(SingleApplication &application, void *mutex)
{
    QApplication::setAttribute(Qt::AA_Use96Dpi); // high-dpi scaling needs no attribute: Qt 6 always scales
    QApplication::setQuitOnLastWindowClosed(false);
    dressProgram();
    deviceState.clear();

    SearchDeviceDlg session;
    session.searchDevices();
    session.hide();

    MainWindow window(session);
    QObject::connect(&application, &SingleApplication::anotherInstanceStarted, &window, &MainWindow::showWindow);
    window.show();
    platform::desk().mainWindowShown();
    const int result = QApplication::exec();
    platform::desk().process().closeHandle(mutex); // first: a copy that was started in our place waits only a second
    return result;
}

} // namespace

int main(int argc, char *argv[])
{
    const std::unique_ptr<platform::Desk> desk = platform::createDesk();
    platform::installDesk(desk.get());
    hardenLoading(argc, argv);
    if (handedToElevatedCopy(argc, argv))
        return 0;
    settleWorkingFolder(); // before anything is read from or written to it

    WindowScale scale(desk->displays().workArea());
    SingleApplication application(argc, argv);
    scale.takeBack();
    qInstallMessageHandler(logMessageHandler);
    GlobalApplication language;
    language.switchApplicationLanguage(toolLanguageCode());
    qDebug() << "main...";
    desk->clock().sleep(kStartUpWait);

    const platform::NamedMutex mutex = desk->process().createMutex(QStringLiteral("QUORVEL"));
    if (SingleApplication::isNameTaken(mutex)) {
        desk->process().closeHandle(mutex.handle);
        dressProgram();
        showMessage(QMessageBox::Information, QObject::tr("Information"), QObject::tr("Application is already running"),
                    QObject::tr("OK"));
        return -1;
    }
    const int result = runProgram(application, mutex.handle);
    qInstallMessageHandler(nullptr); // it asks the desk for the time, and the desk goes now
    return result;
}
