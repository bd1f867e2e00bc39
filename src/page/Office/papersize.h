#pragma once

#include <QSize>

/// The custom paper size that was sent last, in millimetres; A4 before the first.
QSize storedPaper();

/// Keeps a size that was sent; false when it could not be stored.
[[nodiscard]] bool storePaper(const QSize &millimetres);
