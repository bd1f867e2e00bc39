#include "page/Following/followrows.h"

#include <algorithm>

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "page/Following/followrow.h"

namespace {

constexpr int kPitch = FollowRow::kHeight + 8; // pixels from row to row
constexpr int kStep = 20;                      // pixels, of which a notch of the wheel is three
constexpr int kNeighbours = 1;                 // rows beyond each end, so that Tab finds the next one

bool holdsFocus(const FollowRow *row)
{
    return row->isAncestorOf(QApplication::focusWidget());
}

} // namespace

FollowRows::FollowRows(const std::vector<FollowEntry> &entries, QWidget *parent)
    : QAbstractScrollArea(parent), m_entries(entries)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    viewport()->setAutoFillBackground(false);
    verticalScrollBar()->setSingleStep(kStep);
}

void FollowRows::showList()
{
    const int height = viewport()->height();
    verticalScrollBar()->setPageStep(height);
    verticalScrollBar()->setRange(0, std::max(0, count() * kPitch - (kPitch - FollowRow::kHeight) - height));
    for (const auto &[index, row] : m_rows) {
        if (index < count())
            row->showEntry(index, m_entries[static_cast<std::size_t>(index)]);
    }
    arrange();
}

FollowRow *FollowRows::reveal(int index)
{
    const int top = index * kPitch;
    const int lowest = std::min(top, top + FollowRow::kHeight - viewport()->height());
    verticalScrollBar()->setValue(std::clamp(verticalScrollBar()->value(), lowest, top));
    arrange();
    return m_rows.at(index);
}

void FollowRows::arrange()
{
    const QScopedValueRollback arranging(m_isArranging, true);
    const int top = verticalScrollBar()->value();
    const int first = std::max(0, top / kPitch - kNeighbours);
    const int last = std::min(count() - 1, (top + viewport()->height()) / kPitch + kNeighbours);
    std::vector<FollowRow *> free = takeRowsBeyond(first, last);
    bool isNew = false;
    for (int index = first; index <= last; ++index) {
        FollowRow *&row = m_rows[index];
        if (row)
            continue;
        isNew = true;
        if (free.empty())
            free.push_back(makeRow());
        row = free.back();
        free.pop_back();
        row->showEntry(index, m_entries[static_cast<std::size_t>(index)]);
    }
    for (const auto &[index, row] : m_rows) {
        row->setGeometry(0, index * kPitch - top, viewport()->width(), FollowRow::kHeight);
        row->show();
    }
    for (FollowRow *row : free)
        row->hide();
    m_resting = std::move(free);
    if (isNew)
        orderTabs();
}

/// The row that has the focus is none of them as long as its program is in the list: Tab and keys go on from there.
std::vector<FollowRow *> FollowRows::takeRowsBeyond(int first, int last)
{
    std::vector<FollowRow *> taken = std::move(m_resting);
    std::erase_if(m_rows, [&](const auto &entry) {
        const auto [index, row] = entry;
        const bool isBeyond = (index < first || index > last) && (index >= count() || !holdsFocus(row));
        if (isBeyond)
            taken.push_back(row);
        return isBeyond;
    });
    return taken;
}

FollowRow *FollowRows::makeRow()
{
    auto *row = new FollowRow(viewport());
    connect(row, &FollowRow::sceneChosen, this, &FollowRows::sceneChosen);
    connect(row, &FollowRow::deleteWanted, this, &FollowRows::deleteWanted);
    return row;
}

/// Tab goes by the list, in whichever order the rows were made.
void FollowRows::orderTabs()
{
    QWidget *before = this;
    for (const auto &[index, row] : m_rows) {
        for (QWidget *control : {static_cast<QWidget *>(row->sceneBox()), static_cast<QWidget *>(row->trashButton())}) {
            setTabOrder(before, control);
            before = control;
        }
    }
}

void FollowRows::updateControlText()
{
    for (const auto &[index, row] : m_rows)
        row->updateControlText();
    for (FollowRow *row : m_resting)
        row->updateControlText();
}

void FollowRows::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    showList();
}

void FollowRows::scrollContentsBy(int, int)
{
    arrange();
}

bool FollowRows::focusNextPrevChild(bool next)
{
    const bool moved = QAbstractScrollArea::focusNextPrevChild(next);
    if (m_isArranging) // the row that had the focus is gone
        return moved;
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [](const auto &each) { return holdsFocus(each.second); });
    if (found != m_rows.end())
        reveal(found->first);
    return moved;
}
