#pragma once

#include <vector>

#include <QWidget>

#include "navigation.h"

class FocusGroup;
class LeftTabButton;
class QVBoxLayout;

/// The column of entries of one family; one is checked, or none.
class LeftBar : public QWidget
{
    Q_OBJECT
public:
    explicit LeftBar(std::vector<NavigationEntry> entries, QWidget *parent = nullptr);

    /// Takes other entries, none of them checked; the same ones change nothing.
    void setEntries(std::vector<NavigationEntry> entries);

    const std::vector<NavigationEntry> &entries() const { return m_entries; }
    const std::vector<LeftTabButton *> &buttons() const { return m_buttons; }

    /// The checked entry; -1 when there is none.
    int current() const { return m_current; }

    /// Checks an entry without a signal; -1 for none.
    void setCurrent(int index);

    /// Checks the entry of a scene mode, odd or even, or none.
    void setCurrentScene(int sceneValue);

    void updateControlText();

Q_SIGNALS:
    void entryChosen(int index);

private:
    void addButton(const NavigationEntry &entry);

    FocusGroup *m_stop;
    QVBoxLayout *m_column;
    std::vector<NavigationEntry> m_entries;
    std::vector<LeftTabButton *> m_buttons;
    int m_current = -1;
};
