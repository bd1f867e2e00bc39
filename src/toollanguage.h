#pragma once

#include <span>

#include <QString>

/// A language of the interface, as resource/Translations/languages.txt has it.
struct ToolLanguage
{
    const char *label;       ///< what its button says, in itself
    const char *code;        ///< what begins the codes that it is shown for, and what config.ini keeps
    const char *translation; ///< the resource of its texts
    bool english;            ///< the language of the source texts
    const char *font;        ///< the resource of its own shapes of characters; empty where the common font has them
};

/// The languages, in the order of their buttons.
std::span<const ToolLanguage> toolLanguages();

/// The code in config.ini, or the system's language while there is none.
QString toolLanguageCode();

/// The language that the interface is shown in for a code: the first whose own code begins it, else English.
const ToolLanguage &toolLanguageOf(const QString &code);
