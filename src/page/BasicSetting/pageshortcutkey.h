#pragma once

#include <optional>
#include <vector>

#include "page/engine/listpage.h"
#include "shortcut/shortcutfunctions.h"
#include "shortcut/shortcutlist.h"
#include "shortcut/shortcutrunner.h"

class KeyFields;
class QComboBox;
class ShortcutRow;

/// Binds key combinations that work anywhere on the desktop to functions of the monitor, and runs them.
class pageShortcutKey : public ListPage
{
    Q_OBJECT
public:
    /// The key fields of all pages outlive it.
    explicit pageShortcutKey(KeyFields &fields, QWidget *parent = nullptr);

    void updateInterfaceData() override {} ///< nothing here comes from the monitor
    void updateControlText() override;

    /// Runs a function by its number, direction 0 for its plus key and 1 for its minus key.
    void shortcutKeyCommand(int function, int direction) { m_runner.shortcutKeyCommand(function, direction); }

    /// What the keys do is reported by its signals.
    ShortcutRunner *runner() { return &m_runner; }

    bool isMasterOn() const { return m_masterOn; }
    const std::vector<ShortcutRow *> &shortcutRows() const { return m_rows; }
    QComboBox *functionBox() const { return m_functions; }

protected:
    /// Tells that a key is used twice; returns when the user has read it.
    virtual void showConflict();

private Q_SLOTS:
    void on_editFinish();
    void on_pushButton_clicked();      ///< the master switch
    void on_pushButton_2_clicked();    ///< adds the chosen function
    void on_pushButtonAppli_clicked(); ///< stores and registers everything

private:
    void buildTools();
    void fillFunctions();
    void markFunctions();
    void heardKey(const ShortcutRow *row, int direction, const QKeySequence &key);
    void loadRows();
    ShortcutRow *addShortcutRow(const ShortcutEntry &entry);
    void toggleRow(ShortcutRow *row);
    void deleteRow(ShortcutRow *row);
    void refreshState();
    void save();
    ShortcutList currentList() const;
    void showState(); ///< what waits to be applied
    void showResting();

    KeyFields &m_fields;
    ShortcutRunner m_runner;
    const std::vector<const ShortcutFunction *> m_available; ///< of the monitor that the page was built for
    bool m_masterOn = true;
    std::vector<ShortcutRow *> m_rows;
    std::vector<ShortcutEntry> m_otherEntries; ///< functions that this monitor lacks, kept for the one that has them
    std::optional<ShortcutList> m_applied;     ///< stored and registered; nothing when it is in part only
    QPushButton *m_master;
    QComboBox *m_functions;
};
