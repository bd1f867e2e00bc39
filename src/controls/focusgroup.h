#pragma once

#include <vector>

#include <QObject>

class QWidget;

/// Makes one Tab stop of several controls. The keyboard enters at the chosen one, or, where none is chosen or that one
/// cannot be used, at the first that can. The arrows, Home and End move the focus among those that can be used, and
/// choose nothing: nobody switches the monitor by walking past a control. Space and Enter stay what they are.
class FocusGroup : public QObject
{
public:
    /// @p holder is the parent; it tells assistive software what the controls are for.
    explicit FocusGroup(QWidget *holder);

    /// Takes a control in behind the others.
    void add(QWidget *member);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void settle();
    QWidget *entry() const;
    bool move(QWidget *from, int key) const;

    std::vector<QWidget *> m_members;
};

/// Scrolls whatever scrolls around a control so that it is seen.
void bringIntoSight(QWidget *control);

/// Gives a control the keyboard where no key of the user did, which would have brought it into sight.
void focusInSight(QWidget *control, Qt::FocusReason reason);
