#include "controls/icontextbutton2.h"

#include <QPainter>

#include "controls/palette.h"
#include "controls/pictures.h"

namespace {
constexpr QSize kFallbackPicture(56, 40);
constexpr int kPadding = 10;
constexpr int kCaptionHeight = 22;
constexpr int kLeastWidth = 96;
constexpr int kScenePixels = 14;
const QColor kSceneFrame(31, 43, 43);
const QColor kLitFrame(41, 47, 47);
const QColor kSceneChecked(65, 202, 169);
const QColor kSceneNormal = Palette::kDim;
const QColor kSceneDisabled = Palette::kDisabled;
} // namespace

IconTextButton2::IconTextButton2(const QString &normalPicture, const QString &checkedPicture, const QString &caption,
                                 QWidget *parent)
    : CaptionedControl(kScenePixels, parent), m_normalPicture(normalPicture), m_checkedPicture(checkedPicture),
      m_pictureSize(kFallbackPicture)
{
    const QPixmap picture = Pictures::load(normalPicture, 1.0);
    if (!picture.isNull())
        m_pictureSize = picture.size();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCaption(caption);
}

QSize IconTextButton2::sizeHint() const
{
    return QSize(qMax(kLeastWidth, m_pictureSize.width() + 2 * kPadding),
                 m_pictureSize.height() + 2 * kPadding + kCaptionHeight);
}

QSize IconTextButton2::minimumSizeHint() const
{
    return sizeHint();
}

void IconTextButton2::press()
{
    setChecked(true);
    Q_EMIT clicked();
}

void IconTextButton2::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool lit = isEnabled() && (isChecked() || isHovered());
    painter.setPen(lit ? kLitFrame : kSceneFrame);
    painter.setBrush(painter.pen().color());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);

    drawPicture(painter, rect().adjusted(0, kPadding, 0, -kCaptionHeight - kPadding));
    const QColor text = !isEnabled() ? kSceneDisabled : isChecked() ? kSceneChecked : kSceneNormal;
    const QRect captionRect(6, height() - kCaptionHeight - 6, width() - 12, kCaptionHeight);
    drawCaption(painter, captionRect, Qt::AlignCenter, text);
    drawFocus(painter, rect(), 8.0);
}

void IconTextButton2::drawPicture(QPainter &painter, const QRect &area) const
{
    QRect target(QPoint(), m_pictureSize);
    target.moveCenter(area.center());
    painter.save();
    painter.setOpacity(isEnabled() ? 1.0 : 0.35);
    if (!Pictures::draw(painter, target, isChecked() ? m_checkedPicture : m_normalPicture)) {
        painter.setPen(QPen(isChecked() ? kSceneChecked : kSceneNormal, 1.6));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(target).adjusted(2, 2, -2, -2), 4, 4);
    }
    painter.restore();
}
