#include "statusline.h"

#include "controls/sharedfonts.h"

StatusLine::StatusLine(QWidget *parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("status"));
    setFont(noteFont);
}

void StatusLine::tell(const MonitorStatus &status)
{
    const QString name = status.name.isEmpty() ? QStringLiteral("–") : status.name.toHtmlEscaped();
    setText(QStringLiteral("<span style='color:%1; font-size:9px'>●</span>&nbsp;&nbsp;"
                           "<span style='color:#adadad'>%2 · %3</span>")
                .arg(status.isGood ? QStringLiteral("#00ff71") : QStringLiteral("#da676d"), name, status.state));
    setAccessibleName(status.name + QLatin1Char(' ') + status.state);
}
