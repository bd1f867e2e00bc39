#pragma once

#include <optional>

#include "controls/paintedcontrol.h"

/// A painted control that is on or off. @p Base is the Qt class that the control is.
template <class Base> class CheckedControl : public PaintedControl<Base>
{
public:
    using PaintedControl<Base>::PaintedControl;

    bool isChecked() const { return m_isChecked; }

    /// Sets the checked state without a signal.
    void setChecked(bool checked)
    {
        if (m_isChecked == checked)
            return;
        m_isChecked = checked;
        Base::update();
        announceState(this);
    }

    std::optional<bool> checkedState() const override { return m_isChecked; }

private:
    bool m_isChecked = false;
};

/// One that has a caption.
template <class Base> class CaptionedControl : public CheckedControl<Base>
{
public:
    /// The caption is @p pixels high where it has the room.
    CaptionedControl(int pixels, QWidget *parent) : CheckedControl<Base>(parent), m_caption(pixels) {}

    QString caption() const { return m_caption.text(); }

    /// Sets the caption, which is the accessible name too.
    void setCaption(const QString &caption)
    {
        m_caption.setText(caption);
        Base::setAccessibleName(caption);
        Base::update();
    }

    /// See shrinkTogether().
    void setCaptionSize(int pixels)
    {
        m_caption.setLargest(pixels);
        Base::update();
    }

protected:
    const Caption *shownCaption() const override { return &m_caption; }

    /// In pixels, what the caption needs in a width.
    int captionSizeWithin(int width) const { return m_caption.sizeWithin(Base::font(), width); }

    void drawCaption(QPainter &painter, const QRect &rect, Qt::Alignment flags, const QColor &color)
    {
        m_caption.draw(painter, rect, flags, color);
    }

private:
    Caption m_caption;
};
