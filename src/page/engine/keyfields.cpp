#include "page/engine/keyfields.h"

#include <algorithm>

#include <QApplication>
#include <QScopedValueRollback>

#include "controls/zelmarkeysequenceedit.h"

void KeyFields::add(ZelmarKeySequenceEdit *field)
{
    m_fields.emplace_back(field);
}

void KeyFields::remove(ZelmarKeySequenceEdit *field)
{
    std::erase_if(m_fields, [field](const auto &each) { return !each || each == field; });
}

bool KeyFields::isUsedElsewhere(const ZelmarKeySequenceEdit *field) const
{
    return std::any_of(m_fields.begin(), m_fields.end(), [field](const auto &other) {
        return other && other != field && other->text() == field->text();
    });
}

void KeyFields::settle(ZelmarKeySequenceEdit *field, const std::function<void()> &tell)
{
    if (field->text().isEmpty() || !isUsedElsewhere(field))
        return;
    {
        const QScopedValueRollback telling(m_isTelling, true);
        tell();
    }
    field->clear();
}

bool KeyFields::take(const QKeySequence &key)
{
    if (m_isTelling)
        return true;
    auto *field = qobject_cast<ZelmarKeySequenceEdit *>(QApplication::focusWidget());
    const bool isOurs = field && std::find(m_fields.begin(), m_fields.end(), field) != m_fields.end();
    if (isOurs)
        field->take(key);
    return isOurs;
}
