#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

/// A text as it fits a width: first the letters shrink, to 80 % at least, then the end is elided.
struct FittedCaption
{
    QFont font;
    QString text;
    bool elided = false;
};

/// Fits @p text, wished at @p pixelSize, into @p width pixels.
FittedCaption fitCaption(const QString &text, const QFont &font, int pixelSize, int width);

/// One line of text that a control paints itself. It remembers whether the last painting had to elide it.
class Caption
{
public:
    explicit Caption(int pixelSize, const QString &text = QString());

    const QString &text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

    /// Draws the text into @p rect, aligned by @p flags (Qt::Alignment), never beyond the rectangle.
    void draw(QPainter &painter, const QRect &rect, Qt::Alignment flags, const QColor &color);

    /// Shows the whole text beside the pointer when the painted one was elided; returns whether it did.
    bool showToolTip(const QHelpEvent *event, QWidget *owner) const;

private:
    int m_pixelSize;
    QString m_text;
    bool m_elided = false;
};
