#pragma once

#include <vector>

#include <QWidget>

#include "controls/accessiblecontrol.h"

/// A value over time as a line: the newest at the right end. Where nothing is known for long the line has a gap.
class TimeCurve : public QWidget, public Described
{
    Q_OBJECT
public:
    /// A point: its distance from now in steps, and its value from 0 on.
    struct Point
    {
        int age;
        int value;
    };

    /// Shows so many steps of time. The parent owns it.
    explicit TimeCurve(int steps, QWidget *parent);

    /// Oldest first; more than maxGap steps between two points are a gap.
    void setPoints(std::vector<Point> points, int maxGap);

    /// What is written at the left end, at the right end, and at the highest line.
    void setTexts(const QString &begin, const QString &end, const QString &top);

    QAccessible::Role accessibleRole() const override { return QAccessible::Chart; }
    QString valueText() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF plot() const;
    QPointF place(const Point &point) const;
    void paintLines(QPainter &painter) const;

    int m_steps;
    int m_maxGap = 1;
    int m_highest = 1;
    std::vector<Point> m_points;
    QString m_begin;
    QString m_end;
    QString m_top;
};
