#pragma once

#include "page/engine/panelpage.h"

/// The monitor's picture enhancement: a list of items, and the chosen one's switch, options or slider.
class pagePictureEnhanc : public PanelPage
{
    Q_OBJECT
public:
    explicit pagePictureEnhanc(CommandQueue &queue, QWidget *parent = nullptr);

    void updateControlText() override;

protected:
    bool mayShow(const PanelSpec &panel) override;
};
