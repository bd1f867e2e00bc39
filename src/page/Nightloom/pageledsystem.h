#pragma once

#include "page/Nightloom/accessorycheck.h"
#include "page/engine/panelpage.h"

inline constexpr char kPlaybackLevelKey[] = "SystemMode/PlaybackLevel";
inline constexpr char kLedBrightnessKey[] = "SystemMode/Brightness";

/// The accessory's own settings: how long an animation plays, how bright it is, the lamp, which form the accessory has,
/// and its clock.
class pageLEDSystem : public PanelPage
{
    Q_OBJECT
public:
    /// The check outlives the page.
    pageLEDSystem(AccessoryCheck ensureConnected, CommandQueue &queue, QWidget *parent = nullptr);

    void updateInterfaceData() override;

    SliderWidget *levelSlider() const { return m_level; }
    SliderWidget *brightnessSlider() const { return m_brightness; }
    OptionGroupRow *lampOptions() const { return m_lamp; }
    OptionGroupRow *formOptions() const { return m_form; }
    OptionGroupRow *clockOptions() const { return m_clock; }

protected:
    QWidget *buildPart(const char *name) override;
    void showEvent(QShowEvent *event) override;

private:
    using Chosen = void (pageLEDSystem::*)(int value);

    QWidget *buildSliders();
    SliderWidget *makeOwnSlider(const char *name, int maximum, QWidget *parent);
    OptionGroupRow *makeOptions(const OptionGroup &group, Chosen chosen);
    void showWhatIsSet();
    bool takeOver();
    void stopWorker();
    bool clockRuns() const;
    void endLiveDisplay();
    void onSliderReleased();
    void switchLamp(int value);
    void chooseForm(int value);
    void switchClock(int value);

    AccessoryCheck m_ensureConnected;
    SliderWidget *m_level = nullptr;
    SliderWidget *m_brightness = nullptr;
    OptionGroupRow *m_lamp = nullptr;
    OptionGroupRow *m_form = nullptr;
    OptionGroupRow *m_clock = nullptr;
    std::optional<int> m_lampSet; ///< what the lamp was switched to last; the accessory does not tell
};
