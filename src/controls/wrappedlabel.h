#pragma once

#include <QFont>
#include <QLabel>

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
    const QString &linesIn(int room);

    QString m_lines;

    // What they were found for.
    QString m_text;
    QFont m_font;
    int m_room = 0;
};

/// The text with its lines in @p room ended where they are about as long as each other, if the last one were very
/// short, and at phrases, if it has some; else the text itself. There are never more lines for it.
QString evenLines(const QString &text, const QFont &font, int room);
