#pragma once

class QWidget;

/// What the window asks of every page, whatever the page is made of. Interface thread only.
class Page
{
public:
    virtual ~Page() = default;

    /// Fills every control with what is known of the monitor and the settings. Sends nothing.
    virtual void updateInterfaceData() = 0;

    /// Shows every text in the language of now.
    virtual void updateControlText() = 0;

    /// Asked before the program ends by the user's wish, never when the system ends it: a page that holds what would be
    /// lost asks the user. False when the program is to stay.
    virtual bool mayLeave() { return true; }

    /// Asks the monitor in the background for what is in sight, unless it has just told it.
    virtual void reconcile() {}

    /// An entry of the left bar that leads to the page was chosen; its source text. For pages with several entries.
    virtual void showEntry(const char *) {}

    /// What is shown; it owns the page.
    virtual QWidget *widget() = 0;
};
