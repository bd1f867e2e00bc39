#pragma once

#include <QLabel>

#include "monitorstatus.h"

/// The monitor's name and state below the left bars.
class StatusLine : public QLabel
{
public:
    explicit StatusLine(QWidget *parent);

    void tell(const MonitorStatus &status);
};
