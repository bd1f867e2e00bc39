#include "globalapplication.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTranslator>

#include "controls/sharedfonts.h"
#include "toollanguage.h"

static constexpr int kLongestLoggedCode = 64; // the settings file may hold anything

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
    if (m_translator->load(translationFile(code)))
        QCoreApplication::installTranslator(m_translator.get());
}
