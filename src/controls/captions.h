#pragma once

#include <algorithm>
#include <limits>

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

/// A text as it fits a width: first the letters shrink, to 75 % at least, then the end is elided.
struct FittedCaption
{
    QFont font;
    QString text;
    bool elided = false;
};

/// Fits @p text, wished at @p pixelSize, into @p width pixels, no larger than @p largest.
FittedCaption fitCaption(const QString &text, const QFont &font, int pixelSize, int width,
                         int largest = std::numeric_limits<int>::max());

/// Draws the captions of one bar in one size: the smallest that one of them needs. Each control says what it needs by
/// captionSize() and is told by setCaptionSize(), both in pixels.
template <class Controls> void shrinkTogether(const Controls &bar)
{
    int smallest = std::numeric_limits<int>::max();
    for (const auto *control : bar)
        smallest = std::min(smallest, control->captionSize());
    for (auto *control : bar)
        control->setCaptionSize(smallest);
}

/// One line of text that a control paints itself. It remembers whether the last painting had to elide it.
class Caption
{
public:
    explicit Caption(int pixelSize, const QString &text = QString());

    const QString &text() const { return m_text; }
    void setText(const QString &text)
    {
        m_text = text;
        m_largest = m_pixelSize;
    }

    /// The size in pixels at which the text is drawn into @p width when nothing else limits it.
    int sizeWithin(const QFont &font, int width) const;

    /// Draws the text no larger than this until it is another text.
    void setLargest(int pixels) { m_largest = pixels; }

    /// Draws the text into @p rect, aligned by @p flags (Qt::Alignment), never beyond the rectangle.
    void draw(QPainter &painter, const QRect &rect, Qt::Alignment flags, const QColor &color);

    /// Shows the whole text beside the pointer when the painted one was elided; returns whether it did.
    bool showToolTip(const QHelpEvent *event, QWidget *owner) const;

private:
    int m_pixelSize;
    int m_largest; ///< of what the captions beside it take
    QString m_text;
    bool m_elided = false;
};
