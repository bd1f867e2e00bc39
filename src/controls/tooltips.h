#pragma once

#include <QString>

class QPoint;
class QWidget;

/// The text of a tool tip with its lines broken, so that a long reason does not run across the screen. Marks in it are
/// shown as they stand: a path from outside may have any.
QString tipText(const QString &text);

/// Shows such a tip of a widget at a point of the screen.
void showTip(const QPoint &at, const QString &text, QWidget *owner);

/// From now on every widget's tool tip is broken and coloured so.
void dressToolTips();
