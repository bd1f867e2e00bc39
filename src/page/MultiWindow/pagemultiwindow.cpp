#include "page/MultiWindow/pagemultiwindow.h"

#include "ddc_protocol/devicestate.h"
#include "page/MultiWindow/multiwindowtable.h"
#include "page/MultiWindow/windowarranger.h"
#include "page/engine/labels.h"
#include "page/engine/listed.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/picturestage.h"

namespace {

constexpr Command kCommands[] = {Command::MultiWindow, Command::InsetSize, Command::InsetPlace};

} // namespace

pageMultiWindow::pageMultiWindow(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageMultiWindow"), OwnList::None, queue, parent)
{
    setLocks(multiWindowLocks());
    buildPanelsWhenShown(multiWindowPanels());
    for (const Command command : kCommands) { // what is wished is seen before the monitor has it
        beforeSending(command, [this](int) { showWindows(); });
        afterSending(command, [this](int) { showWindows(); });
    }
}

/// What is dragged goes the way of the option that is pressed: with its locks, its marks and its refusal.
void pageMultiWindow::stageBuilt(const PanelSpec &, PictureStage &stage)
{
    m_arranger = new WindowArranger(stage.picture());
    const auto choose = [this](Command command) {
        return [this, command](int value) { optionGroup(command)->buttonOf(value)->click(); };
    };
    connect(m_arranger, &WindowArranger::placeWanted, this, choose(Command::InsetPlace));
    connect(m_arranger, &WindowArranger::sizeWanted, this, choose(Command::InsetSize));
    texts().bind(LABEL("Arrangement of the windows"),
                 [this](const QString &text) { m_arranger->setAccessibleName(text); });
}

void pageMultiWindow::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showWindows();
}

void pageMultiWindow::updateControlText()
{
    PanelPage::updateControlText();
    showWindows();
}

void pageMultiWindow::followValue(Command)
{
    showWindows();
}

void pageMultiWindow::showWindows()
{
    if (!m_arranger) // before the page is first shown
        return;
    const auto words = [this](Command command, std::optional<int> value) {
        return value ? optionGroup(command)->buttonOf(*value)->text() : QObject::tr("unknown");
    };
    const auto valueOf = [this](Command command) {
        const std::optional<int> value = shownValue(deviceState, command);
        return value && optionGroup(command)->canShow(*value) ? value : std::nullopt;
    };
    const WindowsShown shown{valueOf(Command::MultiWindow), valueOf(Command::InsetPlace), valueOf(Command::InsetSize)};
    m_arranger->showWindows(shown);
    const LockRule *lock = lockOf(multiWindowLocks(), Command::InsetPlace, 0, deviceState);
    m_arranger->setLock(lock ? QObject::tr(lock->reason) : QString());
    const QString mode = words(Command::MultiWindow, shown.mode);
    m_arranger->setValueText(shown.mode == kPictureInPicture ? listed({mode, words(Command::InsetPlace, shown.place),
                                                                       words(Command::InsetSize, shown.size)})
                                                             : mode);
}
