#pragma once

#include <QObject>

class CommandQueue;
class PageSet;
class QStackedWidget;
class SearchDeviceDlg;
class pageEmberline;
class pageSceneSetting;

/// The pages of the monitor's own settings and of the program's.
class MonitorPages : public QObject
{
    Q_OBJECT
public:
    /// Makes the pages on the stack and adds them to the set.
    MonitorPages(SearchDeviceDlg &session, CommandQueue &queue, PageSet &pages, QStackedWidget *stack);

    pageSceneSetting *scene() const { return m_scene; }
    pageEmberline *lighting() const { return m_lighting; }

Q_SIGNALS:
    /// The monitor is about to be set back, which takes it away for some seconds.
    void resetBegins();

private:
    pageSceneSetting *m_scene;
    pageEmberline *m_lighting;
};
