#include "virtualdesk/desktabs.h"

#include <algorithm>
#include <optional>

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QTabBar>

namespace virtualdesk {

namespace {

class Bar : public QTabBar
{
public:
    explicit Bar(QWidget *parent) : QTabBar(parent)
    {
        setDrawBase(false);
        setObjectName(QStringLiteral("deskTabs"));
        connect(this, &QTabBar::currentChanged, this, [this](int index) { setFocused(index); });
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const int key = event->key();
        if (const std::optional<int> wanted = placeFor(key))
            moveTo(*wanted);
        else if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter)
            setCurrentIndex(m_focused);
        else
            QTabBar::keyPressEvent(event);
    }

    void focusInEvent(QFocusEvent *event) override
    {
        setFocused(currentIndex());
        QTabBar::focusInEvent(event);
        update();
    }

    void focusOutEvent(QFocusEvent *event) override
    {
        QTabBar::focusOutEvent(event);
        update();
    }

    void paintEvent(QPaintEvent *event) override
    {
        QTabBar::paintEvent(event);
        if (!hasFocus())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(0x7b, 0xfa, 0xdb));
        painter.drawRoundedRect(QRectF(tabRect(m_focused)).adjusted(2.5, 2.5, -2.5, -4.5), 6, 6);
    }

private:
    std::optional<int> placeFor(int key) const
    {
        switch (key) {
        case Qt::Key_Left:
            return m_focused - 1;
        case Qt::Key_Right:
            return m_focused + 1;
        case Qt::Key_Home:
            return 0;
        case Qt::Key_End:
            return count() - 1;
        default:
            return std::nullopt;
        }
    }

    /// What tells assistive software of the tabs knows the property.
    void setFocused(int index)
    {
        m_focused = index;
        setProperty("focusedEntry", index);
    }

    void moveTo(int index)
    {
        setFocused(std::clamp(index, 0, count() - 1));
        update();
        QAccessibleEvent told(this, QAccessible::Focus);
        told.setChild(m_focused);
        QAccessible::updateAccessibility(&told);
    }

    int m_focused = 0;
};

} // namespace

DeskTabs::DeskTabs(QWidget *parent) : QTabWidget(parent)
{
    setTabBar(new Bar(this));
}

} // namespace virtualdesk
