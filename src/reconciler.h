#pragma once

#include <functional>
#include <vector>

#include <QObject>

#include "reconcileplan.h"
#include "systemnotices.h"

class CommandQueue;
class Page;
class SearchDeviceDlg;

/// Keeps what is in sight true: whatever happens, it has the monitor asked again in the background, without a dialog
/// and without a write. Decides by planReconciliation. Interface thread only.
class Reconciler : public QObject
{
    Q_OBJECT
public:
    /// The pages that are in sight: one while somebody can see the window, and the tray's panel while it is open.
    using PagesInSight = std::function<std::vector<Page *>()>;

    Reconciler(CommandQueue &queue, SearchDeviceDlg &session, PagesInSight pagesInSight, QObject *parent);
    ~Reconciler() override;

    /// Something happened after which what is shown may not hold.
    void want();

    /// Something came into sight that shows the scene mode, which may have been told long ago.
    void wantMode();

    /// The computer woke, its displays changed, somebody is back.
    void systemNoticed(SystemNotice notice);

    /// What can be seen, or what the session does, has changed.
    void look();

Q_SIGNALS:
    /// The monitor fell silent, or answers again.
    void linkChanged();

private:
    void followLink();
    void handlesMayBeStale();
    void note();
    void perform(const ReconcileStep &step);
    void ask();
    void answered(int unanswered);

    CommandQueue &m_queue;
    SearchDeviceDlg &m_session;
    PagesInSight m_pagesInSight;
    ReconcileFacts m_facts;
    int m_looks = 0; ///< a look that was to come later means nothing once another has been taken
};
