#pragma once

#include <vector>

#include "following/followlist.h"
#include "following/foregroundwatch.h"
#include "following/scenefollower.h"
#include "page/engine/listpage.h"

class FollowRow;

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

    const std::vector<FollowRow *> &followRows() const { return m_rows; }

protected:
    /// Asks for a program; empty when the user chose none.
    virtual QString askForProgram();

private Q_SLOTS:
    void on_pushButtonAdd_clicked();
    void on_pushButtonApply_clicked();

private:
    FollowRow *addFollowRow(const FollowEntry &entry);
    void deleteRow(FollowRow *row);
    void loadRows();
    void save();
    void rebuildTable();

    std::vector<FollowRow *> m_rows;
    std::vector<FollowEntry> m_unshown; ///< of a file that holds very many
    std::vector<FollowEntry> m_saved;   ///< what is followed
    SceneFollower m_follower;
    ForegroundWatch m_watch;
};
