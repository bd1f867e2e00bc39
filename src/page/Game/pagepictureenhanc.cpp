#include "page/Game/pagepictureenhanc.h"

#include <QDebug>

#include "ddc_protocol/scenemodes.h"
#include "page/Game/picturetable.h"
#include "page/engine/optiongrouprow.h"

pagePictureEnhanc::pagePictureEnhanc(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pagePictureEnhanc"), OwnList::Shown, queue, parent)
{
    buildPanels(picturePanels(deviceState));
}

/// The two cannot be on together, so with the first on the second is not even opened.
bool pagePictureEnhanc::mayShow(const PanelSpec &panel)
{
    const bool excluded = qstrcmp(panel.label, kAdaptiveSyncItem) == 0 && monitorHas(Command::GameRush, 1);
    if (excluded)
        showNotice(alreadyEnabled(kGameRushItem));
    return !excluded;
}

void pagePictureEnhanc::updateControlText()
{
    if (static_cast<int>(entries().size()) != panelCount())
        qDebug() << "buttonLeftText-size != buttonList-size";
    PanelPage::updateControlText();
}

void pagePictureEnhanc::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    allowMotionOptions();
}

void pagePictureEnhanc::followValue(Command command)
{
    if (command == Command::SceneMode)
        allowMotionOptions();
}

void pagePictureEnhanc::allowMotionOptions()
{
    const int scene = deviceState.value(Command::SceneMode);
    for (OptionGroupRow *row : optionGroups()) {
        if (row->group().command != Command::MotionTech || row->group().look == GroupLook::Switch)
            continue;
        for (const Option &option : row->group().options)
            row->buttonOf(option.value)->setEnabled(motionOptionAllowed(option.value, scene));
    }
}
