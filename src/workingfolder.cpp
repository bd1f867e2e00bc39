#include "workingfolder.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include "ddc_protocol/settingsstore.h"
#include "platform/desk.h"

namespace {

bool holdsSettings(const QString &folder)
{
    return QFileInfo(QDir(folder), QString::fromLatin1(kConfigFile)).isFile();
}

/// Tried instead of asked: neither permissions nor rights tell the whole truth.
bool takesFiles(const QString &folder)
{
    return !folder.isEmpty() && QTemporaryFile(folder + QStringLiteral("/QUORVEL-XXXXXX")).open();
}

bool liesIn(const QString &folder, const QString &outer)
{
    const QLatin1Char slash('/');
    return !outer.isEmpty() && (folder + slash).startsWith(outer + slash, Qt::CaseInsensitive);
}

FolderFacts gatherFacts()
{
    platform::Process &process = platform::desk().process();
    FolderFacts facts;
    facts.current = QDir::currentPath();
    facts.currentHoldsSettings = holdsSettings(facts.current);
    facts.currentWritable = facts.currentHoldsSettings || takesFiles(facts.current);
    facts.own = QFileInfo(process.ownFile()).absolutePath();
    facts.ownHoldsSettings = holdsSettings(facts.own);
    facts.system = process.systemFolders();
    facts.localData = process.localDataFolder();
    return facts;
}

} // namespace

QString workingFolderFor(const FolderFacts &facts)
{
    const bool inSystem = std::any_of(facts.system.begin(), facts.system.end(),
                                      [&facts](const QString &system) { return liesIn(facts.current, system); });
    if (facts.currentHoldsSettings || (facts.currentWritable && !inSystem))
        return {};
    if (facts.ownHoldsSettings)
        return facts.own;
    return facts.localData.isEmpty() ? QString() : facts.localData + QStringLiteral("/QUORVEL");
}

void settleWorkingFolder()
{
    const QString folder = workingFolderFor(gatherFacts());
    if (!folder.isEmpty() && QDir().mkpath(folder))
        QDir::setCurrent(folder);
}
