#pragma once

#include <QFont>
#include <QLabel>

/// The lines that a label's text has in its room, found anew only when text, font or room are others.
class LabelLines
{
public:
    /// Draws them in place of the label's own. False, and nothing drawn, where its text is rich or is not wrapped.
    bool draw(QLabel &label);

    /// What they need; nothing where draw() would draw nothing.
    int heightForWidth(int width, const QLabel &label);

private:
    const QString &linesIn(int room, const QLabel &label);

    QString m_lines;

    // What they were found for.
    QString m_text;
    QFont m_font;
    int m_room = 0;
};

/// A label that has no last line of two letters: its wrapped lines are then about as long as each other. Japanese ends
/// its lines at phrases and Chinese at words, where one line more does for it and the label may be as high. Sentences
/// and clauses have lines of their own where that takes none more. Rich text is drawn as ever.
class WrappedLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    mutable LabelLines m_lines; ///< found by whoever asks first
};

/// The text with its lines in @p room ended where they are about as long as each other, if the last one were very
/// short, and at phrases, if it has some and not more than @p more lines come of it; else the text itself. Where no
/// line more comes of it they end at sentences and clauses.
QString evenLines(const QString &text, const QFont &font, int room, int more = 0);
