// How the custom half follows its own values.

#include "controls/sliderwidget.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "page/Scene/pagescenesetting.h"
#include "page/Scene/scenetable.h"
#include "page/engine/optiongrouprow.h"

void pageSceneSetting::fillUserColours(int temperature)
{
    const Updating updating(*this);
    m_userColourSlot = userSlot(temperature);
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
        fillUserColours(deviceState.value(Command::ColorTemperature));
    if (OptionGroupRow *dimming = optionGroup(Command::LocalDimming))
        dimming->setVisible(deviceState.has(dimming->group().needs) &&
                            deviceState.value(Command::SceneMode) != kMpcsFpsCustom);
    update();
}
