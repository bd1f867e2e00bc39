#include "page/Nightloom/render/textrenderer.h"

#include <algorithm>
#include <cmath>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include "ledmatrix/devicememory.h"

namespace {

constexpr int kFineness = 2;      // pixels of the strip a cell: rows of the tapering form lie half a cell apart
constexpr int kLitFrom = 4 * 110; // of the four pixels' brightness, 0 to 255 each
constexpr int kLongestHold = 20;  // frames that a piece of a standing text stays
constexpr int kSeenFrames = 3;    // that every letter is on the matrix at least, or nobody could read it
constexpr qsizetype kLongestText = 500;

const TextBand &bandOf(const MatrixForm &form, TextMotion motion)
{
    return motion == TextMotion::Standing ? form.standing : form.scrolling;
}

QFont fontOf(const TextBand &band)
{
    QFont font;
    font.setPixelSize(band.pixels * kFineness);
    font.setWeight(QFont::Weight(band.weight));
    return font;
}

struct Span
{
    int left;
    int width;
};

/// What every row of the text's band has, in pixels of the strip: a letter that reached beyond would lose a corner.
Span wholeRows(const MatrixForm &form, const TextBand &band)
{
    int left = 0;
    int right = form.columns() * kFineness;
    for (int row = band.top; row < band.top + band.rows; ++row) {
        const auto &[cells, first, shift] = form.rows[static_cast<std::size_t>(row)];
        left = std::max(left, shift);
        right = std::min(right, shift + cells * kFineness);
    }
    return {left, right - left};
}

/// The text as one line: what would end it is a blank.
QString onOneLine(QString text)
{
    for (QChar &character : text) {
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            character = QLatin1Char(' ');
    }
    return text;
}

/// The beginning of a text that is long enough to be laid out; it ends between two letters.
QString beginning(const QString &text)
{
    if (text.size() <= kLongestText)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(kLongestText);
    const qsizetype end = finder.isAtBoundary() ? kLongestText : finder.toPreviousBoundary();
    return text.first(end > 0 ? end : kLongestText); // one letter with marks without end
}

int countLetters(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int letters = 0;
    while (finder.toNextBoundary() > 0)
        ++letters;
    return letters;
}

} // namespace

int TextRenderer::frameLimit(const MatrixForm &form)
{
    return kTextMemory / form.cells();
}

TextRenderer::TextRenderer(const MatrixForm *form, const QString &text, TextMotion motion)
    : m_form(form), m_motion(motion), m_columns(form ? form->columns() : 0), m_letters(countLetters(text))
{
    if (!text.isEmpty() && m_form)
        layOut(onOneLine(beginning(text)));
}

/// Draws the text onto the strip: its pieces one after the other, each as wide as the matrix, or all of it at once.
void TextRenderer::layOut(const QString &text)
{
    const bool standing = m_motion == TextMotion::Standing;
    const int limit = frameLimit(*m_form);
    const TextBand band = bandOf(*m_form, m_motion);
    const Span whole = wholeRows(*m_form, band);
    const int mostLines = standing ? limit / kSeenFrames : 1;
    const int widest = standing ? whole.width : (limit * (m_columns / kSeenFrames) - m_columns) * kFineness;

    QTextLayout layout(text, fontOf(band));
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    while (layout.lineCount() < mostLines) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(widest);
    }
    layout.endLayout();
    const int lines = layout.lineCount();
    const QTextLine last = layout.lineAt(lines - 1);
    m_lettersShown = countLetters(text.first(last.textStart() + last.textLength()));

    const int natural = static_cast<int>(std::ceil(std::min<qreal>(last.naturalTextWidth(), widest)));
    m_width = std::max(1, (natural + kFineness - 1) / kFineness);
    m_strip =
        QImage((standing ? lines * m_columns : m_width) * kFineness, band.rows * kFineness, QImage::Format_Grayscale8);
    m_strip.fill(Qt::black);
    QPainter painter(&m_strip);
    painter.setPen(Qt::white);
    for (int i = 0; i < lines; ++i)
        drawLine(painter, layout.lineAt(i), standing ? i * m_columns * kFineness + whole.left : 0,
                 standing ? whole.width : m_width * kFineness);
    countFrames(lines);
}

/// Draws a line into the middle of a room of the strip, in pixels. A single letter that is wider than all of the room
/// is squeezed into it.
void TextRenderer::drawLine(QPainter &painter, const QTextLine &line, int left, int width) const
{
    // By what letters reach, from accent to tail: a font's own height would push the tails out of the band.
    const QRectF reach = QFontMetricsF(fontOf(bandOf(*m_form, m_motion))).tightBoundingRect(QStringLiteral("Ágjy"));
    const QRectF natural = line.naturalTextRect();
    const qreal squeeze = std::min(1.0, width / std::max(1.0, natural.width()));
    const qreal baseline = std::round((m_strip.height() - reach.height()) / 2 - reach.top());
    painter.save();
    painter.translate(std::round(left + (width - natural.width() * squeeze) / 2), baseline - line.ascent());
    painter.scale(squeeze, 1);
    line.draw(&painter, -natural.topLeft());
    painter.restore();
}

void TextRenderer::countFrames(int pieces)
{
    const int limit = frameLimit(*m_form);
    if (m_motion == TextMotion::Standing) {
        m_hold = std::clamp(limit / pieces, kSeenFrames, kLongestHold);
        m_frames = pieces == 1 ? 1 : pieces * m_hold;
        return;
    }
    const int way = m_width + m_columns; // from beyond one edge to beyond the other
    m_step = (way + limit - 1) / limit;
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
    return index / m_hold * m_columns;
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
    MatrixFrame frame(*m_form);
    const TextBand band = bandOf(*m_form, m_motion);
    const int window = windowOf(index) * kFineness;
    for (int row = band.top; row < band.top + band.rows; ++row) {
        const uchar *upper = m_strip.constScanLine((row - band.top) * kFineness);
        const uchar *lower = m_strip.constScanLine((row - band.top) * kFineness + 1);
        const auto &[cells, first, shift] = m_form->rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < cells; ++column) {
            const int x = window + shift + column * kFineness;
            if (x < 0 || x + 1 >= m_strip.width())
                continue;
            const int light = upper[x] + upper[x + 1] + lower[x] + lower[x + 1];
            frame.setCell(row, column, light >= kLitFrom ? 1 : 0);
        }
    }
    return frame;
}
