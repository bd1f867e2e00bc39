#pragma once

#include <vector>

#include <QLayout>

/// Lays widgets out in lines, as words of a text; a line that is full continues on the next.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(int spacing, QWidget *parent = nullptr);
    ~FlowLayout() override;

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
    int arrange(const QRect &rect, bool apply) const;

    std::vector<QLayoutItem *> m_items;
};
