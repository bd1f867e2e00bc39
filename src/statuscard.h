#pragma once

#include <QLabel>

#include "controls/captions.h"
#include "controls/focusring.h"
#include "monitorstatus.h"

class QPushButton;

/// The monitor's name and state below the left bars, with a button to try again while it does not answer.
class StatusCard : public QLabel
{
    Q_OBJECT
public:
    explicit StatusCard(QWidget *parent);

    void tell(const MonitorStatus &status);

    /// Higher while the monitor is silent, for the button.
    int neededHeight() const;

Q_SIGNALS:
    void retryWanted();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override { followFocus(event); }
    void focusOutEvent(QFocusEvent *event) override { followFocus(event); }

private:
    void followFocus(const QFocusEvent *event);

    MonitorStatus m_status;
    Caption m_name;
    Caption m_state;
    QPushButton *m_retry;
    FocusRing m_focusRing;
};
