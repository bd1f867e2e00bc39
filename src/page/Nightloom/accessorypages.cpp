#include "page/Nightloom/accessorypages.h"

#include <QStackedWidget>

#include "page/Nightloom/work/ledworkthread.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/Nightloom/text/pageledmatrixtext.h"
#include "page/Nightloom/music/pageledmusic.h"
#include "page/Nightloom/system/pageledsystem.h"
#include "page/pageset.h"
#include "usb-hid/accessoryupload.h"

AccessoryPages::AccessoryPages(const Check &check, CommandQueue &queue, PageSet &pages, QStackedWidget *stack)
    : QObject(stack), m_liveDisplay(new LiveDisplay(this))
{
    auto *text = new pageLEDMatrixText(check, stack);
    auto *canvas = new pageLEDMatrixCanvas(check, stack);
    const auto followWork = [this](auto *page) {
        using AnyPage = std::remove_pointer_t<decltype(page)>;
        connect(page, &AnyPage::busyBegins, this, [this] { Q_EMIT workChanged(true); });
        connect(page, &AnyPage::busyEnded, this, [this] { Q_EMIT workChanged(false); });
    };
    followWork(text);
    followWork(canvas);
    pages.add(PageId::LedText, text);
    pages.add(PageId::LedCanvas, canvas);
    pages.add(PageId::LedMusic, new pageLEDMusic(check, *m_liveDisplay, queue, stack));
    pages.add(PageId::LedSystem, new pageLEDSystem(check, *m_liveDisplay, queue, stack));
}

void AccessoryPages::setInterrupted(bool interrupted)
{
    m_liveDisplay->setInterrupted(interrupted);
}

void AccessoryPages::end()
{
    setInterrupted(true);
    stopUploads();
    ledWorkThread::shutDown();
}
