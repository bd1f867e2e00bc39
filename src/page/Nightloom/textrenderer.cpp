#include "page/Nightloom/textrenderer.h"

#include <algorithm>

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include "ledmatrix/matrixform.h"
#include "ledmatrix/matrixgeometry.h"

namespace {

constexpr int kFineness = 2;        // pixels of the strip a cell: rows of the tapering form lie half a cell apart
constexpr int kLitFrom = 4 * 110;   // of the four pixels' brightness, 0 to 255 each
constexpr int kHeldFrames = 20;     // that each piece of a standing text stays
constexpr int kWidestText = 100000; // cells; nobody reads longer ones

/// Where the text stands and how: the tapering form is wide enough near its top only, and thin stems would fall between
/// its cells.
struct TextBand
{
    int top; ///< row
    int rows;
    int pixels; ///< of the font, in cells
    QFont::Weight weight;
};

constexpr TextBand bandOf(int form)
{
    return form == kTaperingForm ? TextBand{3, 20, 14, QFont::Bold} : TextBand{0, 25, 19, QFont::Medium};
}

} // namespace

TextRenderer::TextRenderer(int form, const QString &text, TextMotion motion)
    : m_form(form), m_motion(motion), m_columns(matrixColumns(form))
{
    if (text.isEmpty() || m_columns == 0)
        return;
    drawStrip(text);
    countFrames();
}

void TextRenderer::drawStrip(const QString &text)
{
    const TextBand band = bandOf(m_form);
    QFont font;
    font.setPixelSize(band.pixels * kFineness);
    font.setWeight(band.weight);
    const QString line = QString(text).replace(QLatin1Char('\n'), QLatin1Char(' '));
    const int pixels = QFontMetrics(font).horizontalAdvance(line);
    m_width = std::clamp((pixels + kFineness - 1) / kFineness, 1, kWidestText);
    m_strip = QImage(m_width * kFineness, band.rows * kFineness, QImage::Format_Grayscale8);
    m_strip.fill(Qt::black);
    QPainter painter(&m_strip);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(m_strip.rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
}

void TextRenderer::countFrames()
{
    if (m_motion == TextMotion::Standing) {
        const int pieces = (m_width + m_columns - 1) / m_columns;
        m_frames = pieces == 1 ? 1 : std::min(pieces * kHeldFrames, kMaximumFrames);
        return;
    }
    const int way = m_width + m_columns; // from beyond one edge to beyond the other
    m_step = (way + kMaximumFrames - 1) / kMaximumFrames;
    m_frames = (way + m_step - 1) / m_step;
}

/// The column of the text that a frame's column 0 shows.
int TextRenderer::windowOf(int index) const
{
    switch (m_motion) {
    case TextMotion::Left:
        return (index + 1) * m_step - m_columns;
    case TextMotion::Right:
        return m_width - (index + 1) * m_step;
    case TextMotion::Standing:
        break;
    }
    return m_width <= m_columns ? -(m_columns - m_width) / 2 : index / kHeldFrames * m_columns;
}

int TextRenderer::fullestFrame() const
{
    if (m_motion == TextMotion::Standing || m_frames == 0)
        return 0;
    const int comesIn = (std::min(m_width, m_columns) + m_columns) / 2; // cells of the way
    return std::clamp(comesIn / m_step - 1, 0, m_frames - 1);
}

MatrixFrame TextRenderer::frame(int index) const
{
    MatrixFrame frame(m_form);
    const TextBand band = bandOf(m_form);
    const int window = windowOf(index) * kFineness;
    const auto rows = matrixRows(m_form);
    for (int row = band.top; row < band.top + band.rows; ++row) {
        const uchar *upper = m_strip.constScanLine((row - band.top) * kFineness);
        const uchar *lower = m_strip.constScanLine((row - band.top) * kFineness + 1);
        const int shift = window + matrixRowShift(m_form, row);
        for (int column = 0; column < rows[static_cast<std::size_t>(row)].cells; ++column) {
            const int x = shift + column * kFineness;
            if (x < 0 || x + 1 >= m_strip.width())
                continue;
            const int light = upper[x] + upper[x + 1] + lower[x] + lower[x + 1];
            frame.setCell(row, column, light >= kLitFrom ? 1 : 0);
        }
    }
    return frame;
}
