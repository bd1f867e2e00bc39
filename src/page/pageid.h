#pragma once

/// The pages that entries lead to.
enum class PageId {
    Scene,
    Office,
    PictureEnhance,
    SystemSetting,
    ToolSetting,
    ServicesSetting,
    IoSetting,
    LedText,
    LedCanvas,
    ShortcutKey,
    ScenarioFollowing,
    LedMusic,
    LedSystem,
    LedAnimate,
    LedGame,
    GameAssistant,
    MultiWindow,
    OledCare,
    Emberline,
    Splitter,
    Empty
};
