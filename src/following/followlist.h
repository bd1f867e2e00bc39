#pragma once

#include <vector>

#include <QString>

/// A program and the scene it wants, as its group in the settings file holds them.
struct FollowEntry
{
    QString path;  ///< as it was chosen
    int scene = 0; ///< place in followScenes()
    bool operator==(const FollowEntry &) const = default;
};

/// The last component of a path; it is what programs are told apart by.
QString programName(const QString &path);

/// The pairs of "scenceSetting.ini", by file name. Groups without a path are left out; a scene that does not exist is
/// the first.
std::vector<FollowEntry> loadFollowList();

/// Writes the whole list in one step, a group a file name. False when the file could not be written; then it holds the
/// old list.
bool saveFollowList(const std::vector<FollowEntry> &entries);
