#include "controls/pictures.h"

#include <QFile>
#include <QGuiApplication>
#include <QPixmapCache>

namespace Pictures {
namespace {
constexpr int kKept = 4096; // kB at 100 %

QString doubledPath(const QString &path)
{
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? path : path.left(dot) + QStringLiteral("@2x") + path.mid(dot);
}
} // namespace

void keepFew()
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmapCache::setCacheLimit(qRound(kKept * ratio * ratio));
}

QPixmap load(const QString &path, qreal ratio)
{
    const QString doubled = doubledPath(path);
    const bool sharp = ratio > 1.0 && doubled != path && QFile::exists(doubled);
    const QString &file = sharp ? doubled : path;

    QPixmap pixmap;
    if (QPixmapCache::find(file, &pixmap) || !QFile::exists(file))
        return pixmap;
    pixmap.load(file);
    if (sharp)
        pixmap.setDevicePixelRatio(2.0);
    QPixmapCache::insert(file, pixmap);
    return pixmap;
}

void forget(const QString &path)
{
    QPixmapCache::remove(path);
    QPixmapCache::remove(doubledPath(path));
}

bool draw(QPainter &painter, const QRect &rect, const QString &path)
{
    const QPixmap pixmap = load(path, painter.device()->devicePixelRatioF());
    if (pixmap.isNull())
        return false;
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect, pixmap);
    painter.restore();
    return true;
}

QString ofState(const QString &base, const QString &state)
{
    return state.isEmpty() ? base + QStringLiteral(".png") : base + QLatin1Char('_') + state + QStringLiteral(".png");
}
} // namespace Pictures
