#pragma once

#include <QWidget>

#include "controls/paintedcontrol.h"

/// One tab of the top bar: an icon over its caption.
class TopTab : public PaintedControl<QWidget>
{
    Q_OBJECT
public:
    TopTab(const QString &iconBase, const QString &caption, QWidget *parent);

    /// Its icon: the path without suffix.
    const QString &icon() const { return m_iconBase; }

    void setChecked(bool checked);
    void setCaption(const QString &caption);

    /// See shrinkTogether().
    int captionSize() const;
    void setCaptionSize(int pixels);

    QAccessible::Role accessibleRole() const override { return QAccessible::PageTab; }
    std::optional<bool> checkedState() const override { return m_checked; }
    void press() override;

Q_SIGNALS:
    void clicked();

protected:
    const Caption *shownCaption() const override { return &m_caption; }
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_iconBase;
    Caption m_caption;
    bool m_checked = false;
};

/// A small picture button of the window's frame.
class TopWindowButton : public PaintedControl<QWidget>
{
    Q_OBJECT
public:
    /// picture without suffix: "<picture>.png", and "<picture>_h.png" while hovered.
    TopWindowButton(const QString &picture, QWidget *parent);

    QAccessible::Role accessibleRole() const override { return QAccessible::Button; }
    void press() override { Q_EMIT clicked(); }

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_picture;
};
