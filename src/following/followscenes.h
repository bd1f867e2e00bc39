#pragma once

#include <optional>
#include <span>

#include <QString>

/// A scene that a program can be paired with.
struct FollowScene
{
    const char *name; ///< source text, to be translated in the context QObject
    int value;        ///< scene mode with the factory parameters
};

/// The scenes in the order of every combo box; settings files hold a scene's place.
std::span<const FollowScene> followScenes();

/// The scene at a place that a file names; null beyond the list.
const FollowScene *followSceneAt(int index);

/// The value of the first scene with this displayed name; nothing for another text.
std::optional<int> followSceneValue(const QString &displayedName);
