#pragma once

#include <QWidget>

#include "controls/paintedcontrol.h"

/// A framed picture with a caption below it. A press checks it; the owner unchecks its rivals.
class IconTextButton2 : public PaintedControl<QWidget>
{
    Q_OBJECT

public:
    /// @p normalPicture and @p checkedPicture are whole paths; the button's size follows the normal one.
    IconTextButton2(const QString &normalPicture, const QString &checkedPicture, const QString &caption,
                    QWidget *parent = nullptr);

    bool isChecked() const { return m_checked; }
    /// Sets the checked state without a signal.
    void setChecked(bool checked);

    QString caption() const { return m_caption.text(); }
    /// Sets the caption, which is the accessible name too.
    void setCaption(const QString &caption);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QAccessible::Role accessibleRole() const override { return QAccessible::RadioButton; }
    std::optional<bool> checkedState() const override { return m_checked; }
    void press() override;

Q_SIGNALS:
    void clicked();

protected:
    const Caption *shownCaption() const override { return &m_caption; }
    void paintEvent(QPaintEvent *event) override;

private:
    void drawPicture(QPainter &painter, const QRect &area) const;

    QString m_normalPicture;
    QString m_checkedPicture;
    QSize m_pictureSize;
    Caption m_caption;
    bool m_checked = false;
};
