#pragma once

#include <memory>

#include <QString>

class QTranslator;

/// Holds the installed translation, one at a time or none.
class GlobalApplication
{
public:
    GlobalApplication();
    ~GlobalApplication();

    /// Replaces the installed translation by that of the code's language (toolLanguageOf). When it cannot be loaded
    /// nothing is installed and the source texts are shown. Dates and figures follow the language as well; what is
    /// written into files has no locale.
    void switchApplicationLanguage(const QString &code);

    /// The resource of the translation that a language code stands for.
    static QString translationFile(const QString &code);

private:
    std::unique_ptr<QTranslator> m_translator;
};
