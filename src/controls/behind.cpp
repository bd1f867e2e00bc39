#include "controls/behind.h"

#include <utility>

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace {

class BehindPainter : public QObject
{
public:
    BehindPainter(QWidget *widget, std::function<void(QPainter &)> paint) : QObject(widget), m_paint(std::move(paint))
    {
        widget->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            QPainter painter(static_cast<QWidget *>(watched));
            painter.setRenderHint(QPainter::Antialiasing);
            m_paint(painter);
        }
        return false;
    }

private:
    const std::function<void(QPainter &)> m_paint;
};

} // namespace

void paintBehind(QWidget *widget, std::function<void(QPainter &painter)> paint)
{
    new BehindPainter(widget, std::move(paint));
}
