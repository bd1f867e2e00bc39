#pragma once

#include <QWidget>

#include "controls/checkedcontrol.h"

/// One tab of the top bar: an icon over its caption.
class TopTab : public CaptionedControl<QWidget>
{
    Q_OBJECT
public:
    TopTab(const QString &iconBase, const QString &caption, QWidget *parent);

    /// Its icon: the path without suffix.
    const QString &icon() const { return m_iconBase; }

    /// See shrinkTogether().
    int captionSize() const;

    QAccessible::Role accessibleRole() const override { return QAccessible::PageTab; }
    void press() override;

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_iconBase;
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
