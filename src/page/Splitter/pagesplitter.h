#pragma once

#include "page/Splitter/splitterkeys.h"
#include "page/engine/listpage.h"
#include "splitter/layoutmodel.h"

class FocusGroup;
class KeyFields;
class LayoutEditor;
class LayoutTile;
class LayoutTools;
class QComboBox;
class QHBoxLayout;

/// How the screens are divided, and the hot keys that put the window in front into a part of one.
class pageSplitter : public ListPage
{
    Q_OBJECT
public:
    /// The other pages' key fields outlive it.
    explicit pageSplitter(KeyFields &fields, QWidget *parent = nullptr);

    void updateInterfaceData() override {} ///< nothing here comes from the monitor
    void updateControlText() override;

    SplitterKeys *keys() const { return m_keys; }
    /// Null until the page was first shown.
    LayoutEditor *editor() const { return m_editor; }
    LayoutModel &model() { return m_model; }
    QComboBox *screenBox() const { return m_screens; }
    std::vector<LayoutTile *> tiles() const;

    /// Screens have come, gone or changed their resolution.
    void followScreens();

    /// Says under the title what became of a window.
    void tell(const QString &text, bool isRefusal);

Q_SIGNALS:
    /// The zones are to be shown on the desktop.
    void zonesWanted();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildTools();
    void build();
    QWidget *buildBody();
    void fillScreens();
    void showLayouts();
    void makeTiles();

    LayoutModel m_model;
    std::vector<SplitScreen> m_known; ///< in the order of the box
    SplitterKeys *m_keys;
    QComboBox *m_screens = nullptr;
    QWidget *m_tileRoom = nullptr;
    LayoutEditor *m_editor = nullptr;
    LayoutTools *m_layoutTools = nullptr;
};
