#include "virtualdesk/panelrows.h"

#include <algorithm>

#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

#include "virtualdesk/selector.h"

namespace virtualdesk {

namespace {

constexpr int kNameWidth = 110;
constexpr int kValueWidth = 72;

} // namespace

PanelRows::PanelRows(QVBoxLayout *column, QWidget *panel) : QObject(panel), m_column(column), m_panel(panel)
{
}

QSlider *PanelRows::addSlider(const char *label, int maximum)
{
    auto *slider = new QSlider(Qt::Horizontal, m_panel);
    slider->setRange(0, maximum);
    auto *value = new QLabel(m_panel);
    value->setObjectName(QStringLiteral("value"));
    value->setFixedWidth(kValueWidth);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    add(label, slider, value);
    return slider;
}

QComboBox *PanelRows::addBox(const char *label)
{
    auto *box = new Selector(m_panel);
    add(label, box, nullptr);
    return box;
}

void PanelRows::add(const char *label, QWidget *control, QLabel *value)
{
    auto *name = new QLabel(m_panel);
    name->setFixedWidth(kNameWidth);
    auto *line = new QHBoxLayout;
    line->addWidget(name);
    line->addWidget(control, 1);
    if (value)
        line->addWidget(value);
    m_column->addLayout(line);
    m_rows.push_back({label, control, name, value});
}

void PanelRows::showValue(const QSlider *slider, const QString &text)
{
    std::ranges::find(m_rows, slider, &Row::control)->value->setText(text);
}

void PanelRows::retranslate()
{
    for (const Row &row : m_rows) {
        row.name->setText(QObject::tr(row.label));
        row.control->setAccessibleName(row.name->text());
    }
}

} // namespace virtualdesk
