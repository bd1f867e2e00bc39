#include "page/Nightloom/accessorypages.h"

#include <QStackedWidget>

#include "page/Nightloom/animate/pageledanimate.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "page/Nightloom/game/pageledgame.h"
#include "page/Nightloom/music/pageledmusic.h"
#include "page/Nightloom/system/matrixformsetting.h"
#include "page/Nightloom/system/pageledsystem.h"
#include "page/Nightloom/text/pageledmatrixtext.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/Nightloom/work/livedisplay.h"
#include "page/pageset.h"
#include "usb-hid/accessoryupload.h"
#include "usb-hid/hidtransport.h"

AccessoryPages::AccessoryPages(std::function<void()> warn, QObject *parent)
    : QObject(parent), m_warn(std::move(warn)), m_liveDisplay(new LiveDisplay(this))
{
    loadMatrixForm();
    reopenHid();
}

AccessoryPages::~AccessoryPages()
{
    closeHid();
}

bool AccessoryPages::ensureConnected()
{
    clearHidFlags(); // what was found before may be gone
    reopenHid();
    if (accessoryLink.handle)
        return true;
    m_warn();
    return false;
}

void AccessoryPages::build(CommandQueue &queue, PageSet &pages, QStackedWidget *stack)
{
    const AccessoryCheck check = [this] { return ensureConnected(); };
    auto *text = new pageLEDMatrixText(check, stack);
    auto *canvas = new pageLEDMatrixCanvas(check, stack);
    for (const LongWorkPage *page : std::initializer_list<LongWorkPage *>{text, canvas}) {
        connect(page, &LongWorkPage::busyBegins, this, [this] { Q_EMIT workChanged(true); });
        connect(page, &LongWorkPage::busyEnded, this, [this] { Q_EMIT workChanged(false); });
    }
    pages.add(PageId::LedText, text);
    pages.add(PageId::LedCanvas, canvas);
    pages.add(PageId::LedMusic, new pageLEDMusic(check, *m_liveDisplay, queue, stack));
    pages.add(PageId::LedSystem, new pageLEDSystem(check, *m_liveDisplay, queue, stack));
    pages.add(PageId::LedAnimate, new pageLEDAnimate(check, *m_liveDisplay, queue, stack));
    pages.add(PageId::LedGame, new pageLEDGame(*m_liveDisplay, queue, stack));
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
