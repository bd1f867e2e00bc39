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
    void wrapInto(int room);

    QString m_lines; ///< what is drawn, in so many points
    int m_even = 0;

    // What both were found for.
    QString m_text;
    QFont m_font;
    int m_room = 0;
};

/// How wide, in points, the lines of @p text are to be in @p room: that, or less where the last line were very short.
/// There are never more lines for it.
int evenWidth(const QString &text, const QFont &font, int room);

/// The text with its lines in @p room ended at phrases, if it has some and they need no more lines; else the text
/// itself.
QString endedAtPhrases(const QString &text, const QFont &font, int room);
