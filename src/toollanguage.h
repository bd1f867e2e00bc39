#pragma once

#include <span>

#include <QString>

/// A language of the interface: what its button says, in itself, and the code that config.ini keeps.
struct ToolLanguage
{
    const char *label;
    const char *code;
};

/// The languages, in the order of their buttons.
std::span<const ToolLanguage> toolLanguages();

/// The code in config.ini, or the system's language while there is none.
QString toolLanguageCode();

/// The language that the interface is shown in for a code: the one whose own code begins it most exactly, else English.
const ToolLanguage &toolLanguageOf(const QString &code);
