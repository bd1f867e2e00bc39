#pragma once

#include "page/engine/panelpage.h"

class WindowArranger;

/// Two inputs at once: the second in a small window over the first, or both side by side. The input itself is not set
/// here.
class pageMultiWindow : public PanelPage
{
    Q_OBJECT
public:
    explicit pageMultiWindow(CommandQueue &queue, QWidget *parent = nullptr);

    void updateInterfaceData() override;
    void updateControlText() override;

    /// Null before the page is first shown.
    WindowArranger *arranger() const { return m_arranger; }

protected:
    void stageBuilt(const PanelSpec &panel, PictureStage &stage) override;
    void followValue(Command command) override;

private:
    void showWindows();

    WindowArranger *m_arranger = nullptr;
};
