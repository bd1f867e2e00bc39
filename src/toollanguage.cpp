#include "toollanguage.h"

#include <algorithm>

#include <QLocale>

#include "ddc_protocol/settingsstore.h"
#include "languagetable.h"

std::span<const ToolLanguage> toolLanguages()
{
    return kLanguages;
}

QString toolLanguageCode()
{
    const QString stored = languageSetting(false);
    return stored.isEmpty() ? QLocale::system().name() : stored;
}

const ToolLanguage &toolLanguageOf(const QString &code)
{
    for (const ToolLanguage &language : kLanguages) {
        if (code.startsWith(QLatin1String(language.code)))
            return language;
    }
    return *std::ranges::find(kLanguages, true, &ToolLanguage::english);
}
