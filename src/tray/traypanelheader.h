#pragma once

#include <QObject>

#include "controls/valuemark.h"
#include "monitorstatus.h"

class CaptionLabel;
class QLabel;
class QVBoxLayout;
class QWidget;

/// The tray panel's first lines: which monitor it is, how it is, and the scene mode that is on; a line below them.
class TrayPanelHeader : public QObject
{
    Q_OBJECT
public:
    /// Puts its lines into the column, whose parent is @p panel and owns this.
    TrayPanelHeader(QVBoxLayout *column, QWidget *panel);

    void showStatus(const MonitorStatus &status);

    /// The scene mode in words, and what is to be said of it.
    void showScene(const QString &words, Mark mark);

    /// What is read there.
    QString text() const;

private:
    void showState();

    MonitorStatus m_status;
    QString m_sceneWords;
    CaptionLabel *m_name;
    CaptionLabel *m_state;
    QLabel *m_dot;
    ValueMark *m_sceneMark;
};
