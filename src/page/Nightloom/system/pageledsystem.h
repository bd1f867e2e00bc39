#pragma once

#include <optional>
#include <utility>

#include "page/Nightloom/parts/accessorycheck.h"
#include "page/engine/panelpage.h"

class LiveDisplay;

/// The accessory's own settings: how long an animation plays, how bright it is, the lamp, which form the accessory has,
/// and its clock.
class pageLEDSystem : public PanelPage
{
    Q_OBJECT
public:
    /// The check and the display outlive the page.
    pageLEDSystem(AccessoryCheck ensureConnected, LiveDisplay &display, CommandQueue &queue, QWidget *parent = nullptr);

    void updateInterfaceData() override;

    SliderWidget *levelSlider() const { return m_level; }
    SliderWidget *brightnessSlider() const { return m_brightness; }
    OptionGroupRow *lampOptions() const;
    OptionGroupRow *formOptions() const;
    OptionGroupRow *clockOptions() const;

protected:
    QWidget *buildPart(const char *name) override;
    std::optional<int> ownValue(const char *label) override;
    void onButtonClicked(const char *label, int value) override;

private:
    SliderWidget *makeSlider(const char *name, Command command, QWidget *parent);
    void showWhatIsSet();
    void onSliderReleased(SliderWidget *moved, Command command);
    void switchLamp(int value);
    void chooseForm(int value);
    void switchClock(int value);

    AccessoryCheck m_ensureConnected;
    LiveDisplay &m_display;
    SliderWidget *m_level = nullptr;
    SliderWidget *m_brightness = nullptr;
    std::optional<std::pair<int, int>> m_unstored; ///< level and brightness that the file did not take
    std::optional<int> m_lampSet;                  ///< what the lamp was switched to last; the accessory does not tell
};
