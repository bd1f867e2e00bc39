#pragma once

#include <vector>

#include <QPushButton>
#include <QStringList>
#include <QWidget>

#include "controls/valuemark.h"
#include "page/engine/halfbutton.h"
#include "page/engine/pagetable.h"

class BoundTexts;
class CaptionLabel;
class ColorSelecter;
class FlowLayout;
class LockSign;
class QButtonGroup;

/// The heading of an option group and its buttons or swatches, one of which is checked, in some groups several, or none
/// while the value is not known.
class OptionGroupRow : public QWidget
{
    Q_OBJECT
public:
    OptionGroupRow(const OptionGroup &group, BoundTexts &texts, QWidget *parent = nullptr);

    const OptionGroup &group() const { return m_group; }
    const std::vector<QPushButton *> &buttons() const { return m_buttons; }

    /// The button of an option's value; null when the group has no such option.
    QPushButton *buttonOf(int value) const;

    /// Whether a value stands for something here: for one of the options, or for several where that may be.
    bool canShow(int value) const { return m_group.look == GroupLook::Several || buttonOf(value) != nullptr; }

    /// Fixes the heading's width, in pixels, where it stands below captions of another width; a switch is narrow there.
    void makeNarrow(int captionWidth);

    /// Leaves the heading away, where what stands above says the same.
    void hideCaption();
    bool hasCaption() const;

    /// Checks the button of a value, or those of its bits, or none.
    void showValue(std::optional<int> value);

    /// What is to be said about the value.
    void setMark(Mark mark);
    Mark mark() const { return m_mark->mark(); }

    /// Disables each option that has a reason, in the order of the options, and says the reasons. They are not all
    /// known while the monitor has not told what may lock an option.
    void setLocks(const QStringList &reasons, bool areAllKnown);
    bool areLocksKnown() const { return m_areLocksKnown; }

Q_SIGNALS:
    /// The user chose the button, by mouse or keyboard.
    void optionClicked(QPushButton *button);

    /// The pointer or the keyboard is on an option that is not chosen by that; nothing when it left them.
    void optionPointed(std::optional<int> value);

    /// The user wants to go to what locks the first locked option.
    void lockPressed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void bindTexts(BoundTexts &texts);
    void addButtons(BoundTexts &texts, FlowLayout *flow);
    QPushButton *addButton(const Option &option, BoundTexts &texts);
    void dress(QPushButton *button) const;
    void addSwatches(BoundTexts &texts, FlowLayout *flow);
    void addMarks(FlowLayout *flow);
    int indexOf(const QObject *button) const;
    void describe();

    OptionGroup m_group;
    CaptionLabel *m_caption;
    QButtonGroup *m_exclusive;
    std::vector<QPushButton *> m_buttons; ///< of swatches hidden: these are one control
    ColorSelecter *m_swatches = nullptr;
    ValueMark *m_mark;
    LockSign *m_sign;
    bool m_isUnknown = false;
    HalfSize m_halfSize = HalfSize::Wide;
    QString m_help;
    QStringList m_locks; ///< of each option: why it is disabled
    bool m_areLocksKnown = true;
};

/// Checks one button of an exclusive group, or none.
void checkOnly(QButtonGroup &group, QAbstractButton *chosen);
