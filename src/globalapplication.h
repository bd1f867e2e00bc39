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

    /// Replaces the installed translation by the one that the code's prefix names, such as "zh_TW" or "ja_JP"; English
    /// for every other code. When it cannot be loaded nothing is installed and the source texts are shown.
    void switchApplicationLanguage(const QString &code);

    /// The resource of the translation that a language code stands for.
    static QString translationFile(const QString &code);

private:
    std::unique_ptr<QTranslator> m_translator;
};
