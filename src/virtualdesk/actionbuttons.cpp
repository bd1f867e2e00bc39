#include "virtualdesk/actionbuttons.h"

#include <utility>

#include <QGridLayout>
#include <QPushButton>

namespace virtualdesk {

ActionButtons::ActionButtons(int columns, QWidget *panel)
    : QObject(panel), m_columns(columns), m_panel(panel), m_grid(new QGridLayout)
{
    m_grid->setSpacing(8);
}

QLayout *ActionButtons::layout() const
{
    return m_grid;
}

void ActionButtons::add(PanelAction action)
{
    auto *button = new QPushButton(m_panel);
    button->setObjectName(action.name);
    button->setCheckable(action.isOn != nullptr);
    connect(button, &QPushButton::clicked, this, action.press);
    const int place = static_cast<int>(m_buttons.size());
    m_grid->addWidget(button, place / m_columns, place % m_columns);
    m_buttons.push_back(button);
    m_actions.push_back(std::move(action));
}

void ActionButtons::retranslate()
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        const QString tip = QObject::tr(m_actions[i].tip);
        m_buttons[i]->setText(QObject::tr(m_actions[i].text));
        m_buttons[i]->setToolTip(tip);
        m_buttons[i]->setAccessibleDescription(tip);
    }
}

void ActionButtons::showStates()
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        if (m_actions[i].isOn)
            m_buttons[i]->setChecked(m_actions[i].isOn());
    }
}

} // namespace virtualdesk
