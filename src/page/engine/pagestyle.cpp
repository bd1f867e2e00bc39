#include "page/engine/pagestyle.h"

#include <QFile>
#include <QLinearGradient>
#include <QPainter>
#include <QWidget>

#include "controls/behind.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "page/engine/scrollarea.h"

namespace {

constexpr qreal kGroundRadius = 14;
constexpr int kEdgeAlpha = 13;

void paintGround(const QWidget *page, QPainter &painter)
{
    const QRectF all = page->rect();
    QLinearGradient light(all.topLeft(), all.bottomLeft());
    light.setColorAt(0, QColor(Palette::kPanel));
    light.setColorAt(1, QColor(Palette::kPanelEnd));
    painter.setPen(Qt::NoPen);
    painter.setBrush(light);
    painter.drawRoundedRect(all, kGroundRadius, kGroundRadius);
    painter.setPen(Palette::translucent(Palette::kText, kEdgeAlpha));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(all.adjusted(0.5, 0.5, -0.5, -0.5), kGroundRadius - 0.5, kGroundRadius - 0.5);
}

} // namespace

void layGround(QWidget *page)
{
    page->setContentsMargins(metrics::kPageBorder, metrics::kPageBorder, metrics::kPageBorder, metrics::kPageBorder);
    paintBehind(page, [page](QPainter &painter) { paintGround(page, painter); });
}

static QString readStyle()
{
    QFile file(QStringLiteral(":/resource/css/page_scene_mode.css"));
    return file.open(QIODevice::ReadOnly) ? Palette::styled(QString::fromUtf8(file.readAll())) + scrollBarStyle()
                                          : QString();
}

void dressPage(QWidget *page)
{
    static const QString style = readStyle();
    if (!style.isEmpty())
        page->setStyleSheet(style);
}
