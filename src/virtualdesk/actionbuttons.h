#pragma once

#include <functional>
#include <vector>

#include <QObject>

class QLayout;
class QGridLayout;
class QPushButton;
class QWidget;

namespace virtualdesk {

/// What a button of a panel does to the desk.
struct PanelAction
{
    QString name;     ///< object name; may be empty
    const char *text; ///< source text, as the tip
    const char *tip;
    std::function<void(bool on)> press;
    std::function<bool()> isOn; ///< whether what it does lasts, for which it is down; none for what happens once
};

/// The buttons of a panel, in columns: what can be done to the desk, and whether it lasts.
class ActionButtons : public QObject
{
    Q_OBJECT
public:
    /// The buttons become children of the panel; somebody else owns the layout.
    ActionButtons(int columns, QWidget *panel);

    /// One more button, behind the others.
    void add(PanelAction action);

    QLayout *layout() const;
    const std::vector<QPushButton *> &buttons() const { return m_buttons; }

    void retranslate();

    /// Puts those down whose doing lasts, and the others up.
    void showStates();

private:
    int m_columns;
    QWidget *m_panel;
    QGridLayout *m_grid;
    std::vector<PanelAction> m_actions;
    std::vector<QPushButton *> m_buttons; ///< in the order of the actions
};

} // namespace virtualdesk
