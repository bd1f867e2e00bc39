#include "following/followscenes.h"

#include <QObject>

#define LABEL(text) QT_TRANSLATE_NOOP("QObject", text)

static constexpr FollowScene kScenes[] = {
    {LABEL("Standard Mode"), 1},   {LABEL("CAD/CAM Mode"), 3},   {LABEL("Animate Mode"), 5},
    {LABEL("Art Design Mode"), 7}, {LABEL("Movie Mode"), 9},     {LABEL("Reading Mode"), 11},
    {LABEL("Night Mode"), 13},     {LABEL("Eye Care Mode"), 15}, {LABEL("Light Programme"), 17},
    {LABEL("Dark Programme"), 19}, {LABEL("E-Book Mode"), 21},   {LABEL("Display P3 Mode"), 29},
};

std::span<const FollowScene> followScenes()
{
    return kScenes;
}

const FollowScene *followSceneAt(int index)
{
    return index >= 0 && static_cast<std::size_t>(index) < std::size(kScenes) ? &kScenes[index] : nullptr;
}

std::optional<int> followSceneValue(const QString &displayedName)
{
    for (const FollowScene &scene : kScenes) {
        if (QObject::tr(scene.name) == displayedName)
            return scene.value;
    }
    return {};
}
