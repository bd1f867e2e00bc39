#include "page/engine/storenotice.h"

#include <QObject>

QString storeNotice(Unstored what, const QString &fileName)
{
    return what == Unstored::Undone
               ? QObject::tr("%1 cannot be written. Nothing was changed.").arg(fileName)
               : QObject::tr("%1 cannot be written: what is set here lasts until the program ends.").arg(fileName);
}
