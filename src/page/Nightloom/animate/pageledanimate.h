#pragma once

#include <optional>
#include <vector>

#include "page/Nightloom/parts/accessorycheck.h"
#include "page/engine/panelpage.h"

class LiveDisplay;
class MemoryCard;

/// Which of the animations in the accessory's memories it plays, and what was uploaded into them.
class pageLEDAnimate : public PanelPage
{
    Q_OBJECT
public:
    /// The check and the display outlive the page.
    pageLEDAnimate(AccessoryCheck ensureConnected, LiveDisplay &display, CommandQueue &queue,
                   QWidget *parent = nullptr);

    /// Null before the page was shown, as the cards.
    OptionGroupRow *memoryOptions() const;
    const std::vector<MemoryCard *> &cards() const { return m_cards; }

protected:
    QWidget *buildPart(const char *name) override;
    std::optional<int> ownValue(const char *label) override;
    void onButtonClicked(const char *label, int value) override;

private:
    void showPlayed();
    void sendChoice();

    AccessoryCheck m_ensureConnected;
    LiveDisplay &m_display;
    std::vector<MemoryCard *> m_cards;
    std::optional<int> m_chosen; ///< a bit a memory; the accessory does not tell, so nothing until it is chosen once
};
