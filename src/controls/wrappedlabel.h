#pragma once

#include <QFont>
#include <QLabel>

/// The lines that a label's text has in its room, found anew only when text, font or room are others.
class LabelLines
{
public:
    /// Draws them in place of the label's own. False, and nothing drawn, where its text is rich or is not wrapped.
    bool draw(QLabel &label);

private:
    const QString &linesIn(int room, const QLabel &label);

    QString m_lines;

    // What they were found for.
    QString m_text;
    QFont m_font;
    int m_room = 0;
};

/// A label that has no last line of two letters: its wrapped lines are then about as long as each other. Japanese ends
/// its lines at phrases where no more lines come of it. The room that it takes is that of every label, so that nothing
/// beside it moves. Rich text is drawn as ever.
class WrappedLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    LabelLines m_lines;
};

/// The text with its lines in @p room ended where they are about as long as each other, if the last one were very
/// short, and at phrases, if it has some; else the text itself. There are never more lines for it.
QString evenLines(const QString &text, const QFont &font, int room);
