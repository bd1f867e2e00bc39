#include "page/Nightloom/canvas/frametabs.h"

#include <algorithm>

#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>

#include "page/Nightloom/canvas/numberbar.h"
#include "page/Nightloom/parts/matrixeditor.h"

/// What a tab holds: a frame's editor on its sheet. It is light, for there are many; what scrolls is lent to it while
/// its tab is open.
class FrameSheet : public QWidget
{
public:
    FrameSheet(int id, MatrixEditor *matrixEditor) : frameId(id), editor(matrixEditor) { takeBack(); }

    void lend(QScrollArea *view)
    {
        view->setParent(this);
        view->setGeometry(rect());
        view->setWidget(editor);
        editor->setAutoFillBackground(false); // the scroll area has switched it on
        editor->show();
        view->show();
        m_view = view;
    }

    void takeBack()
    {
        m_view = nullptr;
        editor->hide();
        editor->setParent(this);
    }

    const int frameId;
    MatrixEditor *const editor;

protected:
    /// A press beside the cells must not take hold of the window: it is a stroke that missed.
    void mousePressEvent(QMouseEvent *event) override { event->accept(); }

    void resizeEvent(QResizeEvent *) override
    {
        if (m_view)
            m_view->setGeometry(rect());
    }

private:
    QScrollArea *m_view = nullptr;
};

FrameTabs::FrameTabs(QWidget *parent) : QTabWidget(parent), m_view(new QScrollArea(this))
{
    setTabBar(new NumberBar(this));
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setAlignment(Qt::AlignCenter);
    m_view->setFocusPolicy(Qt::NoFocus);
    m_view->hide();
    setUsesScrollButtons(true);
    setDocumentMode(true);
    tabBar()->setDrawBase(false);
    tabBar()->setExpanding(false);
    connect(this, &QTabWidget::currentChanged, this, [this] {
        openSheet();
        showOnionSkin();
    });
}

void FrameTabs::setForm(const MatrixForm *form)
{
    m_form = form;
    m_cellSize = 0;
}

/// Gives the view to the tab that is open; it stays where it was scrolled to.
void FrameTabs::openSheet()
{
    FrameSheet *now = sheet(currentIndex());
    if (now == m_open)
        return;
    const QPoint place(m_view->horizontalScrollBar()->value(), m_view->verticalScrollBar()->value());
    closeSheet();
    if (!now)
        return;
    m_open = now;
    now->lend(m_view);
    setTabOrder(tabBar(), now->editor); // the keyboard goes from the tab to its cells
    m_view->horizontalScrollBar()->setValue(place.x());
    m_view->verticalScrollBar()->setValue(place.y());
}

void FrameTabs::closeSheet()
{
    if (!m_open)
        return;
    m_view->takeWidget();
    m_open->takeBack();
    m_view->hide();
    m_view->setParent(this);
    m_open = nullptr;
}

FrameSheet *FrameTabs::sheet(int index) const
{
    return static_cast<FrameSheet *>(widget(index));
}

MatrixEditor *FrameTabs::editor(int index) const
{
    const FrameSheet *found = sheet(index);
    return found ? found->editor : nullptr;
}

void FrameTabs::apply(const AnimationState &state, int place, const std::function<void(int removed)> &removed)
{
    {
        const QSignalBlocker quiet(this);
        setUpdatesEnabled(false);
        tabBar()->hide(); // or it would lay out all tabs anew for each of them
        removeTabsWithout(state, removed);
        for (int i = 0; i < static_cast<int>(state.frames.size()); ++i) {
            const AnimationFrame &frame = state.frames[static_cast<std::size_t>(i)];
            if (i < count() && sheet(i)->frameId == frame.id)
                editor(i)->setFrame(toFrame(frame.cells, *m_form).flat());
            else
                addSheet(i, frame);
        }
        setCurrentIndex(std::clamp(place, 0, std::max(count() - 1, 0)));
        tabBar()->show();
        setUpdatesEnabled(true);
    }
    Q_EMIT currentChanged(currentIndex());
}

void FrameTabs::removeTabsWithout(const AnimationState &state, const std::function<void(int removed)> &removed)
{
    int gone = 0;
    for (int i = count() - 1; i >= 0; --i) {
        const auto stays = [id = sheet(i)->frameId](const AnimationFrame &frame) { return frame.id == id; };
        if (std::any_of(state.frames.begin(), state.frames.end(), stays))
            continue;
        FrameSheet *page = sheet(i);
        if (page == m_open)
            closeSheet();
        removeTab(i);
        delete page;
        ++gone;
        if (removed)
            removed(gone);
    }
}

void FrameTabs::addSheet(int index, const AnimationFrame &frame)
{
    MatrixEditor *matrixEditor = createMatrixEditor(*m_form, nullptr);
    if (m_cellSize != 0)
        matrixEditor->setCellSize(m_cellSize);
    matrixEditor->setFrame(toFrame(frame.cells, *m_form).flat());
    auto *page = new FrameSheet(frame.id, matrixEditor); // the tabs own it when they have taken it
    connect(matrixEditor, &MatrixEditor::edited, this, [this, page] { Q_EMIT edited(indexOf(page)); });
    connect(matrixEditor, &MatrixEditor::cursorMoved, m_view,
            [this](const QRect &cell) { m_view->ensureVisible(cell.center().x(), cell.center().y()); });
    insertTab(index, page, QString::number(frame.number));
    nameTab(index);
}

void FrameTabs::nameTab(int index)
{
    tabBar()->setAccessibleTabName(index, QObject::tr("Frame %1").arg(tabText(index)));
}

QByteArrayList FrameTabs::digits() const
{
    QByteArrayList all;
    for (int i = 0; i < count(); ++i)
        all.append(editor(i)->frame().digits());
    return all;
}

void FrameTabs::setCellSize(int pixels)
{
    m_cellSize = pixels;
    for (int i = 0; i < count(); ++i)
        editor(i)->setCellSize(pixels);
}

void FrameTabs::setOnionSkin(bool on)
{
    m_onionSkin = on;
    showOnionSkin();
}

void FrameTabs::showOnionSkin()
{
    const int current = currentIndex();
    for (int i = 0; i < count(); ++i) {
        const bool shines = m_onionSkin && i == current && i > 0;
        editor(i)->setOnionSkin(shines ? std::optional(editor(i - 1)->frame()) : std::nullopt);
    }
}

void FrameTabs::showInstead(int index)
{
    const MatrixEditor *shown = editor(index);
    for (int i = 0; i < count(); ++i)
        editor(i)->setShownInstead(shown && i == currentIndex() ? std::optional(shown->frame()) : std::nullopt);
}

void FrameTabs::updateControlText()
{
    setAccessibleName(QObject::tr("Custom Mode"));
    tabBar()->setAccessibleName(QObject::tr("Frames"));
    for (int i = 0; i < count(); ++i) {
        nameTab(i);
        editor(i)->updateControlText();
    }
}
