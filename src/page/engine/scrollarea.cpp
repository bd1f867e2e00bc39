#include "page/engine/scrollarea.h"

#include <QScrollArea>
#include <QScrollBar>

#include "controls/palette.h"

static constexpr char16_t kBarStyle[] =
    u"QScrollBar:vertical { background: transparent; width: 14px; margin: 0; }"
    "QScrollBar::handle:vertical { background: @scroll; border-radius: 3px; margin-left: 8px; min-height: 40px; }"
    "QScrollBar::handle:vertical:hover { background: @hoveredScroll; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }"
    "QScrollBar:horizontal { background: @ground; height: 14px; margin: 0; }"
    "QScrollBar::handle:horizontal { background: @scroll; border-radius: 3px; margin: 4px 0; min-width: 40px; }"
    "QScrollBar::handle:horizontal:hover { background: @hoveredScroll; }"
    "QScrollBar::add-line:horizontal, QScrollBar::sub-line:horizontal { width: 0; }"
    "QScrollBar::add-page:horizontal, QScrollBar::sub-page:horizontal { background: transparent; }";

QString scrollBarStyle()
{
    static const QString style = Palette::styled(kBarStyle);
    return style;
}

QScrollArea *makeScrollArea(QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->viewport()->setAutoFillBackground(false);
    area->verticalScrollBar()->setStyleSheet(scrollBarStyle()); // of the area it would be that of all it holds
    return area;
}

void fillScrollArea(QScrollArea *area, QWidget *content)
{
    area->setWidget(content);
    content->setAutoFillBackground(false);
}
