#pragma once

#include <QString>

class QScrollArea;
class QWidget;

/// Room for one widget that may be higher than the room: it is as wide as that and scrolls up and down. No Tab stop.
QScrollArea *makeScrollArea(QWidget *parent);

/// Puts into such an area what it is for. What is behind the area is seen through it.
void fillScrollArea(QScrollArea *area, QWidget *content);

/// How wide a bar that scrolls up and down is, and how high one that scrolls sideways, in points.
inline constexpr int kScrollBarWidth = 14;

/// The look of such bars: a gap stands between them and what scrolls.
QString scrollBarStyle();
