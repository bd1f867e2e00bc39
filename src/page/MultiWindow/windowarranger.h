#pragma once

#include <optional>

#include <QString>
#include <QWidget>

#include "controls/paintedcontrol.h"
#include "page/MultiWindow/insetplan.h"

class MonitorPicture;

/// What is shown of the windows: options of the monitor, nothing for what is not known.
struct WindowsShown
{
    std::optional<int> mode;
    std::optional<int> place;
    std::optional<int> size;
    bool operator==(const WindowsShown &) const = default;
};

/// The hand that lies on a drawn monitor: it drags the small window of picture-in-picture to a corner, and its edges to
/// a size; arrow keys, plus and minus do the same, and a press moves it on to the next corner. It sends nothing itself,
/// and says only at the end of a drag what is wanted, unless that is so already.
class WindowArranger : public PaintedControl<QWidget>
{
    Q_OBJECT
public:
    /// Covers the picture, which owns it.
    explicit WindowArranger(MonitorPicture *picture);

    /// Shows what is set. A drag that this makes pointless ends without a wish.
    void showWindows(const WindowsShown &windows);

    /// Why nothing can be dragged now; empty when it can.
    void setLock(const QString &reason);

    /// What is seen, in words.
    void setValueText(const QString &text);

    /// Where the screen and the small window are drawn; no rectangle without such a window.
    QRectF screen() const;
    QRectF insetNow() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
    QString valueText() const override { return m_valueText; }
    bool isUsable() const override { return m_lock.isEmpty(); }
    void press() override;

Q_SIGNALS:
    void placeWanted(int place);
    void sizeWanted(int size);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *picture, QEvent *event) override;

private:
    struct Drag
    {
        int grip;
        QPointF from; ///< where the pointer took hold
        QRectF rect;  ///< as it is dragged now
    };

    std::optional<Inset> inset() const;
    std::optional<Inset> wanted() const;
    void want(const Inset &inset);
    void endDrag();
    void followPointer(QPointF at);

    MonitorPicture *m_picture;
    WindowsShown m_windows;
    std::optional<Drag> m_drag;
    QString m_lock;
    QString m_valueText;
};
