#pragma once

#include <QString>

class QScrollArea;
class QWidget;

/// Room for one widget that may be higher than the room: it is as wide as that and scrolls up and down. No Tab stop.
QScrollArea *makeScrollArea(QWidget *parent);

/// Puts into such an area what it is for. What is behind the area is seen through it.
void fillScrollArea(QScrollArea *area, QWidget *content);

/// The look of a bar that scrolls up and down: a gap stands between it and what scrolls.
QString scrollBarStyle();
