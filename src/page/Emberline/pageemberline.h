#pragma once

#include <vector>

#include "page/Emberline/lightlook.h"
#include "page/engine/panelpage.h"

class ColorPicker;
class LightView;
class RhythmLight;

/// The lighting at the monitor's back and foot: its settings, and how it will look with them.
class pageEmberline : public PanelPage
{
    Q_OBJECT
public:
    explicit pageEmberline(CommandQueue &queue, QWidget *parent = nullptr);

    /// From now on says what becomes of the rhythm.
    void follow(const RhythmLight &rhythm);

    void updateInterfaceData() override;
    void updateControlText() override;
    void reconcile() override;

    ColorPicker *ownColor() const { return m_ownColor; }

protected:
    QWidget *buildPart(const char *name) override;
    void followValue(Command command) override;

private:
    QWidget *buildView();
    QWidget *buildOwnColor();
    QWidget *buildRhythmNote();
    QWidget *buildTemperatureEnds();
    void sendOwnColor(const QColor &color);
    void showLight();
    void showRhythm();
    void followPointing();
    void goToMode(Command command);

    std::vector<LightView *> m_views;      ///< one a panel
    std::size_t m_followed = 0;            ///< so many groups tell what is pointed at
    std::optional<LightPreview> m_preview; ///< the option that is pointed at
    QWidget *m_ownColorRow = nullptr;
    ColorPicker *m_ownColor = nullptr;
    QLabel *m_rhythmNote = nullptr;
    const RhythmLight *m_rhythm = nullptr;
};
