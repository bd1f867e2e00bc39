#pragma once

#include <QWidget>

#include "controls/checkedcontrol.h"

/// A framed picture with a caption below it. A press checks it; the owner unchecks its rivals.
class IconTextButton2 : public CaptionedControl<QWidget>
{
    Q_OBJECT

public:
    /// @p normalPicture and @p checkedPicture are whole paths; the button's size follows the normal one.
    IconTextButton2(const QString &normalPicture, const QString &checkedPicture, const QString &caption,
                    QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QAccessible::Role accessibleRole() const override { return QAccessible::RadioButton; }
    void press() override;

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawPicture(QPainter &painter, const QRect &area) const;

    QString m_normalPicture;
    QString m_checkedPicture;
    QSize m_pictureSize;
};
