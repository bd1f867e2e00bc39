#pragma once

#include <vector>

#include <QScrollArea>

class QGridLayout;
class QLabel;
class QPushButton;

namespace virtualdesk {

class SimulatedMonitor;
struct OsdFunction;

/// The on-screen menu of a simulated monitor with its values, and the buttons that the monitor itself would have for
/// it.
class OsdList : public QScrollArea
{
    Q_OBJECT

public:
    explicit OsdList(QWidget *parent = nullptr);

    void retranslate();
    /// Shows what the monitor has, row by row.
    void show(const SimulatedMonitor &monitor);

Q_SIGNALS:
    /// A button was pressed that changes a value behind the program's back, by 1 or -1.
    void stepped(const virtualdesk::OsdFunction &function, int direction);

private:
    void addButtons(const OsdFunction &function, QGridLayout *grid, int row);
    void showRow(std::size_t row, const QString &name, const QString &value, bool visible);

    std::vector<std::pair<QLabel *, QLabel *>> m_rows; // name and value, in the order of the OSD
    std::vector<QPushButton *> m_buttons;              // down and up for each row of the menu
};

} // namespace virtualdesk
