#pragma once

#include <vector>

#include <QObject>

class QComboBox;
class QLabel;
class QSlider;
class QVBoxLayout;
class QWidget;

namespace virtualdesk {

/// Lines of a panel, each a name and a control; a slider has its value behind it.
class PanelRows : public QObject
{
    Q_OBJECT
public:
    /// The lines come into the column; their widgets become children of the panel.
    PanelRows(QVBoxLayout *column, QWidget *panel);

    /// Labels are source texts. The slider begins at 0.
    QSlider *addSlider(const char *label, int maximum);
    QComboBox *addBox(const char *label);

    /// What stands behind a slider.
    void showValue(const QSlider *slider, const QString &text);

    void retranslate();

private:
    struct Row
    {
        const char *label;
        QWidget *control;
        QLabel *name;
        QLabel *value; ///< null beside a box
    };

    void add(const char *label, QWidget *control, QLabel *value);

    QVBoxLayout *m_column;
    QWidget *m_panel;
    std::vector<Row> m_rows;
};

} // namespace virtualdesk
