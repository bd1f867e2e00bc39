#pragma once

#include <QFrame>

#include "controls/checkedcontrol.h"

/// A 90 x 82 tile with an icon and a caption; every press toggles it.
class IconTextButton : public CaptionedControl<QFrame>
{
    Q_OBJECT

public:
    /// @p iconBase is the path of the icon without suffix: "<base>.png", "<base>_checked.png", "<base>_disabled.png".
    IconTextButton(const QString &iconBase, const QString &caption, QWidget *parent = nullptr);

    /// Replaces the tile's two pictures (whole paths).
    void setPictures(const QString &normal, const QString &checked);

    QAccessible::Role accessibleRole() const override { return QAccessible::CheckBox; }
    void press() override;

Q_SIGNALS:
    void clicked(bool checked);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void drawTile(QPainter &painter) const;
    void drawIcon(QPainter &painter, const QColor &plainColor) const;

    QString m_normalPicture;
    QString m_checkedPicture;
    QString m_iconBase;
};
