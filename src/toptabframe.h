#pragma once

#include <vector>

#include <QFrame>

class TopTab;
class TopWindowButton;

/// The bar at the top of the window: the mark, the nine tabs, and the buttons to minimise and close.
class TopTabFrame : public QFrame
{
    Q_OBJECT
public:
    explicit TopTabFrame(QWidget *parent = nullptr);

    int current() const { return m_current; }

    /// Marks a tab as selected, without a signal.
    void setCurrent(int index);

    /// Whether the tabs can be pressed; minimise and close always can.
    void setTabsEnabled(bool enabled);

    /// Says at each tab why it cannot be pressed; an empty text when it can.
    void explain(const QString &reason);

    void updateControlText();

    const std::vector<TopTab *> &tabs() const { return m_tabs; }

Q_SIGNALS:
    void tabChosen(int index);
    void minimiseClicked();
    void closeClicked();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *m_list; ///< of the tabs
    std::vector<TopTab *> m_tabs;
    TopWindowButton *m_minimise;
    TopWindowButton *m_close;
    int m_current = 0;
};
