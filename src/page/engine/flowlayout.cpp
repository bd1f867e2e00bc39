#include "page/engine/flowlayout.h"

#include <algorithm>

#include <QWidget>

FlowLayout::FlowLayout(int spacing, QWidget *parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

FlowLayout::~FlowLayout()
{
    for (QLayoutItem *item : m_items)
        delete item;
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items.push_back(item);
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    QLayoutItem *item = itemAt(index);
    if (item)
        m_items.erase(m_items.begin() + index);
    return item;
}

int FlowLayout::heightForWidth(int width) const
{
    return arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem *item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

/// Places the items, or only measures. Returns the height that they take.
int FlowLayout::arrange(const QRect &rect, bool apply) const
{
    QPoint position = rect.topLeft();
    int lineHeight = 0;
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (position.x() > rect.left() && position.x() + size.width() > rect.right() + 1) {
            position = QPoint(rect.left(), position.y() + lineHeight + spacing());
            lineHeight = 0;
        }
        if (apply)
            item->setGeometry(QRect(position, size));
        position.rx() += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return position.y() + lineHeight - rect.top();
}
