#include "page/Nightloom/canvas/numberbar.h"

#include <algorithm>

#include <QAccessible>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>

#include "controls/accessibleentries.h"

NumberBar::NumberBar(QWidget *parent) : QTabBar(parent)
{
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        setFocused(index);
        update();
    });
}

void NumberBar::setFocused(int index)
{
    m_focused = index;
    setProperty(kFocusedEntry, index);
}

/// Numbers need no measuring: the bar asks for every tab's size again whenever one comes.
QSize NumberBar::tabSizeHint(int index) const
{
    constexpr int kMargins = 22;
    constexpr int kDigit = 9;
    constexpr int kHeight = 32;
    return {kMargins + kDigit * std::max(static_cast<int>(tabText(index).size()), 2), kHeight};
}

void NumberBar::keyPressEvent(QKeyEvent *event)
{
    if (const std::optional<int> wanted = placeFor(*event))
        moveTo(*wanted);
    else if (isPressKey(event))
        setCurrentIndex(m_focused);
    else
        QTabBar::keyPressEvent(event);
}

/// Where a key takes the focus; nothing for one that does not move it.
std::optional<int> NumberBar::placeFor(const QKeyEvent &event) const
{
    if (event.modifiers() & ~Qt::KeypadModifier)
        return std::nullopt;
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return m_focused - 1;
    case Qt::Key_Right:
    case Qt::Key_Down:
        return m_focused + 1;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return count() - 1;
    default:
        return std::nullopt;
    }
}

void NumberBar::moveTo(int index)
{
    setFocused(std::clamp(index, 0, std::max(count() - 1, 0)));
    const QFocusEvent byKey(QEvent::FocusIn, Qt::TabFocusReason); // also where the focus came by the mouse
    m_ring.follow(&byKey);
    bringIntoSight();
    update();
    QAccessibleEvent told(this, QAccessible::Focus);
    told.setChild(m_focused);
    QAccessible::updateAccessibility(&told);
}

/// By itself the bar scrolls to no tab but the open one: its arrows are pressed, as often as it has tabs at most.
void NumberBar::bringIntoSight()
{
    auto *back = findChild<QToolButton *>(QStringLiteral("ScrollLeftButton"));
    auto *on = findChild<QToolButton *>(QStringLiteral("ScrollRightButton"));
    if (!back || !on || back->isHidden())
        return;
    const int end = std::min(back->x(), on->x());
    for (int i = 0; i < count(); ++i) {
        const QRect tab = tabRect(m_focused);
        QToolButton *arrow = tab.left() < 0 ? back : tab.right() >= end ? on : nullptr;
        if (!arrow || !arrow->isEnabled())
            return;
        arrow->click();
    }
}

void NumberBar::focusInEvent(QFocusEvent *event)
{
    setFocused(currentIndex());
    m_ring.follow(event);
    QTabBar::focusInEvent(event);
}

void NumberBar::focusOutEvent(QFocusEvent *event)
{
    m_ring.follow(event);
    QTabBar::focusOutEvent(event);
}

void NumberBar::paintEvent(QPaintEvent *event)
{
    QTabBar::paintEvent(event);
    QPainter painter(this);
    m_ring.draw(painter, tabRect(m_focused));
}
