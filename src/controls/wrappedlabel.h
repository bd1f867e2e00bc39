#pragma once

#include <QFont>
#include <QLabel>

/// A label that has no last line of two letters: its wrapped lines are then about as long as each other. The room that
/// it takes is that of every label, so that nothing beside it moves. Rich text is drawn as ever.
class WrappedLabel : public QLabel
{
    Q_OBJECT
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int evenWidth(int room);

    // What the width was found for.
    QString m_text;
    QFont m_font;
    int m_room = 0;
    int m_even = 0;
};

/// How wide, in points, the lines of @p text are to be in @p room: that, or less where the last line were very short.
/// There are never more lines for it.
int evenWidth(const QString &text, const QFont &font, int room);
