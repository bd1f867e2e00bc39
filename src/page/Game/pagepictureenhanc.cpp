#include "page/Game/pagepictureenhanc.h"

#include <QDebug>

#include "page/Game/picturetable.h"
#include "page/engine/lockrules.h"

pagePictureEnhanc::pagePictureEnhanc(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pagePictureEnhanc"), OwnList::Shown, queue, parent)
{
    setLocks(motionLocks());
    buildPanels(picturePanels());
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
