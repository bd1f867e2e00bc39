#include "page/engine/pagestyle.h"

#include <QFile>
#include <QWidget>

void dressPage(QWidget *page)
{
    QFile style(QStringLiteral(":/resource/css/page_scene_mode.css"));
    if (style.open(QIODevice::ReadOnly))
        page->setStyleSheet(QString::fromUtf8(style.readAll()));
}
