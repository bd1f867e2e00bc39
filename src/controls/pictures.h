#pragma once

#include <QPainter>
#include <QPixmap>
#include <QString>

/// Pictures of the resource folder, sharp at every scaling: beside "a.png" stands "a@2x.png" with twice its pixels.
namespace Pictures {
/// The folder that every picture name of the controls starts with.
inline const QString kRoot = QStringLiteral(":/resource/");

/// Keeps about as many pictures loaded as a page shows, at the scale of the sharpest screen, rather than those of pages
/// that nobody looks at any more.
void keepFew();

/// Loads the picture at @p path for a device pixel ratio of @p ratio, from the cache when it was loaded before.
/// Above 1.0 the "@2x" file is taken if there is one. The result is null when no such picture exists.
QPixmap load(const QString &path, qreal ratio);

/// Gives the memory of a large picture back that is out of sight; it is loaded anew when it is wanted again.
void forget(const QString &path);

/// Fills @p rect with the picture at @p path. Returns false, with nothing drawn, when no such picture exists.
bool draw(QPainter &painter, const QRect &rect, const QString &path);

/// "a/b.png" for the base "a/b" and no state, "a/b_checked.png" for the state "checked".
QString ofState(const QString &base, const QString &state = QString());
} // namespace Pictures
