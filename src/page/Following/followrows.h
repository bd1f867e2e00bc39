#pragma once

#include <map>
#include <vector>

#include <QAbstractScrollArea>

#include "following/followlist.h"

class FollowRow;

/// Scrolls through a list of any length. Only the rows in sight and their neighbours exist; one that goes out of sight
/// shows another program from then on.
class FollowRows : public QAbstractScrollArea
{
    Q_OBJECT
public:
    /// The list has to live as long as this object.
    explicit FollowRows(const std::vector<FollowEntry> &entries, QWidget *parent = nullptr);

    /// To be called after every change of the list.
    void showList();

    /// Scrolls as far as the row at this place of the list needs to be in sight. It shows its program until the list is
    /// scrolled or changed.
    FollowRow *reveal(int index);

    void updateControlText();

Q_SIGNALS:
    void sceneChosen(int index, int scene);
    void deleteWanted(int index);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool focusNextPrevChild(bool next) override;

private:
    int count() const { return static_cast<int>(m_entries.size()); }
    void arrange();
    std::vector<FollowRow *> takeRowsBeyond(int first, int last);
    FollowRow *makeRow();
    void orderTabs();

    const std::vector<FollowEntry> &m_entries;
    std::map<int, FollowRow *> m_rows;  ///< by their places in the list
    std::vector<FollowRow *> m_resting; ///< hidden
    bool m_isArranging = false;
};
