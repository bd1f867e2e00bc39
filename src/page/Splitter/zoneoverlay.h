#pragma once

#include <optional>
#include <vector>

#include <QDateTime>
#include <QWidget>

#include "splitter/splitlayout.h"

class CaptionLabel;
class FocusGroup;
class QLabel;
class QPushButton;

/// A small card on the desktop with the zones of a layout and their numbers. A number, a press, or the arrows and Enter
/// choose one; Escape and going elsewhere close it.
class ZoneOverlay : public QWidget
{
    Q_OBJECT
public:
    ZoneOverlay();

    /// Opens in the middle of a screen.
    /// @param title  whose window is arranged
    /// @param layout  its zones are offered
    /// @param screen  in pixels of the desktop, as the system counts them
    /// @param current  the zone that the window is in
    void open(const QString &title, const SplitLayout &layout, const QRect &screen, std::optional<int> current);

    /// One button a zone.
    const std::vector<QPushButton *> &zones() const { return m_zones; }

Q_SIGNALS:
    void zoneChosen(int zone);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void makeZones(const SplitLayout &layout, std::optional<int> current);
    void choose(int zone);

    CaptionLabel *m_title;
    QWidget *m_picture; ///< of the screen
    QLabel *m_hint;
    std::vector<QPushButton *> m_zones;
    QDateTime m_opened;
};
