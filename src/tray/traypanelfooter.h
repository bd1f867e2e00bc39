#pragma once

#include <span>
#include <vector>

#include <QObject>

#include "tray/traypanelchoices.h"

class QLabel;
class QMenu;
class QToolButton;
class QVBoxLayout;
class QWidget;

/// The tray panel's last line: what can be pressed, or what went wrong, and the menu of what can stand on the panel.
class TrayPanelFooter : public QObject
{
    Q_OBJECT
public:
    /// Puts its line into the column, whose parent is @p panel and owns this.
    TrayPanelFooter(std::span<const TrayControl> choices, std::span<const Command> chosen, QVBoxLayout *column,
                    QWidget *panel);

    /// Says what went wrong; with nothing to say, what can be pressed.
    void showHint(const QString &notice = {});

    void updateControlText();

    QToolButton *chooser() const { return m_chooser; }

Q_SIGNALS:
    /// As TrayPanel::choose().
    void chosen(std::size_t place, Command command);

private:
    void fillMenu(QMenu *menu);

    const std::span<const TrayControl> m_choices;
    const std::span<const Command> m_chosen; ///< at each place, as it changes
    QLabel *m_hint;
    QToolButton *m_chooser;
};
