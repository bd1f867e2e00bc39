#pragma once

#include <QFrame>

#include "controls/paintedcontrol.h"

/// A 90 x 82 tile with an icon and a caption; every press toggles it.
class IconTextButton : public PaintedControl<QFrame>
{
    Q_OBJECT

public:
    /// @p iconBase is the path of the icon without suffix: "<base>.png", "<base>_checked.png", "<base>_disabled.png".
    IconTextButton(const QString &iconBase, const QString &caption, QWidget *parent = nullptr);

    bool isChecked() const { return m_checked; }
    /// Sets the checked state without a signal.
    void setChecked(bool checked);

    QString caption() const { return m_caption.text(); }
    /// Sets the caption, which is the accessible name too.
    void setCaption(const QString &caption);

    /// Replaces the tile's two pictures (whole paths).
    void setPictures(const QString &normal, const QString &checked);

    QAccessible::Role accessibleRole() const override { return QAccessible::CheckBox; }
    std::optional<bool> checkedState() const override { return m_checked; }
    void press() override;

Q_SIGNALS:
    void clicked(bool checked);

protected:
    const Caption *shownCaption() const override { return &m_caption; }
    void paintEvent(QPaintEvent *event) override;

private:
    void drawTile(QPainter &painter) const;
    void drawIcon(QPainter &painter, const QColor &plainColor) const;

    QString m_normalPicture;
    QString m_checkedPicture;
    QString m_iconBase;
    Caption m_caption;
    bool m_checked = false;
};
