#include "globalapplication.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLocale>
#include <QTranslator>

#include "controls/sharedfonts.h"
#include "toollanguage.h"

static constexpr int kLongestLoggedCode = 64; // the settings file may hold anything

/// How dates and figures are shown: as the user's system has them where it speaks the language too.
static QLocale localeOf(const ToolLanguage &language)
{
    const QLocale system = QLocale::system();
    const QLocale own(QString::fromLatin1(language.code));
    return system.language() == own.language() && system.script() == own.script() ? system : own;
}

GlobalApplication::GlobalApplication() = default;

GlobalApplication::~GlobalApplication()
{
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator.get());
}

QString GlobalApplication::translationFile(const QString &code)
{
    return QString::fromLatin1(toolLanguageOf(code).translation);
}

void GlobalApplication::switchApplicationLanguage(const QString &code)
{
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator.get());
    m_translator = std::make_unique<QTranslator>();
    qDebug().noquote() << code.left(kLongestLoggedCode);
    languageWord = toolLanguageOf(code).english ? 1 : 0;
    QLocale::setDefault(localeOf(toolLanguageOf(code)));
    if (m_translator->load(translationFile(code)))
        QCoreApplication::installTranslator(m_translator.get());
}
