#include "following/followscenes.h"

#include <vector>

#include <QObject>

#include "ddc_protocol/scenemodes.h"

std::span<const FollowScene> followScenes()
{
    static const std::vector<FollowScene> scenes = [] {
        std::vector<FollowScene> list;
        for (const int value : {1, 3, 5, 7, 9, 11, 13, 15, 17, 19, 21, 29})
            list.push_back({sceneModeOf(value)->label, value});
        return list;
    }();
    return scenes;
}

const FollowScene *followSceneAt(int index)
{
    const auto scenes = followScenes();
    return index >= 0 && static_cast<std::size_t>(index) < scenes.size() ? &scenes[static_cast<std::size_t>(index)]
                                                                         : nullptr;
}

std::optional<int> followSceneValue(const QString &displayedName)
{
    for (const FollowScene &scene : followScenes()) {
        if (QObject::tr(scene.name) == displayedName)
            return scene.value;
    }
    return {};
}
