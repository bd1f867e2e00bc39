#pragma once

#include <array>

#include <QFrame>

#include "shortcut/qxtglobalshortcut.h"
#include "shortcut/shortcutlist.h"

class QLabel;
class QPushButton;
class ZelmarKeySequenceEdit;

/// Gives a button the pictures of a switch that is on or off.
void dressSwitch(QPushButton *button, bool on);

/// One function with its two keys: its switch, the fields that capture them, and the keys as the system knows them.
class ShortcutRow : public QFrame
{
    Q_OBJECT
public:
    explicit ShortcutRow(const ShortcutEntry &entry, QWidget *parent = nullptr);

    int function() const { return m_entry.function; }
    ZelmarKeySequenceEdit *plusEdit() const { return m_sides[0].edit; }
    ZelmarKeySequenceEdit *minusEdit() const { return m_sides[1].edit; }
    QPushButton *switchButton() const { return m_switch; }
    QPushButton *trashButton() const { return m_trash; }

    /// The row as it would be stored.
    const ShortcutEntry &entry() const { return m_entry; }

    /// Takes over what the fields hold now.
    void takeFields();

    void setOn(bool on) { m_entry.isOn = on; }

    /// Shows the entry: its switch, and its keys, which can be changed only while it is on.
    void refresh();

    /// Registers the keys of the fields, or gives them up when the row is off or all keys rest. What the system refuses
    /// is shown.
    void registerKeys(bool masterOn);

    /// Gives both keys back to the system.
    void releaseKeys();

    /// Keys that the system did not give to this row.
    bool isTaken(int direction) const { return !m_sides[static_cast<std::size_t>(direction)].refused.isEmpty(); }

    void updateControlText();

Q_SIGNALS:
    /// A key was pressed somewhere on the desktop: 0 the plus key, 1 the minus key.
    void activated(int direction, const QKeySequence &key);

private:
    struct Side
    {
        ZelmarKeySequenceEdit *edit = nullptr;
        QLabel *hint = nullptr;
        QxtGlobalShortcut *shortcut = nullptr;
        QString refused; ///< the combination that the system did not give to this row
    };

    void buildSide(int direction);
    void layOut();
    void registerSide(Side &side, bool wanted);
    void showProblems();
    void explainFields();

    ShortcutEntry m_entry;
    std::array<Side, 2> m_sides; ///< by direction
    QPushButton *m_switch;
    QLabel *m_name;
    QLabel *m_problem;
    QPushButton *m_trash;
};
