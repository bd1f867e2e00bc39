// How the custom half follows its own values: filling, and what is enabled when.

#include <QPushButton>

#include "controls/sliderwidget.h"
#include "ddc_protocol/scenemodes.h"
#include "page/Scene/pagescenesetting.h"
#include "page/Scene/scenetable.h"
#include "page/engine/optiongrouprow.h"

namespace {

constexpr int kEBook = 21; ///< black and white, in both halves

int userSlot(int temperature)
{
    const int slot = temperature - kFirstUserTemperature + 1;
    return slot >= 1 && slot <= 3 ? slot : 0;
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
    if (!showsValues())
        return;
    const Updating updating(*this);
    m_filled = m_filled || deviceState.sceneBlockValid();
    SettingsPage::updateInterfaceData();
    if (deviceState.isKnown(Command::ColorTemperature))
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
