// The part of the page engine that offers the way back from a risky change.

#include <QVBoxLayout>

#include "page/engine/optiongrouprow.h"
#include "page/engine/riskychanges.h"
#include "page/engine/settingspage.h"
#include "page/engine/undobar.h"

namespace {

/// An option's value in the words of its group.
QString wordOf(const OptionGroup &group, int value)
{
    for (const Option &option : group.options) {
        if (option.value == value)
            return QObject::tr(option.label).trimmed();
    }
    return QString::number(value);
}

} // namespace

void SettingsPage::addUndoBar(QVBoxLayout *column)
{
    m_undoBar = new UndoBar(this);
    column->addWidget(m_undoBar);
    connect(m_undoBar, &UndoBar::undoWanted, this, [this](const UndoOffer &offer) {
        if (setOption(offer.command, offer.before)) // else it may be tried once more
            m_undoBar->check();
    });
}

void SettingsPage::offerUndo(Command command, std::optional<int> before, int value)
{
    if (!m_undoBar || !before || before == value || !isRiskyChange(command, value))
        return;
    m_undoBar->offer({command, *before, value});
    showUndoTexts();
}

void SettingsPage::showUndoTexts()
{
    const OptionGroupRow *row =
        m_undoBar && m_undoBar->offered() ? optionGroup(m_undoBar->offered()->command) : nullptr;
    if (!row)
        return;
    const OptionGroup &group = row->group();
    const QString name = QObject::tr(group.label);
    m_undoBar->setTexts(QObject::tr("%1 was changed to \"%2\".").arg(name, wordOf(group, m_undoBar->offered()->value)),
                        QObject::tr("Set %1 back to \"%2\"").arg(name, wordOf(group, m_undoBar->offered()->before)));
}
