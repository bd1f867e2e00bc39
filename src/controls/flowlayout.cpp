#include "controls/flowlayout.h"

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

void FlowLayout::addHanging(QWidget *widget)
{
    addWidget(widget);
    ++m_hanging;
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
    if (item && isHanging(static_cast<std::size_t>(index)))
        --m_hanging;
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

bool FlowLayout::isHanging(std::size_t index) const
{
    return index + m_hanging >= m_items.size();
}

FlowLayout::Lines FlowLayout::linesIn(int width) const
{
    Lines lines;
    int end = width; // of the line so far: the first widget begins one
    for (std::size_t i = 0; i < m_items.size() && !isHanging(i); ++i) {
        if (m_items[i]->isEmpty())
            continue;
        const int needed = m_items[i]->sizeHint().width();
        const bool fits = lines.count > 0 && end + spacing() + needed <= width;
        end = fits ? end + spacing() + needed : needed;
        lines.count += fits ? 0 : 1;
        lines.widest = std::max(lines.widest, end);
    }
    return lines;
}

/// The least width that makes no more lines than this one does.
int FlowLayout::evenWidth(int width) const
{
    const Lines whole = linesIn(width);
    int even = width;
    int tried = width;
    for (Lines lines = whole; lines.count == whole.count && lines.widest <= tried; lines = linesIn(tried)) {
        even = lines.widest;
        tried = even - 1;
    }
    return even;
}

/// Places the items, or only measures. Returns the height that they take.
int FlowLayout::arrange(const QRect &rect, bool apply) const
{
    const int even = evenWidth(rect.width());
    QPoint position = rect.topLeft();
    int lineHeight = 0;
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        QLayoutItem *item = m_items[i];
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        const int end = rect.left() + (isHanging(i) ? rect.width() : even);
        if (position.x() > rect.left() && position.x() + size.width() > end) {
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
