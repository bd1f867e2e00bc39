#include "page/OledCare/carecalendar.h"

#include <algorithm>

#include <QPainter>

#include "controls/palette.h"

namespace {

constexpr int kWeeks = 5;
constexpr int kWeekDays = 7;
constexpr int kSquare = 34;
constexpr int kPitch = 40;
constexpr int kNumberPixels = 12;
constexpr double kLongDay = 12 * 3600.0; // s; the lightest

} // namespace

CareCalendar::CareCalendar(QWidget *parent) : QWidget(parent)
{
    describeControlsToAssistiveSoftware();
    setFixedSize(sizeHint());
}

QSize CareCalendar::sizeHint() const
{
    return {(kWeekDays - 1) * kPitch + kSquare + 2, (kWeeks - 1) * kPitch + kSquare + 2};
}

void CareCalendar::setDays(const QDate &today, std::vector<CareDay> days)
{
    if (today == m_today && days == m_days)
        return;
    m_today = today;
    m_days = std::move(days);
    update();
}

/// The lightest square is dark enough for a white number.
void CareCalendar::drawDay(QPainter &painter, const QRectF &square, const QDate &date) const
{
    const auto day = std::ranges::find(m_days, date, &CareDay::date);
    const bool isKnown = day != m_days.end();
    const double share = isKnown ? std::clamp(static_cast<double>(day->used) / kLongDay, 0.0, 1.0) : 0;
    QColor ground(Palette::kField);
    if (share > 0) {
        const QColor mint(Palette::kProgress);
        const double weight = 0.25 + 0.75 * share;
        const auto mixed = [weight](int from, int to) { return static_cast<int>(from + (to - from) * weight); };
        ground = QColor(mixed(ground.red(), mint.red()), mixed(ground.green(), mint.green()),
                        mixed(ground.blue(), mint.blue()));
    }
    const bool isToday = date == m_today;
    painter.setBrush(date > m_today ? Qt::NoBrush : QBrush(ground));
    painter.setPen(isToday ? QPen(QColor(Palette::kText), 1.5) : QPen(QColor(Palette::kHairline), 1));
    painter.drawRoundedRect(square, 6, 6);
    if (isKnown && day->cares > 0) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(Palette::kMint), 2));
        painter.drawEllipse(square.center(), kSquare / 2.0 - 4, kSquare / 2.0 - 4);
    }
    painter.setPen(QColor(date > m_today ? Palette::kDisabled : Palette::kText));
    painter.drawText(square, Qt::AlignCenter, QString::number(date.day()));
}

void CareCalendar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPixelSize(kNumberPixels);
    painter.setFont(font);
    const QDate first = m_today.addDays(1 - m_today.dayOfWeek() - (kWeeks - 1) * kWeekDays); // a Monday
    for (int i = 0; i < kWeeks * kWeekDays; ++i)
        drawDay(painter, QRectF(i % kWeekDays * kPitch + 1, i / kWeekDays * kPitch + 1, kSquare, kSquare),
                first.addDays(i));
}
