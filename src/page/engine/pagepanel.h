#pragma once

#include <span>
#include <vector>

#include <QWidget>

class OptionGroupRow;
class PictureStage;
class QVBoxLayout;
class SliderWidget;
struct PanelSpec;

/// One panel of a page: its controls, and below them its drawn monitor, each made when the page wants it.
class PagePanel : public QWidget
{
public:
    /// The spec outlives it.
    PagePanel(const PanelSpec &spec, QWidget *parent);

    const PanelSpec &spec() const { return m_spec; }

    /// What the controls are to be built into.
    QVBoxLayout *column() const { return m_column; }

    /// To be called once, when the controls stand in the column: those of the monitor's settings, in their order.
    void finish(std::span<OptionGroupRow *const> rows, std::span<SliderWidget *const> sliders);
    bool isFinished() const { return m_isFinished; }

    /// Draws the monitor below the controls, which stand by then. Null for a panel without one, or that has it already.
    PictureStage *addPicture();

    /// Null while the monitor is not drawn.
    PictureStage *stage() const { return m_stage; }

private:
    void followSliders();

    const PanelSpec &m_spec;
    QVBoxLayout *m_column;
    std::vector<SliderWidget *> m_sliders;
    bool m_isFinished = false;
    PictureStage *m_stage = nullptr;
};
