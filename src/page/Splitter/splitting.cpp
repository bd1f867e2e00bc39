#include "page/Splitter/splitting.h"

#include <QStackedWidget>

#include "controls/labelled.h"
#include "following/foregroundwatch.h"
#include "page/BasicSetting/hotkeyoverlay.h"
#include "page/Splitter/pagesplitter.h"
#include "page/Splitter/splitwords.h"
#include "page/Splitter/zoneoverlay.h"
#include "page/pageset.h"
#include "platform/desk.h"

Splitting::Splitting(const Surroundings &around, PageSet &pages, QStackedWidget *stack, QObject *parent)
    : QObject(parent), m_notes(around.notes), m_page(new pageSplitter(around.keys, stack))
{
    connect(&around.watch, &ForegroundWatch::windowInFront, &m_splitter, &WindowSplitter::noteInFront);
    connect(m_page->keys(), &SplitterKeys::pressed, this, &Splitting::act);
    connect(m_page, &pageSplitter::zonesWanted, this, [this] { openZones(); });
    pages.add(PageId::Splitter, m_page);
}

Splitting::~Splitting() = default;

void Splitting::systemNoticed(SystemNotice notice)
{
    if (notice != SystemNotice::DisplaysChanged)
        return;
    m_page->followScreens();
    if (m_overlay)
        m_overlay->hide(); // its zones are of the screen as it was
}

void Splitting::act(SplitAction action)
{
    using Kind = SplitRequest::Kind;
    if (action == SplitAction::ShowZones)
        return openZones();
    const Kind kind = action == SplitAction::Next       ? Kind::Next
                      : action == SplitAction::Previous ? Kind::Previous
                                                        : Kind::Restore;
    tell(m_splitter.arrange(m_splitter.windowMeant(), {kind}));
}

void Splitting::openZones(bool fixed)
{
    if (m_overlay && m_overlay->isVisible())
        return m_overlay->hide();
    m_window = m_splitter.windowMeant();
    const auto screen = m_splitter.screenOf(m_window);
    if (!screen)
        return tell({m_window ? SplitRefusal::NoScreen : SplitRefusal::NoWindow, {}, {}, 0, false});
    m_page->tell({}, false);
    m_layout = loadLayouts(screen->key()).chosen;
    if (fixed && m_layout.isOwn)
        m_layout = fixedLayouts().front();
    if (!m_overlay) {
        m_overlay = std::make_unique<ZoneOverlay>();
        connect(m_overlay.get(), &ZoneOverlay::zoneChosen, this, &Splitting::chooseZone);
    }
    m_overlay->open(platform::desk().foreground().windowText(m_window), m_layout, screen->bounds,
                    m_splitter.zoneOf(m_window, m_layout));
}

/// The window that was arranged is where the user goes on.
void Splitting::chooseZone(int zone)
{
    const SplitResult result = m_splitter.arrange(m_window, {SplitRequest::Kind::Zone, zone}, m_layout);
    platform::desk().windows().bringToFront(m_window);
    tell(result);
}

/// A refusal is told also where the user wants no notes of what the keys did.
void Splitting::tell(const SplitResult &result)
{
    const QString words = splitWords(result);
    const bool isRefusal = result.refusal != SplitRefusal::None;
    const QString title = result.window.isEmpty() ? QObject::tr("Screen Splitter") : result.window;
    if (isRefusal)
        m_notes.showMessage(title, words);
    else
        m_notes.showNote(title, words);
    if (m_page->isVisible())
        m_page->tell(result.window.isEmpty() ? words : labelled(title, words), isRefusal);
}
