#pragma once

#include <vector>

#include <QLayout>

/// Lays widgets out in lines, as words of a text. Where they need several, these are about as long as each other, so
/// that none is left alone on the last; what hangs on the last widget moves none of them.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(int spacing, QWidget *parent = nullptr);
    ~FlowLayout() override;

    /// Adds something that follows the last widget wherever that stands, such as a mark.
    void addHanging(QWidget *widget);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override { return minimumSize(); }
    void setGeometry(const QRect &rect) override;

private:
    struct Lines
    {
        int count = 0;
        int widest = 0;
    };

    Lines linesIn(int width) const;
    int evenWidth(int width) const;
    int arrange(const QRect &rect, bool apply) const;
    bool isHanging(std::size_t index) const;

    std::vector<QLayoutItem *> m_items;
    std::size_t m_hanging = 0; ///< so many at the end
};
