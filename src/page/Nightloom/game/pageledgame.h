#pragma once

#include <optional>

#include "page/engine/panelpage.h"

class EventCard;
class LiveDisplay;
class SmallMatrix;
class QSpinBox;
struct AccessoryReport;

/// Which events of a game the matrix celebrates, how often and how bright.
class pageLEDGame : public PanelPage
{
    Q_OBJECT
public:
    /// The display outlives the page. Nobody is kept from choosing while no accessory is there: the page says so.
    pageLEDGame(LiveDisplay &display, CommandQueue &queue, QWidget *parent = nullptr);

    // Null before the page was shown.

    OptionGroupRow *eventOptions() const;
    QSpinBox *intervalField() const { return m_interval; }
    SliderWidget *brightnessSlider() const { return m_brightness; }
    const SmallMatrix *picture() const;

protected:
    QWidget *buildPart(const char *name) override;
    std::optional<int> ownValue(const char *label) override;
    void onButtonClicked(const char *label, int value) override;
    void showEvent(QShowEvent *event) override;

private:
    /// How the events are played.
    struct Look
    {
        int interval; ///< seconds
        int brightness;
        bool operator==(const Look &) const = default;
    };

    QWidget *buildBulkButtons();
    QWidget *buildLook();
    QWidget *buildPicture();
    QWidget *makeInterval(QWidget *parent);
    void choose(int events);
    void takeLook();
    void showLook();
    void sendReport(const AccessoryReport &report);
    void showPicture();

    LiveDisplay &m_display;
    QSpinBox *m_interval = nullptr;
    SliderWidget *m_brightness = nullptr;
    EventCard *m_card = nullptr;
    std::optional<int> m_events; ///< a bit an event; the accessory does not tell, so nothing until they are chosen once
    Look m_look{};
    int m_pointed = 0; ///< the event whose picture is shown
};
