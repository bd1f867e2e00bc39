#include "page/pageset.h"

#include <algorithm>

#include <QScopedValueRollback>

#include "controls/sliderwidget.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/transport.h"
#include "page/engine/page.h"
#include "page/engine/settingspage.h"

Page *PageSet::page(PageId id) const
{
    const auto found = m_pages.find(id);
    return found == m_pages.end() ? nullptr : found->second;
}

SettingsPage *PageSet::settings(PageId id) const
{
    return dynamic_cast<SettingsPage *>(page(id));
}

Page *PageSet::shownBy(const QWidget *widget) const
{
    const auto found = std::find_if(m_pages.begin(), m_pages.end(),
                                    [widget](const auto &entry) { return entry.second->widget() == widget; });
    return found == m_pages.end() ? nullptr : found->second;
}

std::vector<Page *> PageSet::all() const
{
    std::vector<Page *> pages;
    for (const auto &[id, page] : m_pages)
        pages.push_back(page);
    return pages;
}

void PageSet::fill(CommandQueue &queue) const
{
    queue.drain();                     // or a drag's last value would fall into the suspension and be lost
    const auto lock = lockTransport(); // the scene-mode worker waits instead of being silenced
    commandsSuspended = true;
    for (const auto &[id, page] : m_pages)
        page->updateInterfaceData();
    commandsSuspended = false;
}

void PageSet::updateControlText() const
{
    for (const auto &[id, page] : m_pages)
        page->updateControlText();
}

bool PageSet::mayLeave()
{
    if (m_asksToLeave)
        return false;
    const QScopedValueRollback asking(m_asksToLeave, true);
    return std::all_of(m_pages.begin(), m_pages.end(), [](const auto &entry) { return entry.second->mayLeave(); });
}

QString PageSet::optionText(Command command, int value) const
{
    for (const auto &[id, page] : m_pages) {
        const auto *settings = dynamic_cast<SettingsPage *>(page);
        if (const QString text = settings ? settings->optionText(command, value) : QString(); !text.isEmpty())
            return text;
    }
    return {};
}

std::optional<double> PageSet::levelOf(Command command, int value) const
{
    for (const auto &[id, page] : m_pages) {
        const auto *settings = dynamic_cast<SettingsPage *>(page);
        if (const SliderWidget *owner = settings ? settings->slider(command) : nullptr) {
            const QSlider *range = owner->slider();
            return std::clamp(double(value - range->minimum()) / (range->maximum() - range->minimum()), 0.0, 1.0);
        }
    }
    return {};
}
