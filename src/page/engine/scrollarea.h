#pragma once

class QScrollArea;
class QWidget;

/// Room for one widget that may be higher than the room: it is as wide as that and scrolls up and down. No Tab stop.
QScrollArea *makeScrollArea(QWidget *parent);
