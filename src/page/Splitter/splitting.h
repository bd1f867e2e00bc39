#pragma once

#include <memory>

#include <QObject>

#include "page/Splitter/splitterkeys.h"
#include "splitter/windowsplitter.h"
#include "systemnotices.h"

class ForegroundWatch;
class HotkeyOverlay;
class KeyFields;
class PageSet;
class QStackedWidget;
class ZoneOverlay;
class pageSplitter;

/// The screen splitter as the window sees it: its page, its keys, its overlay, and what they do.
class Splitting : public QObject
{
    Q_OBJECT
public:
    /// What it works with, and whom it tells; all of it outlives this.
    struct Surroundings
    {
        KeyFields &keys;
        ForegroundWatch &watch;
        HotkeyOverlay &notes;
    };

    /// Makes the page on the stack and adds it to the set.
    Splitting(const Surroundings &around, PageSet &pages, QStackedWidget *stack, QObject *parent);
    ~Splitting() override;

    /// Shows the zones of the layout that is chosen for the screen of the window that the user means; with @p fixed
    /// halves where that layout is the user's own. Closes them when they are shown.
    void openZones(bool fixed = false);

    /// The displays may have changed: what is shown of them follows.
    void systemNoticed(SystemNotice notice);

    /// Null until it was first opened.
    ZoneOverlay *overlay() const { return m_overlay.get(); }

private:
    void act(SplitAction action);
    void chooseZone(int zone);
    void tell(const SplitResult &result);

    WindowSplitter m_splitter;
    HotkeyOverlay &m_notes;
    pageSplitter *m_page;
    std::unique_ptr<ZoneOverlay> m_overlay;
    platform::WindowHandle m_window = nullptr; ///< that the overlay was opened for
    SplitLayout m_layout;                      ///< that it shows
};
