#pragma once

#include <memory>
#include <optional>

#include <QWidget>

#include "controls/accessiblecontrol.h"
#include "ledmatrix/matrixframe.h"

class DotSheets;

/// A matrix that only shows, as one sees the accessory: round cells, the odd ones of staggered rows between the even.
class SmallMatrix : public QWidget, public Described
{
    Q_OBJECT
public:
    explicit SmallMatrix(QWidget *parent);

    /// Shows a frame; without one, as while the form is not known, nothing at all.
    void showFrame(std::optional<MatrixFrame> frame);
    const std::optional<MatrixFrame> &frame() const { return m_frame; }

    /// As high as the form is, of this width.
    int heightForWidth(int width) const override;

    QAccessible::Role accessibleRole() const override { return QAccessible::Canvas; }
    /// How much of it is on.
    QString valueText() const override;

protected:
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    std::optional<MatrixFrame> m_frame;
    std::shared_ptr<const DotSheets> m_sheets; ///< while it is in sight
};
