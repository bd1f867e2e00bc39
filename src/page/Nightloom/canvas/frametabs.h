#pragma once

#include <functional>

#include <QByteArrayList>
#include <QTabWidget>

#include "page/Nightloom/canvas/animationhistory.h"

class FrameSheet;
class MatrixEditor;
class QScrollArea;

/// A tab for every frame of an animation, each with its editor on a sheet that scrolls.
class FrameTabs : public QTabWidget
{
    Q_OBJECT
public:
    explicit FrameTabs(QWidget *parent = nullptr);

    /// From the next animation on its frames are of this form; with null there are none.
    void setForm(const MatrixForm *form);

    /// Shows an animation: tabs of frames that it does not have go, those that are missing come, the others stay and
    /// take the cells. The tab at @p place, or the nearest, becomes the open one. @p removed is told how many tabs are
    /// gone, after each.
    void apply(const AnimationState &state, int place, const std::function<void(int removed)> &removed = {});

    /// The editor of a tab; null for a tab that is not there.
    MatrixEditor *editor(int index) const;
    MatrixEditor *currentEditor() const { return editor(currentIndex()); }

    /// The frames' digits in tab order.
    QByteArrayList digits() const;

    /// Pixels a cell, in every editor.
    void setCellSize(int pixels);

    /// Whether the frame before shines through the one that is shown.
    void setOnionSkin(bool on);

    /// Shows a tab's frame in the editor that is open, or that editor's own again with -1.
    void showInstead(int index);

    void updateControlText();

Q_SIGNALS:
    /// The user has changed the frame of a tab.
    void edited(int index);

private:
    void openSheet();
    void closeSheet();
    FrameSheet *sheet(int index) const;
    void addSheet(int index, const AnimationFrame &frame);
    void nameTab(int index);
    void removeTabsWithout(const AnimationState &state, const std::function<void(int removed)> &removed);
    void showOnionSkin();

    QScrollArea *const m_view;
    FrameSheet *m_open = nullptr; ///< which has the view
    const MatrixForm *m_form = nullptr;
    int m_cellSize = 0; ///< 0 until chosen: each editor as it is
    bool m_onionSkin = false;
};
