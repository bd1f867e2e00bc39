#pragma once

#include <QFrame>

#include "page/OledCare/careplan.h"

class BoundTexts;
class CareCalendar;
class QLabel;
class QPushButton;
struct CareHistory;

/// What the care of a panel came to, when the next is due, what it will do, and the button that begins it.
class CarePanel : public QFrame
{
    Q_OBJECT
public:
    CarePanel(BoundTexts &texts, QWidget *parent);

    /// Shows it, in the language of now.
    void show(const CareHistory &history, const CareFacts &facts, const QDateTime &now);

    QPushButton *startButton() const { return m_start; }

    /// The lines beside the calendar: hours since the last care, when that was, when the next is due.
    QStringList lines() const;

private:
    CareCalendar *m_calendar;
    QLabel *m_used;
    QLabel *m_last;
    QLabel *m_next;
    QPushButton *m_start;
};
