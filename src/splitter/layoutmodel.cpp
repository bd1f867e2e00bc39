#include "splitter/layoutmodel.h"

#include <algorithm>

void LayoutModel::showScreen(const SplitScreen &screen)
{
    if (screen.key() != m_screen.key())
        m_steps.clear();
    m_screen = screen;
    m_layouts = loadLayouts(screen.key());
    Q_EMIT changed();
}

bool LayoutModel::store(const ScreenLayouts &layouts)
{
    if (!storeLayouts(m_screen.key(), layouts)) {
        Q_EMIT unstored();
        return false;
    }
    m_layouts = layouts;
    Q_EMIT stored();
    return true;
}

/// A change that can be undone.
void LayoutModel::take(const ScreenLayouts &layouts)
{
    const ScreenLayouts before = m_layouts;
    if (layouts == before || !store(layouts))
        return;
    if (m_steps.size() == kMostSteps)
        m_steps.erase(m_steps.begin());
    m_steps.push_back(before);
    Q_EMIT changed();
}

void LayoutModel::choose(const SplitLayout &layout)
{
    store({m_layouts.own, layout});
    Q_EMIT changed();
}

bool LayoutModel::isTaken(const QString &name) const
{
    return std::any_of(m_layouts.own.begin(), m_layouts.own.end(),
                       [&name](const SplitLayout &layout) { return layout.name == name; });
}

void LayoutModel::add(const QString &name)
{
    if (!canAdd())
        return;
    ScreenLayouts layouts = m_layouts;
    layouts.chosen.isOwn = true;
    layouts.chosen.name = name.left(kLongestLayoutName);
    for (int number = 2; isTaken(layouts.chosen.name); ++number)
        layouts.chosen.name = QStringLiteral("%1 %2").arg(name.left(kLongestLayoutName - 3)).arg(number);
    layouts.own.push_back(layouts.chosen);
    take(layouts);
}

void LayoutModel::replaceChosen(const SplitLayout &layout)
{
    if (!m_layouts.chosen.isOwn)
        return;
    ScreenLayouts layouts = m_layouts;
    std::replace(layouts.own.begin(), layouts.own.end(), m_layouts.chosen, layout);
    layouts.chosen = layout;
    take(layouts);
}

void LayoutModel::rename(const QString &name)
{
    const QString tidy = name.simplified().left(kLongestLayoutName);
    if (!tidy.isEmpty() && !isTaken(tidy))
        replaceChosen({tidy, m_layouts.chosen.zones, true});
}

void LayoutModel::setZones(const Zones &zones)
{
    replaceChosen({m_layouts.chosen.name, zones, true});
}

void LayoutModel::remove()
{
    if (!m_layouts.chosen.isOwn)
        return;
    ScreenLayouts layouts = m_layouts;
    std::erase(layouts.own, m_layouts.chosen);
    layouts.chosen = fixedLayouts().front();
    take(layouts);
}

void LayoutModel::undo()
{
    if (m_steps.empty() || !store(m_steps.back()))
        return;
    m_steps.pop_back();
    Q_EMIT changed();
}
