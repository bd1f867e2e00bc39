#include "controls/tooltips.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPalette>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"

namespace {

constexpr int kTipWidth = 360; // points

/// Shows the tool tips of all widgets: left alone, the toolkit breaks no line of a plain text, and frames each in the
/// colour of its text. A label that shows one takes its text's colour from another role, so that the frame's is free.
class TipFilter : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isTip = event->type() == QEvent::Polish && watched->inherits("QTipLabel");
        if (isTip)
            static_cast<QWidget *>(watched)->setForegroundRole(QPalette::BrightText);
        if (event->type() != QEvent::ToolTip || !watched->isWidgetType())
            return false;
        auto *widget = static_cast<QWidget *>(watched);
        if (widget->toolTip().isEmpty())
            return false; // a part of it, or its parent, may have one
        showTip(static_cast<QHelpEvent *>(event)->globalPos(), widget->toolTip(), widget);
        return true;
    }
};

QString broken(const QString &line)
{
    QTextLayout layout(line, QToolTip::font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
        part.setLineWidth(kTipWidth);
        lines.append(line.mid(part.textStart(), part.textLength()).trimmed());
    }
    layout.endLayout();
    return lines.join(u'\n');
}

} // namespace

QString tipText(const QString &text)
{
    QStringList lines;
    const QStringList paragraphs = text.split(u'\n');
    for (const QString &paragraph : paragraphs) {
        const QStringList even = evenLines(paragraph, QToolTip::font(), kTipWidth).split(u'\n');
        for (const QString &line : even)
            lines.append(broken(line)); // a word may be longer
    }
    const QString whole = lines.join(u'\n');
    return Qt::mightBeRichText(whole) ? Qt::convertFromPlainText(whole) : whole;
}

void showTip(const QPoint &at, const QString &text, QWidget *owner)
{
    QToolTip::showText(at, tipText(text), owner);
}

void dressToolTips()
{
    QPalette palette = QToolTip::palette();
    palette.setColor(QPalette::ToolTipBase, Palette::kTip);
    palette.setColor(QPalette::ToolTipText, Palette::kEdge);
    palette.setColor(QPalette::BrightText, Palette::kText);
    QToolTip::setPalette(palette);
    QToolTip::setFont(noteFont);
    qApp->installEventFilter(new TipFilter(qApp));
}
