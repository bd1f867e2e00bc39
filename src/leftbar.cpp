#include "leftbar.h"

#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/focusgroup.h"
#include "controls/lefttabbutton.h"
#include "controls/pictures.h"

static constexpr int kSpacing = 2;

LeftBar::LeftBar(std::vector<NavigationEntry> entries, QWidget *parent) : QWidget(parent), m_entries(std::move(entries))
{
    describeAs(this, QAccessible::Grouping);
    auto *stop = new FocusGroup(this);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 0);
    column->setSpacing(kSpacing);
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const NavigationEntry &entry = m_entries[i];
        const QString icon = Pictures::kRoot + QLatin1String("img/entry/") + QLatin1String(entry.icon);
        auto *button = new LeftTabButton(icon, QObject::tr(entry.label), this);
        button->setObjectName(QStringLiteral("entry_") + QLatin1String(entry.label));
        connect(button, &LeftTabButton::clicked, this, [this, index = static_cast<int>(i)] {
            setCurrent(index);
            Q_EMIT entryChosen(index);
        });
        m_buttons.push_back(button);
        column->addWidget(button);
        stop->add(button);
    }
    column->addStretch(1);
}

void LeftBar::setCurrent(int index)
{
    m_current = index;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        LeftTabButton *button = m_buttons[i];
        const bool selectable = button->isSelectable();
        button->setSelectable(true); // a button that may not be chosen now still shows what is chosen
        button->setChecked(static_cast<int>(i) == index);
        button->setSelectable(selectable);
    }
}

void LeftBar::setCurrentScene(int sceneValue)
{
    int index = -1;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (m_entries[i].sceneValue != 0 &&
            (sceneValue == m_entries[i].sceneValue || sceneValue == m_entries[i].sceneValue + 1))
            index = static_cast<int>(i);
    }
    setCurrent(index);
}

void LeftBar::updateControlText()
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setCaption(QObject::tr(m_entries[i].label));
    shrinkTogether(m_buttons);
}
