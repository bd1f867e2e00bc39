#pragma once

#include <cstdint>
#include <vector>

#include <QWidget>

namespace virtualdesk {

/// The LED matrix as somebody at the desk sees it: round cells, lit or dark, the odd rows of the tapering form between
/// the even ones.
class MatrixView : public QWidget
{
    Q_OBJECT

public:
    explicit MatrixView(QWidget *parent);

    /// Shows cells in frame order; those that are missing are dark. Light is 0 for a lamp that is off, to 1.
    void show(int form, const std::vector<std::int32_t> &cells, double light);

    int litCells() const;

    QSize sizeHint() const override { return {380, 330}; }
    QSize minimumSizeHint() const override { return {300, 200}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_form = 0;
    std::vector<std::int32_t> m_cells;
    double m_light = 1.0;
};

} // namespace virtualdesk
