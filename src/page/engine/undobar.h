#pragma once

#include <optional>

#include <QFrame>

#include "ddc_protocol/command.h"
#include "platform/clock.h"

class QLabel;
class QPushButton;

/// What a change set, and what the monitor is known to have had before.
struct UndoOffer
{
    Command command;
    int before;
    int value;
    QString monitor = {}; ///< which took it
};

/// A line at the bottom of a page that offers the way back from a change, for a while. Nothing is set back by itself.
/// It goes when its time is over, or when the monitor is another one or has another value by now.
class UndoBar : public QFrame
{
    Q_OBJECT
public:
    static constexpr platform::milliseconds kOffered{15'000};

    explicit UndoBar(QWidget *parent);

    /// Shows an offer, in place of an older one, for its whole time.
    void offer(const UndoOffer &offer);

    /// What is offered; nothing while the bar is hidden.
    const std::optional<UndoOffer> &offered() const { return m_offer; }

    /// What happened, and what the button does, translated.
    void setTexts(const QString &text, const QString &undo);

    /// Takes the offer back when it does not hold any more.
    void check();

    QPushButton *button() const { return m_button; }

Q_SIGNALS:
    void undoWanted(const UndoOffer &offer);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tick();
    void withdraw();

    std::optional<UndoOffer> m_offer;
    unsigned m_number = 0; ///< of the offer, so that an older one's time does not count
    platform::milliseconds m_left{0};
    QLabel *m_text;
    QPushButton *m_button;
};
