#include "leftbar.h"

#include <algorithm>
#include <utility>

#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/focusgroup.h"
#include "controls/lefttabbutton.h"
#include "controls/metrics.h"
#include "controls/pictures.h"

LeftBar::LeftBar(std::vector<NavigationEntry> entries, QWidget *parent)
    : QWidget(parent), m_stop(new FocusGroup(this)), m_column(new QVBoxLayout(this))
{
    describeAs(this, QAccessible::Grouping);
    m_column->setContentsMargins(metrics::kGap, metrics::kGap, metrics::kGap, 0);
    m_column->setSpacing(0);
    m_column->addStretch(1);
    setEntries(std::move(entries));
}

void LeftBar::setEntries(std::vector<NavigationEntry> entries)
{
    const auto isSame = [](const NavigationEntry &one, const NavigationEntry &other) {
        return one.label == other.label && one.sceneValue == other.sceneValue;
    };
    if (std::ranges::equal(m_entries, entries, isSame))
        return;
    const bool isUsable = m_buttons.empty() || m_buttons.front()->isEnabled();
    for (LeftTabButton *button : std::exchange(m_buttons, {}))
        delete button;
    m_entries = std::move(entries);
    m_current = -1;
    for (const NavigationEntry &entry : m_entries)
        addButton(entry);
    for (LeftTabButton *button : m_buttons)
        button->setEnabled(isUsable);
}

void LeftBar::addButton(const NavigationEntry &entry)
{
    const QString icon = Pictures::kRoot + QLatin1String("img/entry/") + QLatin1String(entry.icon);
    auto *button = new LeftTabButton(icon, QObject::tr(entry.label), this);
    button->setObjectName(QStringLiteral("entry_") + QLatin1String(entry.label));
    const int index = static_cast<int>(m_buttons.size());
    connect(button, &LeftTabButton::clicked, this, [this, index] {
        setCurrent(index);
        Q_EMIT entryChosen(index);
    });
    m_buttons.push_back(button);
    m_column->insertWidget(index, button);
    m_stop->add(button);
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
