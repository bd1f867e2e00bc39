#pragma once

#include <vector>

#include <QWidget>

#include "controls/accessiblecontrol.h"
#include "page/OledCare/carehistory.h"

/// The last five weeks, a square a day: the longer the panel was used, the lighter it is; a ring where it was cared
/// for, an outline around today.
class CareCalendar : public QWidget, public Described
{
    Q_OBJECT
public:
    explicit CareCalendar(QWidget *parent);

    /// The days that something is known of, rising.
    void setDays(const QDate &today, std::vector<CareDay> days);

    /// What is seen, in words.
    void setValueText(const QString &text) { m_valueText = text; }

    QSize sizeHint() const override;
    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QString valueText() const override { return m_valueText; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawDay(QPainter &painter, const QRectF &square, const QDate &date) const;

    QDate m_today;
    std::vector<CareDay> m_days;
    QString m_valueText;
};
