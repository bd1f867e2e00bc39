#include "globalapplication.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTranslator>

#include "controls/sharedfonts.h"

namespace {

struct Translation
{
    const char *prefix;
    const char *file;
};

// The order matters: "zh_TW" is also a "zh", and only the full "ja_JP" is Japanese.
constexpr Translation kTranslations[] = {
    {"zh_TW", ":/Translations/zh_TW.qm"},
    {"zh", ":/Translations/zh_CN.qm"},
    {"en", ":/Translations/en_us.qm"},
    {"ja_JP", ":/Translations/ja_JP.qm"},
};
constexpr char kEnglish[] = ":/Translations/en_us.qm";
constexpr int kLongestLoggedCode = 64; // the settings file may hold anything

} // namespace

GlobalApplication::GlobalApplication() = default;

GlobalApplication::~GlobalApplication()
{
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator.get());
}

QString GlobalApplication::translationFile(const QString &code)
{
    for (const Translation &translation : kTranslations) {
        if (code.startsWith(QLatin1String(translation.prefix)))
            return QString::fromLatin1(translation.file);
    }
    return QString::fromLatin1(kEnglish);
}

void GlobalApplication::switchApplicationLanguage(const QString &code)
{
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator.get());
    m_translator = std::make_unique<QTranslator>();
    qDebug().noquote() << code.left(kLongestLoggedCode);
    const QString file = translationFile(code);
    languageWord = file == QLatin1String(kEnglish) ? 1 : 0;
    if (m_translator->load(file))
        QCoreApplication::installTranslator(m_translator.get());
}
