#pragma once

#include "page/engine/panelpage.h"

/// The aids that the monitor lays over a game: a list of them, and the chosen one's settings with a picture of what
/// they do.
class pageGameAssistant : public PanelPage
{
    Q_OBJECT
public:
    explicit pageGameAssistant(CommandQueue &queue, QWidget *parent = nullptr);

protected:
    QString keysOf(const PanelSpec &panel) override;
};
