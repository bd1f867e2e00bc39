#include "page/Game/pagegameassistant.h"

#include "page/Game/gamekeys.h"
#include "page/Game/gametable.h"

pageGameAssistant::pageGameAssistant(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageGameAssistant"), OwnList::Shown, queue, parent)
{
    buildPanelsWhenShown(gamePanels());
}

QString pageGameAssistant::keysOf(const PanelSpec &panel)
{
    return gameKeys(panel.label);
}
