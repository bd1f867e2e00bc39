#pragma once

#include <functional>

class QPainter;
class QWidget;

/// Has @p paint called whenever the widget is painted, before whatever the widget paints itself. The painter is smooth,
/// in the widget's own points. For holders that need no class of their own.
void paintBehind(QWidget *widget, std::function<void(QPainter &painter)> paint);
