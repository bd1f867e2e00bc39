#pragma once

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
    /// Puts its line into the column, whose parent is @p panel and owns this. The choices outlive it.
    TrayPanelFooter(const TrayChoices &choices, QVBoxLayout *column, QWidget *panel);

    /// Says what went wrong; with nothing to say, what can be pressed.
    void showHint(const QString &notice = {});

    void updateControlText();

    QToolButton *chooser() const { return m_chooser; }

Q_SIGNALS:
    /// As TrayPanel::choose().
    void chosen(std::size_t place, Command command);

private:
    void fillMenu(QMenu *menu);

    const TrayChoices &m_choices;
    QLabel *m_hint;
    QToolButton *m_chooser;
};
