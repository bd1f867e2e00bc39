#include "page/engine/dropdown.h"

#include <QComboBox>
#include <QListView>

#include "controls/wheeleventfilter.h"

// Added to what the page's style says of every combo box: its arrow without a frame, and the open list.
static const char *const kStyle =
    "QComboBox::drop-down { border: none; width: 28px; }"
    "QComboBox::down-arrow { image: url(:/resource/img/option/drop.png); width: 14px; height: 14px; }"
    "QListView { background-color: #222d28; color: #c9c9c9; border: 1px solid #31403a; outline: none; font-size: 14px; "
    "padding: 4px; }"
    "QListView::item { min-height: 32px; }"
    "QListView::item:selected { background-color: #1b5043; color: #ffffff; }";

QComboBox *makeDropDown(QWidget *parent)
{
    auto *box = new QComboBox(parent);
    box->setView(new QListView(box)); // the style sheet reaches this view only, not the system's own
    box->setStyleSheet(QLatin1String(kStyle));
    box->installEventFilter(new WheelEventFilter(box));
    return box;
}
