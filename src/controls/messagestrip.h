#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

/// A line for what there is to say under a page's title, with a button where something can be done about it. It is
/// there only while it says something.
class MessageStrip : public QFrame
{
    Q_OBJECT
public:
    enum class Tone {
        Notice,  ///< what goes on
        Refusal, ///< what was not done, and why
    };

    explicit MessageStrip(QWidget *parent);

    /// Says a text in place of the one before, which may name a file of any name; nothing when it is empty. Without an
    /// action there is no button.
    void say(const QString &text, Tone tone, const QString &action = QString());

    QString text() const;
    QPushButton *button() const { return m_button; }

Q_SIGNALS:
    void actionWanted();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QLabel *m_text;
    QPushButton *m_button;
    Tone m_tone = Tone::Notice;
};
