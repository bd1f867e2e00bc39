#pragma once

#include <cstdint>

#include <QByteArrayList>
#include <QObject>

class QComboBox;
class QWidget;

/// Which of the monitors that were found commands go to, and the box of their labels.
class MonitorChoice : public QObject
{
    Q_OBJECT
public:
    /// The box is a child of @p parent.
    explicit MonitorChoice(QWidget *parent);

    QComboBox *box() const { return m_box; }

    /// The labels of the last search, in the order of monitorList.
    const QByteArrayList &labels() const { return m_labels; }

    /// The index that config.ini holds; 0 for one that is not accepted.
    std::uint8_t storedIndex() const;

    /// Finds the monitors and fills the box with them.
    void find();

    /// Sets currentMonitorIndex to the monitor that a pass of the search, from 0, tries.
    void chooseForPass(int pass) const;

    /// Shows in the box which monitor is tried.
    void showTried();

    /// Shows it again when the user has chosen another one in vain.
    void showAgain();

Q_SIGNALS:
    /// The user has chosen another monitor.
    void chosen(int index);

private:
    QComboBox *const m_box;
    QByteArrayList m_labels;
    bool m_filling = false;
};
