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

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int m_pixelSize;
    bool m_elided = false;
};
