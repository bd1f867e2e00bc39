#pragma once

#include <vector>

#include "following/followlist.h"
#include "following/foregroundwatch.h"
#include "following/scenefollower.h"
#include "page/engine/listpage.h"

class FollowRow;
class FollowRows;

/// Pairs programs with scene modes; while it lives the scene follows the program in front.
class pageScenarioFollowing : public ListPage
{
    Q_OBJECT
public:
    explicit pageScenarioFollowing(QWidget *parent = nullptr);

    void updateInterfaceData() override {} ///< nothing here comes from the monitor
    void updateControlText() override;

    /// What following does is reported by its signals.
    SceneFollower *follower() { return &m_follower; }

    /// Hears which window comes to the front.
    ForegroundWatch *watch() { return &m_watch; }

    /// What the rows show, in their order.
    const std::vector<FollowEntry> &programs() const { return m_programs; }

    /// The row of a program, scrolled into sight; it shows another one once the list is scrolled or changed.
    FollowRow *followRow(std::size_t index);

protected:
    /// Asks for a program; empty when the user chose none.
    virtual QString askForProgram();

private Q_SLOTS:
    void on_pushButtonAdd_clicked();
    void on_pushButtonApply_clicked();

private:
    void buildTools();
    void loadPrograms();
    void showPrograms();
    void showWaiting();
    void chooseScene(int index, int scene);
    void deleteProgram(int index);
    void save();
    void rebuildTable();

    std::vector<FollowEntry> m_programs;
    std::vector<FollowEntry> m_saved; ///< what is followed
    bool m_isStored = false;          ///< in the file as well
    FollowRows *m_list;
    SceneFollower m_follower;
    ForegroundWatch m_watch;
};
