#pragma once

#include <QWidget>

/// What a control says about its value beside it: nothing, or that it is not (yet) what the monitor has.
enum class Mark {
    None,
    Unknown,     ///< a dash: nobody has told it
    Unlisted,    ///< a dash: the monitor told one that is none of the options
    Unchosen,    ///< a dash: the device never tells it, and nobody has chosen it here yet
    Waiting,     ///< on its way for longer than one expects
    Unconfirmed, ///< what is shown was so before; the monitor did not tell it again
    Refused,     ///< the monitor did not take it
};

/// The sentence for a mark, translated; empty for none.
QString markText(Mark mark);

/// Such a sentence and the one that says what the control is for, line by line; either may be empty.
QString withHelp(const QString &mark, const QString &help);

/// A small painted sign; takes no room while there is nothing to say.
class ValueMark : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kSize = 10; // pixels

    explicit ValueMark(QWidget *parent = nullptr);

    Mark mark() const { return m_mark; }
    void setMark(Mark mark);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Mark m_mark = Mark::None;
};
