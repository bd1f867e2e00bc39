// What the main window does for the LED-matrix accessory: its handle, and the busy mode around long work with it.

#include "controls/lefttabbutton.h"
#include "controls/messagebox.h"
#include "leftbar.h"
#include "mainwindow.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/pageledmusic.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/hidtransport.h"

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

/// The one place where all that streams to the accessory, or feeds what does, is stopped.
void MainWindow::stopAccessoryWork()
{
    ledWorkThread::instance()->stop();
}

void MainWindow::setAccessoryBusy(bool busy)
{
    m_musicPage->setBusy(busy); // stops listening before the worker is stopped
    if (busy)
        stopAccessoryWork();
    const LeftBar *bar = leftBar(kAccessoryFamily);
    for (std::size_t i = 0; i < bar->buttons().size(); ++i)
        bar->buttons()[i]->setEnabled(!busy || static_cast<int>(i) == bar->current());
}

/// At the end of the program, while the pages that the work belongs to are still there.
void MainWindow::endAccessoryWork()
{
    stopUploads();
    ledWorkThread::shutDown();
}
