#pragma once

#include "page/engine/panelpage.h"

class PictureLabel;

/// The monitor's inputs and outputs.
class pageIOSetting : public PanelPage
{
    Q_OBJECT
public:
    explicit pageIOSetting(CommandQueue &queue, QWidget *parent = nullptr);

    void updateInterfaceData() override;
    void updateControlText() override;

protected:
    QWidget *buildPart(const char *name) override;
    void followValue(Command command) override;
    void stageBuilt(const PanelSpec &panel, PictureStage &stage) override;

private:
    bool excludes(Command other, const char *label, int value);
    void showInput();
    void showPreview();

    QLabel *m_inputNow = nullptr;
    PictureLabel *m_preview = nullptr;
};
