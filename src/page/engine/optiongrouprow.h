#pragma once

#include <vector>

#include <QPushButton>
#include <QWidget>

#include "controls/valuemark.h"
#include "page/engine/pagetable.h"

class BoundTexts;
class CaptionLabel;
class QButtonGroup;

/// The heading of an option group and its buttons, one of which is checked, or none while the value is not known.
class OptionGroupRow : public QWidget
{
    Q_OBJECT
public:
    OptionGroupRow(const OptionGroup &group, BoundTexts &texts, QWidget *parent = nullptr);

    const OptionGroup &group() const { return m_group; }
    const std::vector<QPushButton *> &buttons() const { return m_buttons; }

    /// The button of an option's value; null when the group has no such option.
    QPushButton *buttonOf(int value) const;

    /// Leaves the heading away, where what stands above says the same.
    void hideCaption();

    /// Checks the button of a value, or none.
    void showValue(std::optional<int> value);

    /// What is to be said about the value.
    void setMark(Mark mark);
    Mark mark() const { return m_mark->mark(); }

Q_SIGNALS:
    /// The user chose the button, by mouse or keyboard.
    void optionClicked(QPushButton *button);

private:
    OptionGroup m_group;
    CaptionLabel *m_caption;
    QButtonGroup *m_exclusive;
    std::vector<QPushButton *> m_buttons;
    ValueMark *m_mark;
};

/// Gives a button the pictures of an option button, as small as its text allows.
void dressOptionButton(QPushButton *button);
