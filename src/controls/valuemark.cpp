#include "controls/valuemark.h"

#include <QPainter>

#include "controls/palette.h"

namespace {

const QColor kQuiet = Palette::translucent(Palette::kMint, 0x90);
const QColor kMarkDim = Palette::kDim;
const QColor kRefused = Palette::kError;

} // namespace

QString markText(Mark mark)
{
    switch (mark) {
    case Mark::None:
        break;
    case Mark::Unknown:
        return QObject::tr("The monitor has not told this value yet.");
    case Mark::Unlisted:
        return QObject::tr("The monitor has a value that is none of these.");
    case Mark::Unchosen:
        return QObject::tr("Not chosen here yet. The accessory does not tell what it has.");
    case Mark::Waiting:
        return QObject::tr("On its way to the monitor.");
    case Mark::Unconfirmed:
        return QObject::tr("The monitor did not confirm this value.");
    case Mark::Refused:
        return QObject::tr("The monitor did not take this setting.");
    }
    return {};
}

QString withHelp(const QString &mark, const QString &help)
{
    return mark.isEmpty() || help.isEmpty() ? mark + help : mark + QLatin1Char('\n') + help;
}

ValueMark::ValueMark(QWidget *parent) : QWidget(parent)
{
    setFixedSize(kSize, kSize);
    hide();
}

void ValueMark::setMark(Mark mark)
{
    if (mark == m_mark)
        return;
    m_mark = mark;
    setVisible(mark != Mark::None);
    const QString text = markText(mark);
    setToolTip(text);
    setAccessibleName(text);
    update();
}

void ValueMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = QRectF(rect()).center();
    constexpr qreal kRadius = 3;
    switch (m_mark) {
    case Mark::None:
        break;
    case Mark::Unknown:
    case Mark::Unlisted:
    case Mark::Unchosen:
        painter.fillRect(QRectF(centre.x() - 4, centre.y() - 0.75, 8, 1.5), kMarkDim);
        break;
    case Mark::Waiting:
        painter.setPen(Qt::NoPen);
        painter.setBrush(kQuiet);
        painter.drawEllipse(centre, kRadius, kRadius);
        break;
    case Mark::Unconfirmed:
        painter.setPen(QPen(kMarkDim, 1.5));
        painter.drawEllipse(centre, kRadius, kRadius);
        break;
    case Mark::Refused:
        painter.setPen(Qt::NoPen);
        painter.setBrush(kRefused);
        painter.drawEllipse(centre, kRadius, kRadius);
        break;
    }
}
