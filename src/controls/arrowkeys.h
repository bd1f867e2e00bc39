#pragma once

#include <optional>

#include <QPoint>
#include <Qt>

/// An arrow key as a step: 1 to the right and down, -1 to the left and up. Nothing for another key.
inline std::optional<QPoint> stepOfArrow(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPoint(-1, 0);
    case Qt::Key_Right:
        return QPoint(1, 0);
    case Qt::Key_Up:
        return QPoint(0, -1);
    case Qt::Key_Down:
        return QPoint(0, 1);
    default:
        return std::nullopt;
    }
}
