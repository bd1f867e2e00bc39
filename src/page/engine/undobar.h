#pragma once

#include <optional>

#include <QFrame>

#include "page/engine/pagetable.h"
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

    /// Offers the way back from an option of a group, in place of an older offer, for its whole time.
    void offer(const OptionGroup &group, int before, int value);

    /// What is offered; nothing while the bar is hidden.
    const std::optional<UndoOffer> &offered() const { return m_offer; }

    /// Says in the language of now what happened, and what the button does.
    void retranslate();

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
    OptionGroup m_group{}; ///< of what is offered
    unsigned m_number = 0; ///< of the offer, so that an older one's time does not count
    platform::milliseconds m_left{0};
    QLabel *m_text;
    QPushButton *m_button;
};
