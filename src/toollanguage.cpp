#include "toollanguage.h"

#include <cstring>

#include <QLocale>

#include "ddc_protocol/settingsstore.h"

static constexpr ToolLanguage kLanguages[] = {
    {"繁體中文", "zh_TW"},
    {"English", "en"},
    {"简体中文", "zh"},
    {"日本語", "ja_JP"},
};
static constexpr std::size_t kEnglish = 1;

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
    const ToolLanguage *best = nullptr;
    for (const ToolLanguage &language : kLanguages) {
        const bool longer = !best || std::strlen(language.code) > std::strlen(best->code);
        if (longer && code.startsWith(QLatin1String(language.code)))
            best = &language;
    }
    return best ? *best : kLanguages[kEnglish];
}
