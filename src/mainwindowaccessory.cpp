// What the main window does for the LED-matrix accessory: its pages, its handle, and the busy mode around long work.

#include <QStackedWidget>

#include "controls/lefttabbutton.h"
#include "controls/messagebox.h"
#include "leftbar.h"
#include "mainwindow.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/livedisplay.h"
#include "page/Nightloom/pageledmatrixcanvas.h"
#include "page/Nightloom/pageledmatrixtext.h"
#include "page/Nightloom/pageledmusic.h"
#include "page/Nightloom/pageledsystem.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/hidtransport.h"

void MainWindow::createAccessoryPages()
{
    const AccessoryCheck check = [this] { return ensureHidConnected(); };
    auto *text = new pageLEDMatrixText(check, m_pages);
    auto *canvas = new pageLEDMatrixCanvas(check, m_pages);
    const auto followWork = [this](auto *page) {
        using AnyPage = std::remove_pointer_t<decltype(page)>;
        connect(page, &AnyPage::busyBegins, this, [this] { followAccessoryWork(true); });
        connect(page, &AnyPage::busyEnded, this, [this] { followAccessoryWork(false); });
    };
    followWork(text);
    followWork(canvas);
    addPage(PageId::LedText, text);
    addPage(PageId::LedCanvas, canvas);
    m_liveDisplay = new LiveDisplay(this);
    addPage(PageId::LedMusic, new pageLEDMusic(check, *m_liveDisplay, *m_queue, m_pages));
    addPage(PageId::LedSystem, new pageLEDSystem(check, *m_liveDisplay, *m_queue, m_pages));
}

void MainWindow::reopenHidDevice()
{
    reopenHid();
}

bool MainWindow::ensureHidConnected()
{
    clearHidFlags(); // what was found before may be gone
    reopenHidDevice();
    if (hidHandle)
        return true;
    warnNotConnected();
    return false;
}

void MainWindow::warnNotConnected()
{
    showMessage(QMessageBox::Warning, QObject::tr("Warning"),
                QObject::tr("No Type-C data cable or HDMI/DP + USB data cable connected."), QObject::tr("OK"),
                QMessageBox::YesRole, this);
}

/// An upload may end while a scene changes: then nothing can be chosen still.
void MainWindow::followAccessoryWork(bool begins)
{
    if (m_locked)
        setAccessoryBusy(begins);
    else
        setInterfaceMode(begins ? kBusy : kBusyEnded);
}

void MainWindow::setAccessoryBusy(bool busy)
{
    m_accessoryBusy = busy;
    m_liveDisplay->setInterrupted(busy);
}

/// While the accessory is busy only the page that keeps it so can be chosen.
void MainWindow::enableAccessoryEntries()
{
    const LeftBar *bar = leftBar(kAccessoryFamily);
    for (std::size_t i = 0; i < bar->buttons().size(); ++i)
        bar->buttons()[i]->setEnabled(!m_locked && (!m_accessoryBusy || static_cast<int>(i) == bar->current()));
}

/// At the end of the program, while the pages that the work belongs to are still there. What is on the matrix is gone
/// then: nobody would keep it up to date.
void MainWindow::endAccessoryWork()
{
    m_liveDisplay->setInterrupted(true);
    stopUploads();
    ledWorkThread::shutDown();
}
