#include "following/followlist.h"

#include <map>

#include <QFileInfo>

#include "ddc_protocol/settingsstore.h"
#include "following/followscenes.h"

namespace {

const QString kFile = QStringLiteral("scenceSetting.ini"); // spelled so in every user's folder, as are the keys
const QString kPath = QStringLiteral("appPath");
const QString kScene = QStringLiteral("appScence");

} // namespace

QString programName(const QString &path)
{
    return QFileInfo(path).fileName();
}

std::vector<FollowEntry> loadFollowList()
{
    std::map<QString, FollowEntry> groups;
    for (const auto &[key, value] : readAllSettings(kFile)) {
        const qsizetype slash = key.lastIndexOf(QLatin1Char('/'));
        if (slash < 0)
            continue;
        FollowEntry &entry = groups[key.left(slash)];
        const QString name = key.mid(slash + 1);
        if (name == kPath)
            entry.path = value;
        else if (name == kScene)
            entry.scene = followSceneAt(value.toInt()) ? value.toInt() : 0;
    }
    std::vector<FollowEntry> entries;
    for (const auto &[group, entry] : groups) {
        if (!programName(entry.path).isEmpty())
            entries.push_back(entry);
    }
    return entries;
}

bool saveFollowList(const std::vector<FollowEntry> &entries)
{
    QList<QPair<QString, QString>> settings;
    for (const FollowEntry &entry : entries) {
        const QString group = programName(entry.path) + QLatin1Char('/');
        settings.append({group + kPath, entry.path});
        settings.append({group + kScene, QString::number(entry.scene)});
    }
    return writeAllSettings(kFile, settings);
}
