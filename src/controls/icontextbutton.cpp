#include "controls/icontextbutton.h"

#include <QPainter>

#include "controls/palette.h"
#include "controls/pictures.h"

namespace {
constexpr QSize kTileSize(90, 82);
constexpr QRect kIconRect(33, 18, 24, 24);
constexpr QRect kCaptionRect(5, 50, 80, 24);
constexpr int kTilePixels = 14;
const QColor kTileChecked = Palette::kMint;
const QColor kTileNormal = Palette::kDim;
const QColor kTileDisabled = Palette::kDisabled;
} // namespace

IconTextButton::IconTextButton(const QString &iconBase, const QString &caption, QWidget *parent)
    : CaptionedControl(kTilePixels, parent),
      m_normalPicture(Pictures::kRoot + QStringLiteral("img/icontext/normal.png")),
      m_checkedPicture(Pictures::kRoot + QStringLiteral("img/icontext/checked.png")), m_iconBase(iconBase)
{
    setFixedSize(kTileSize);
    setCaption(caption);
}

void IconTextButton::setPictures(const QString &normal, const QString &checked)
{
    m_normalPicture = normal;
    m_checkedPicture = checked;
    update();
}

void IconTextButton::press()
{
    setChecked(!isChecked());
    Q_EMIT clicked(isChecked());
}

void IconTextButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTile(painter);
    const QColor text = !isEnabled() ? kTileDisabled : isChecked() ? kTileChecked : kTileNormal;
    drawIcon(painter, text);
    drawCaption(painter, kCaptionRect, Qt::AlignCenter, text);
    drawFocus(painter, QRect(QPoint(), kTileSize), 10.0);
}

void IconTextButton::drawTile(QPainter &painter) const
{
    const QRect tile(QPoint(), kTileSize);
    const bool lit = isEnabled() && (isChecked() || isHovered());
    if (Pictures::draw(painter, tile, lit ? m_checkedPicture : m_normalPicture))
        return;
    painter.setPen(lit ? kTileChecked : QColor(Palette::kRim));
    painter.setBrush(lit ? QColor(Palette::kLit) : QColor(Palette::kTip));
    painter.drawRoundedRect(QRectF(tile).adjusted(0.5, 0.5, -0.5, -0.5), 10, 10);
}

void IconTextButton::drawIcon(QPainter &painter, const QColor &plainColor) const
{
    const QString state = !isEnabled()  ? QStringLiteral("disabled")
                          : isChecked() ? QStringLiteral("checked")
                                        : QString();
    if (Pictures::draw(painter, kIconRect, Pictures::ofState(m_iconBase, state)) ||
        Pictures::draw(painter, kIconRect, Pictures::ofState(m_iconBase)))
        return;
    painter.setPen(QPen(plainColor, 1.6));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(kIconRect.adjusted(4, 4, -4, -4));
}
