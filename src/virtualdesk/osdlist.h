#pragma once

#include <cstddef>
#include <vector>

#include <QScrollArea>

class QGridLayout;
class QLabel;
class QPushButton;

namespace virtualdesk {

class SimulatedMonitor;
struct OsdFunction;

/// The on-screen menu of a simulated monitor with its values, and the buttons that the monitor itself would have for
/// it. It is long: a row is made when it comes into sight.
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

    /// There are rows that show nothing yet.
    void grown();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    struct Row
    {
        QLabel *name;
        QLabel *value;
        std::vector<QPushButton *> buttons; // down and up; none where several codes share the row
    };

    void makeRowsInSight();
    int rowsInSight() const;
    void addButtons(const OsdFunction &function, int row);
    void showRow(std::size_t row, const QString &name, const QString &value, bool visible);

    QGridLayout *m_grid;
    std::vector<Row> m_rows; // in the order of the OSD, as far as made
    QPushButton *m_lastButton = nullptr;
};

} // namespace virtualdesk
