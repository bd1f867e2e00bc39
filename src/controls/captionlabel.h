#pragma once

#include <QLabel>

/// A one-line QLabel that shrinks, then elides its text instead of clipping it. text() stays whole, colours come
/// from the style sheet or palette as with every label, and an elided text is shown whole as a tooltip.
class CaptionLabel : public QLabel
{
    Q_OBJECT

public:
    /// @p pixelSize is the wished height of the letters.
    CaptionLabel(const QString &text, int pixelSize, QWidget *parent = nullptr);

    /// The size in pixels at which the text fits, and the largest at which it is drawn: for shrinkTogether().
    int captionSize() const;
    void setCaptionSize(int pixels);

    /// Gives it the colours of a caption that stands before a setting. Black on the page's ground, as it is while the
    /// setting cannot be used, nobody could read it: it then stands on a plate.
    void dressForRow();
    bool isForRow() const { return m_isForRow; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /// Returns where the text stands, @p width wide, on its plate at the left of @p room.
    QRect drawPlate(QPainter &painter, const QRect &room, int width) const;

    int m_pixelSize;
    int m_largest; ///< of what the captions beside it take
    bool m_isForRow = false;
    bool m_elided = false;
};
