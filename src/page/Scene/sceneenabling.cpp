// How the custom half follows its own values: filling, and what is enabled when.

#include <QPushButton>

#include "controls/sliderwidget.h"
#include "page/Scene/pagescenesetting.h"
#include "page/Scene/scenetable.h"
#include "page/engine/optiongrouprow.h"

namespace {

constexpr int kMpcsFpsCustom = 26; ///< motion at its sharpest: no local dimming
constexpr int kMpcsLdCustom = 28;  ///< motion together with local dimming
constexpr int kEBook = 21;         ///< black and white, in both halves

constexpr int kFirstUllLevel = 6;
constexpr int kLow = 3;
constexpr int kHigh = 5;

int userSlot(int temperature)
{
    const int slot = temperature - kFirstUserTemperature + 1;
    return slot >= 1 && slot <= 3 ? slot : 0;
}

bool motionOptionAllowed(int option, int scene)
{
    if (scene == kMpcsLdCustom)
        return option < kFirstUllLevel;
    if (scene == kMpcsFpsCustom)
        return option < kLow || option > kHigh;
    return true;
}

} // namespace

void pageSceneSetting::followColorTemperature(int value)
{
    enableTemperatureSliders(value);
    fillUserColours(value);
}

void pageSceneSetting::enableTemperatureSliders(int value)
{
    slider(kNightViewSlider)->setEnabled(value == kNightViewTemperature);
    for (const char *name : kUserColourSliders)
        slider(name)->setEnabled(userSlot(value) != 0);
}

void pageSceneSetting::fillUserColours(int value)
{
    const Updating updating(*this);
    m_userColourSlot = userSlot(value);
    for (int channel = 0; channel < 3; ++channel) {
        SliderWidget *colour = slider(kUserColourSliders[channel]);
        colour->setValue(0);
        if (m_userColourSlot != 0)
            fillSlider(colour, kUserColours[m_userColourSlot - 1][channel]);
    }
}

void pageSceneSetting::fillCustomArea()
{
    if (!deviceState.sceneBlockValid())
        return;
    const Updating updating(*this);
    SettingsPage::updateInterfaceData();
    followColorTemperature(deviceState.value(Command::ColorTemperature));
    enableForScene();
    update();
}

void pageSceneSetting::enableForScene()
{
    const int scene = deviceState.value(Command::SceneMode);
    OptionGroupRow *motion = optionGroup(Command::MotionTech);
    for (const Option &option : motion->group().options)
        motion->buttonOf(option.value)->setEnabled(motionOptionAllowed(option.value, scene));
    if (OptionGroupRow *dimming = optionGroup(Command::LocalDimming))
        dimming->setVisible(scene != kMpcsFpsCustom);

    const bool hasColour = scene != kEBook && scene != kEBook + 1;
    for (SliderWidget *widget : sliders()) {
        if (isHueSlider(widget->name()))
            widget->setEnabled(hasColour);
    }
    slider("Color Enchance")->setEnabled(hasColour);
    enableSaturation();
}

void pageSceneSetting::enableSaturation()
{
    const int scene = deviceState.value(Command::SceneMode);
    const bool hasColour = scene != kEBook && scene != kEBook + 1;
    const bool enabled = hasColour && deviceState.value(Command::ColorEnhance) == 0;
    for (SliderWidget *widget : sliders()) {
        if (isSaturationSlider(widget->name()))
            widget->setEnabled(enabled);
    }
}
