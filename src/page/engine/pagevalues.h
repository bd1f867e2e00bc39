#pragma once

#include <functional>

#include "controls/valuemark.h"
#include "ddc_protocol/command.h"

class OptionGroupRow;
class PageControls;
class QObject;
class SliderWidget;

/// Shows in a page's controls what the snapshot holds, and what is to be said about it. Sends nothing.
class PageValues
{
public:
    struct Rules
    {
        /// Whether controls keep what they show when nothing is known any more, marked as unconfirmed, instead of a
        /// dash.
        std::function<bool()> keepsContents;

        /// Called when time alone has changed what is to be said about a value.
        std::function<void(Command command)> lookAgain;
    };

    /// The controls outlive it, and whatever the rules call.
    PageValues(QObject &page, const PageControls &controls, Rules rules);

    void fillAll() const;

    /// Fills the controls of one command: there may be several.
    void fill(Command command) const;

    /// Sets a slider to what is known of a command; one that the user holds is left alone.
    void fill(SliderWidget *slider, Command command) const;

    /// What is to be said beside a value. One on its way says so only when that takes longer than one expects; then it
    /// is looked at once more.
    Mark markOf(Command command) const;

private:
    void fill(OptionGroupRow *row) const;
    bool isListed(Command command, int value) const;

    QObject &m_page;
    const PageControls &m_controls;
    Rules m_rules;
};
