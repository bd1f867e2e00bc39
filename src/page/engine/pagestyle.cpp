#include "page/engine/pagestyle.h"

#include <QFile>
#include <QWidget>

#include "controls/palette.h"

static QString readStyle()
{
    QFile file(QStringLiteral(":/resource/css/page_scene_mode.css"));
    return file.open(QIODevice::ReadOnly) ? Palette::styled(QString::fromUtf8(file.readAll())) : QString();
}

void dressPage(QWidget *page)
{
    static const QString style = readStyle();
    if (!style.isEmpty())
        page->setStyleSheet(style);
}
