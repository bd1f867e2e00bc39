#pragma once

#include "controls/desktoptoast.h"

class QPushButton;

/// A note in the corner of the desktop with two buttons. It comes without taking the focus; whoever turns to it presses
/// or tabs to a button. The owner hides it.
class DesktopQuestion : public DesktopToast
{
    Q_OBJECT
public:
    explicit DesktopQuestion(QWidget *parent = nullptr);

    /// Shows a question with what its two buttons say, the first one being what it suggests.
    void ask(const QString &title, const QString &text, const QString &yes, const QString &later);

    QPushButton *yesButton() const { return m_yes; }
    QPushButton *laterButton() const { return m_later; }

private:
    QPushButton *m_yes;
    QPushButton *m_later;
};
