#include "page/engine/pagestyle.h"

#include <QEvent>
#include <QFile>
#include <QLinearGradient>
#include <QPainter>
#include <QWidget>

#include "controls/metrics.h"
#include "controls/palette.h"

namespace {

constexpr qreal kGroundRadius = 14;
constexpr int kEdgeAlpha = 13;

class Ground : public QObject
{
public:
    explicit Ground(QWidget *page) : QObject(page) { page->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            paint(static_cast<QWidget *>(watched));
        return false;
    }

private:
    static void paint(QWidget *page)
    {
        const QRectF all = page->rect();
        QLinearGradient light(all.topLeft(), all.bottomLeft());
        light.setColorAt(0, QColor(Palette::kPanel));
        light.setColorAt(1, QColor(Palette::kPanelEnd));
        QPainter painter(page);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(light);
        painter.drawRoundedRect(all, kGroundRadius, kGroundRadius);
        painter.setPen(Palette::translucent(Palette::kText, kEdgeAlpha));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(all.adjusted(0.5, 0.5, -0.5, -0.5), kGroundRadius - 0.5, kGroundRadius - 0.5);
    }
};

} // namespace

void layGround(QWidget *page)
{
    page->setContentsMargins(metrics::kPageBorder, metrics::kPageBorder, metrics::kPageBorder, metrics::kPageBorder);
    new Ground(page);
}

static QString readStyle()
{
    QFile file(QStringLiteral(":/resource/css/page_scene_mode.css"));
    return file.open(QIODevice::ReadOnly) ? Palette::styled(QString::fromUtf8(file.readAll())) : QString();
}

void dressPage(QWidget *page)
{
    static const QString style = readStyle();
    if (!style.isEmpty())
        page->setStyleSheet(style);
}
