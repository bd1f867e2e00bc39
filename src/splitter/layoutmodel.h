#pragma once

#include <vector>

#include <QObject>

#include "splitter/layoutedit.h"
#include "splitter/layoutstore.h"
#include "splitter/splitscreen.h"

/// The layouts of one screen while the user changes them. Each change is stored at once; one that cannot be stored is
/// not made. Interface thread only.
class LayoutModel : public QObject
{
    Q_OBJECT
public:
    static constexpr std::size_t kMostSteps = 50; ///< that can be undone

    using QObject::QObject;

    /// Shows the layouts of a screen as they are stored. Of another screen than before nothing can be undone.
    void showScreen(const SplitScreen &screen);

    const SplitScreen &screen() const { return m_screen; }
    const SplitLayout &chosen() const { return m_layouts.chosen; }
    std::vector<SplitLayout> all() const { return m_layouts.all(); }

    void choose(const SplitLayout &layout);

    /// Makes an own layout of that name with the zones of the chosen one, and chooses it; a name that is given already
    /// gets a number.
    void add(const QString &name);
    bool canAdd() const { return m_layouts.own.size() < kMostOwnLayouts; }

    // Of the chosen one, which has to be an own one.

    void rename(const QString &name); ///< an empty name, or another one's, is not taken
    void setZones(const Zones &zones);
    void remove();

    bool canUndo() const { return !m_steps.empty(); }
    void undo();

Q_SIGNALS:
    void changed();

    /// A change has been stored.
    void stored();

    /// A change could not be stored, and was not made.
    void unstored();

private:
    bool isTaken(const QString &name) const;
    void replaceChosen(const SplitLayout &layout);
    bool store(const ScreenLayouts &layouts);
    void take(const ScreenLayouts &layouts);

    SplitScreen m_screen;
    ScreenLayouts m_layouts;
    std::vector<ScreenLayouts> m_steps; ///< what there was before each change, the last at the end
};
