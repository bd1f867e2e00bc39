#pragma once

// The accessory's own settings as config.ini keeps them. A factory reset stores the usual values.

inline constexpr char kPlaybackLevelKey[] = "SystemMode/PlaybackLevel";
inline constexpr char kLedBrightnessKey[] = "SystemMode/Brightness";

/// Both run from 0 to here: as the accessory leaves the factory it shines as bright as it can.
inline constexpr int kHighestAccessoryValue = 10;
inline constexpr int kUsualPlaybackLevel = 5;
inline constexpr int kUsualLedBrightness = 10;
