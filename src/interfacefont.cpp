#include "interfacefont.h"

#include <QFontDatabase>
#include <QResource>

#include "toollanguage.h"

static QStringList familiesOf(const QString &resource)
{
    const QResource file(resource);
    if (!file.isValid())
        return {};
    return QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFontFromData(file.uncompressedData()));
}

QFont interfaceFont(const QString &commonFamily)
{
    const QString own = QString::fromLatin1(toolLanguageOf(toolLanguageCode()).font);
    return QFont(familiesOf(own) + QStringList{commonFamily} +
                 familiesOf(QStringLiteral(":/resource/fonts/scripts.ttf")));
}
