#include "page/engine/picturebutton.h"

#include <QIconEngine>
#include <QPainter>
#include <QPushButton>

#include "controls/palette.h"

namespace {

constexpr int kIcon = 44;

const char *const kPictureStyle = "QPushButton { background: @card; border: 1px solid @edge; border-radius: 8px; }"
                                  "QPushButton:hover { border-color: @hoveredEdge; }"
                                  "QPushButton:checked { border: 2px solid @mint; }"
                                  "QPushButton:focus { border: 2px solid @hoveredEdge; }"
                                  "QPushButton:checked:focus { border: 2px solid @bright; }"
                                  "QPushButton:disabled { border-color: @restingEdge; }";

/// Draws at whatever scale the screen has.
class DrawnIcon : public QIconEngine
{
public:
    DrawnIcon(DrawOption draw, int value) : m_draw(draw), m_value(value) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode, QIcon::State) override
    {
        m_draw(*painter, rect, m_value);
    }
    QIconEngine *clone() const override { return new DrawnIcon(m_draw, m_value); }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.scale(size.width() / qreal(kIcon), size.height() / qreal(kIcon));
        paint(&painter, QRect(0, 0, kIcon, kIcon), mode, state);
        return picture;
    }

private:
    DrawOption m_draw;
    int m_value;
};

} // namespace

void dressPictureButton(QPushButton *button, DrawOption draw, int value)
{
    button->setFixedSize(kPictureButtonSide, kPictureButtonSide);
    button->setIconSize(QSize(kIcon, kIcon));
    button->setIcon(QIcon(new DrawnIcon(draw, value)));
    button->setStyleSheet(Palette::styled(QString::fromLatin1(kPictureStyle)));
}
