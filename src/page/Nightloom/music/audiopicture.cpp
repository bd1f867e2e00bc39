#include "page/Nightloom/music/audiopicture.h"

#include <algorithm>

#include <QPainter>

#include "controls/metrics.h"
#include "controls/palette.h"
#include "usb-hid/accessorylink.h"

namespace {

constexpr int kStepsPerLimit = 3;
constexpr int kMatrixWidth = 270;
constexpr int kCaptionHeight = 24;
constexpr int kCaptionPixels = 12;
constexpr int kCell = 10; // before it is scaled to what fits
constexpr qreal kLargestScale = 0.8;
constexpr QSize kSize(900, 460);

const QColor kGround = Palette::kCard;
const QColor kLine(255, 255, 255, 13);
const QColor kEmpty = Palette::kUnlit;
const QColor kFoot(0x1f, 0x8f, 0x74);
const QColor kMint = Palette::kMint;
const QColor kTop = Palette::kBright;
const QColor kCaption = Palette::kDim;

void paintPanel(QPainter &painter, const QRect &area)
{
    painter.setPen(kLine);
    painter.setBrush(kGround);
    painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), 10, 10);
}

} // namespace

AudioPicture::AudioPicture(QWidget *parent) : QWidget(parent)
{
    describeControlsToAssistiveSoftware();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumHeight(200);
    followForm();
}

QSize AudioPicture::sizeHint() const
{
    return kSize;
}

std::span<const std::int32_t> AudioPicture::cells() const
{
    return m_bars ? m_bars->frame() : std::span<const std::int32_t>();
}

void AudioPicture::followForm()
{
    if (m_form == accessoryLink.form)
        return;
    m_form = accessoryLink.form;
    m_bars = m_form ? makeAudioBars(*m_form) : nullptr;
    if (m_bars)
        m_bars->setTemplate(m_template);
}

void AudioPicture::showHeights(const QList<int> &heights)
{
    m_heights = heights;
    followForm();
    if (m_bars && heights.isEmpty())
        m_bars->reset();
    else if (m_bars) {
        m_bars->clear();
        m_bars->setLevels({m_heights.begin(), m_heights.end()});
    }
    update();
}

void AudioPicture::setTemplate(AudioTemplate which)
{
    m_template = which;
    followForm();
    if (m_bars) {
        m_bars->setTemplate(m_template);
        m_bars->redraw();
    }
    update();
}

void AudioPicture::paintEvent(QPaintEvent *)
{
    using namespace metrics;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect matrix(width() - kMatrixWidth, 0, kMatrixWidth, height());
    const QRect bars(0, 0, matrix.left() - kBlockGap, height());
    paintPanel(painter, bars);
    paintPanel(painter, matrix);
    paintBars(painter, bars.adjusted(kBlockGap, kBlockGap, -kBlockGap, -kInset));
    paintMatrix(painter, matrix.adjusted(kGap, kInset, -kGap, -kInset));
}

/// How high a bar is, of what it can be.
qreal AudioPicture::shareOf(int bar) const
{
    if (!m_form || bar >= m_heights.size())
        return 0;
    const int highest = kStepsPerLimit * m_form->bars.limits[static_cast<std::size_t>(bar)] + 1;
    return std::clamp(m_heights[bar], 0, highest) / qreal(highest);
}

QString AudioPicture::valueText() const
{
    QStringList shares;
    for (int bar = 0; bar < static_cast<int>(kSpectrumBands); ++bar)
        shares += QString::number(qRound(100 * shareOf(bar)));
    return QObject::tr("%1 %, from low to high").arg(shares.join(QStringLiteral(", ")));
}

void AudioPicture::paintBars(QPainter &painter, const QRect &area) const
{
    QFont font = painter.font();
    font.setPixelSize(kCaptionPixels);
    painter.setFont(font);
    const int count = static_cast<int>(kSpectrumBands);
    const qreal pitch = area.width() / qreal(count);
    const qreal full = area.height() - kCaptionHeight;
    for (int bar = 0; bar < count; ++bar) {
        const QRectF column(area.left() + bar * pitch + pitch * 0.2, area.top(), pitch * 0.6, full);
        painter.setPen(kEmpty); // an outline: a ground would be as light as the foot of what fills it
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(column.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
        painter.setPen(Qt::NoPen);
        if (bar < m_heights.size() && m_form) {
            QRectF filled = column;
            filled.setTop(column.bottom() - full * shareOf(bar));
            QLinearGradient colours(column.bottomLeft(), column.topLeft());
            colours.setColorAt(0, kFoot);
            colours.setColorAt(0.6, kMint);
            colours.setColorAt(1, kTop);
            painter.setBrush(colours);
            painter.drawRoundedRect(filled, 4, 4);
        }
    }
    // No frequencies: which tones a band holds depends on the rate and the channels of what is heard.
    const QRectF below(area.left(), area.bottom() - kCaptionHeight, pitch, kCaptionHeight);
    painter.setPen(kCaption);
    painter.drawText(below, Qt::AlignHCenter | Qt::AlignBottom, QObject::tr("Low"));
    painter.drawText(below.translated((count - 1) * pitch, 0), Qt::AlignHCenter | Qt::AlignBottom, QObject::tr("High"));
}

void AudioPicture::paintMatrix(QPainter &painter, const QRect &area) const
{
    if (!m_form)
        return;
    const MatrixGeometry geometry(*m_form, kCell);
    const QSizeF size = geometry.size();
    const qreal scale = std::min({area.width() / size.width(), area.height() / size.height(), kLargestScale});
    painter.translate(QRectF(area).center() - QPointF(size.width(), size.height()) * scale / 2);
    painter.scale(scale, scale);
    const auto rows = m_form->rows;
    const auto flat = m_bars->frame();
    const qreal gap = kCell / 10.0;
    painter.setPen(Qt::NoPen);
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const MatrixRow &layout = rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < layout.cells; ++column) {
            painter.setBrush(flat[static_cast<std::size_t>(layout.first + column)] != 0 ? kMint : kEmpty);
            const QRectF cell = QRectF(geometry.cellRect({row, column}));
            painter.drawEllipse(cell.adjusted(gap, gap, -gap, -gap));
        }
    }
}
