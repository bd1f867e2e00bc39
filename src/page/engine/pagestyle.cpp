#include "page/engine/pagestyle.h"

#include <QComboBox>
#include <QFile>
#include <QListView>
#include <QWidget>

#include "controls/wheeleventfilter.h"

namespace {

// A combo box's arrow without a frame, and the open list.
const char *const kComboBoxStyle =
    "QComboBox::drop-down { border: none; width: 28px; }"
    "QComboBox::down-arrow { image: url(:/resource/img/option/drop.png); width: 14px; height: 14px; }"
    "QListView { background-color: #222d28; color: #c9c9c9; border: 1px solid #31403a; outline: none; font-size: 14px; "
    "padding: 4px; }"
    "QListView::item { min-height: 32px; }"
    "QListView::item:selected { background-color: #1b5043; color: #ffffff; }";

} // namespace

void dressPage(QWidget *page)
{
    QFile style(QStringLiteral(":/resource/css/page_scene_mode.css"));
    if (style.open(QIODevice::ReadOnly))
        page->setStyleSheet(QString::fromUtf8(style.readAll()));
}

void dressComboBox(QComboBox *box)
{
    box->setView(new QListView(box)); // the style sheet reaches this view only, not the system's own
    box->setStyleSheet(QLatin1String(kComboBoxStyle));
    box->installEventFilter(new WheelEventFilter(box));
}
