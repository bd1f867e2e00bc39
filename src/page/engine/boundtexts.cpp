#include "page/engine/boundtexts.h"

#include <QObject>

void BoundTexts::bind(const char *source, Apply apply)
{
    apply(QObject::tr(source));
    m_entries.push_back({source, std::move(apply)});
}

void BoundTexts::retranslate() const
{
    for (const Entry &entry : m_entries)
        entry.apply(QObject::tr(entry.source));
}
