#pragma once

#include <cstdint>

/// The vendor command codes that the program uses, by OSD function. Value ranges stand beside each; an option's number
/// is the monitor's own. Codes that no page names stay in the table, so that every row keeps its number.
enum class Command : std::uint8_t {
    PixelShift = 0x01,           ///< option 0 to 3; OLED care, as all of 0x01 to 0x0E
    StillPicture = 0x02,         ///< 0 or 1: the screen is dimmed while nothing moves
    DetectionRate = 0x03,        ///< option 0 to 2
    StaticIcon = 0x04,           ///< option 0 to 3
    CareRunning = 0x05,          ///< 0 or 1, read only
    Taskbar = 0x06,              ///< option 0 to 3
    Boundary = 0x07,             ///< option 0 to 3
    CareDue = 0x08,              ///< 0 or 1, read only
    CareReminder = 0x09,         ///< 0 or 1: the monitor's own
    CareMode = 0x0A,             ///< by itself 0, by hand 1
    CareInterval = 0x0B,         ///< option 0 to 3
    CareIsp = 0x0D,              ///< 0 or 1: image sticking protection
    CareNow = 0x0E,              ///< 1 begins it
    Brightness = 0x10,           ///< 0 to 100
    Contrast = 0x12,             ///< 0 to 100
    ColorTemperature = 0x14,     ///< option 0 to 10
    NightViewTemperature = 0x15, ///< 0 to 100
    User1Red = 0x16,             ///< 0 to 100, as all user colours
    User1Green = 0x17,
    User1Blue = 0x18,
    User2Red = 0x19,
    User2Green = 0x1A,
    User2Blue = 0x1B,
    User3Red = 0x1C,
    User3Green = 0x1D,
    User3Blue = 0x1E,
    SceneMode = 0x22,            ///< 1 to 90: odd with factory parameters, the next even with the user's
    Gamma = 0x26,                ///< option 0 to 7
    RefreshRate = 0x30,          ///< 0 or 1: the display of the refresh rate, as the other game aids
    RefreshRatePlace = 0x31,     ///< option 0 to 3
    CrosshairColor = 0x32,       ///< option 0 to 7
    StopwatchTime = 0x33,        ///< option 1 to 4
    CrosshairShape = 0x34,       ///< option 1 to 6
    StopwatchPlace = 0x35,       ///< option 0 to 3
    GameTimeLength = 0x36,       ///< option 1 to 4
    GameTimePlace = 0x37,        ///< option 0 to 3
    MovingCrosshairColor = 0x38, ///< option 0 to 7
    MovingCrosshair = 0x39,      ///< 0 or 1
    MovingCrosshairSize = 0x3A,  ///< option 0 to 2
    AlignmentAid = 0x3B,         ///< 0 or 1
    Crosshair = 0x3D,            ///< 0 or 1
    Stopwatch = 0x3E,            ///< 0 or 1
    GameTime = 0x3F,             ///< 0 or 1
    ColorEnhance = 0x40,         ///< 0 to 10
    ContrastEnhance = 0x41,      ///< 0 to 5
    BlackLevel = 0x42,           ///< 0 to 100
    AdaptiveSync = 0x43,         ///< 0 or 1
    SuperResolution = 0x44,      ///< 0 to 5
    NightVision = 0x45,          ///< option 0 to 4
    HaloControl = 0x46,          ///< 0 to 100
    LocalDimming = 0x47,         ///< option 2 to 6: the monitor numbers these from 2
    MotionTech = 0x48,           ///< option 2 to 8: the monitor numbers these from 2
    GrayResponse = 0x49,         ///< option 0 to 4
    Hdr = 0x4A,                  ///< option 0 to 3
    FocusDimming = 0x4B,         ///< 0 or 1: the rim of the screen is darkened
    FocusDimmingLevel = 0x4C,    ///< option 0 to 2
    HawkEyeZoom = 0x4D,          ///< option 0 to 2
    MultiWindow = 0x50,          ///< option 0 to 2
    InsetSize = 0x54,            ///< option 0 to 2, of the inset of picture-in-picture
    InsetPlace = 0x55,           ///< option 0 to 3: its corner
    InputSignal = 0x57,          ///< option 0 to 5
    SaturationRed = 0x59,        ///< 0 to 100, as all hues and saturations; both run R, Y, G, C, B, M
    SaturationYellow = 0x5A,
    SaturationGreen = 0x5B,
    SaturationCyan = 0x5C,
    SaturationBlue = 0x5D,
    SaturationMagenta = 0x5E,
    UsbSwitch = 0x5F,         ///< Type-C 0, Type-B 1
    OutputRange = 0x60,       ///< option 0 to 2
    QuickBoot = 0x61,         ///< 0 or 1
    HawkEyeVision = 0x63,     ///< 0 or 1
    HawkEyeBrightness = 0x64, ///< option 0 to 4, as the two below
    HawkEyeContrast = 0x65,
    HawkEyeSharpness = 0x66,
    AccessoryBrightness = 0x72, ///< 0 to 10, of the LED-matrix accessory
    AccessoryLevel = 0x73,      ///< 0 to 10, how long the accessory plays an animation
    LightMode = 0x75,           ///< option 0 to 5; lighting at the monitor's back, as all of 0x75 to 0x8D but 0x87
    LightEffect = 0x76,         ///< option 0 to 4
    LightBrightness = 0x77,     ///< 0 to 100
    LightSpeed = 0x78,          ///< 0 to 10
    LightColor = 0x79,          ///< option 0 to 8: 8 is the colour of the three below
    LightRed = 0x7A,            ///< 0 to 255, as green and blue
    LightGreen = 0x7B,
    LightBlue = 0x7C,
    LightTemperature = 0x7D,     ///< 0 warm to 100 cold
    LightEyeCare = 0x7E,         ///< option 0 to 2: how bright it shines in eye care
    LightFrontColor = 0x7F,      ///< option 0 to 7
    LightRearColor = 0x80,       ///< option 0 to 7
    LightFrontBrightness = 0x81, ///< 0 to 100, as the rear's
    LightRearBrightness = 0x82,
    LightRhythmSource = 0x83, ///< sound 0, screen 1
    LightRhythmLevel = 0x84,  ///< option 0 to 4: how strongly it follows
    LightDirection = 0x85,    ///< 0 or 1
    LightGlobalTone = 0x86,   ///< 5 bits red, 6 green, 5 blue: what the global rhythm shows, as the zones' below
    Sharpness = 0x87,         ///< 0 to 8; the snapshot marks an unread scene block by 10
    LightLeftTone = 0x88,
    LightRightTone = 0x89,
    LightInStandby = 0x8A,  ///< 0 or 1
    LightWithScreen = 0x8B, ///< 0 or 1: goes dark with the screen
    LightTimer = 0x8C,      ///< option 0 to 3: it goes out by itself
    LightFade = 0x8D,       ///< 0 or 1: colours change softly
    HueRed = 0x9B,
    HueYellow = 0x9C,
    HueGreen = 0x9D,
    HueCyan = 0x9E,
    HueBlue = 0x9F,
    HueMagenta = 0xA0,
    OsdShowTime = 0xC0,  ///< seconds
    OsdHPosition = 0xC1, ///< 0 to 100, as the two below
    OsdVPosition = 0xC2,
    OsdTransparency = 0xC3,
    MenuLock = 0xC4,           ///< 0 or 1
    PowerLed = 0xC5,           ///< option 1 to 4: the monitor numbers these from 1
    PowerSaving = 0xC6,        ///< option 0 to 2
    ResetFactory = 0xC7,       ///< 0, write only
    OsdLanguage = 0xCC,        ///< language number 1 to 23
    UsbPower = 0xD5,           ///< 0 or 1
    DpAltMode = 0xD6,          ///< 0 or 1
    DpTypeC = 0xD7,            ///< 5.4G 0, 8.1G 1
    LowBlueLight = 0xD8,       ///< 0 to 4
    Cec = 0xD9,                ///< 0 or 1
    LightSensor = 0xDA,        ///< 0 or 1
    AiDualMode = 0xE0,         ///< 0 or 1
    NoSignalTimer = 0xE3,      ///< minutes
    GameRush = 0xE4,           ///< 0 or 1
    LampBeltColor = 0xE5,      ///< option 0 to 7, as all its colours
    LampBeltBrightness = 0xE6, ///< option 0 to 2
    LampBeltEffect = 0xE7,     ///< option 0 to 5
    LampBeltFrontColor = 0xE8,
    LampBeltRearColor = 0xE9,
    AudioMode = 0xEA,      ///< option 0 to 2
    GravitySensor = 0xEB,  ///< 0 or 1
    Paper = 0xEC,          ///< option 0 to 4
    Capability = 0xED,     ///< the capability word, read only (see below)
    Firmware = 0xEE,       ///< major in the high byte, minor in the low byte, read only
    OfficeArea = 0xEF,     ///< maximum and current value are the office area's sizes;
                           ///< written: a paper's width in millimetres, or its height with bit 15
    Alignment = 0xF1,      ///< option 0 to 3
    Ruler = 0xF2,          ///< option 0 to 2
    AudioVolume = 0xF6,    ///< 0 to 100
    AudioMute = 0xF7,      ///< 0 or 1
    Composition = 0xF8,    ///< option 0 to 5
    RestTimer = 0xF9,      ///< option 0 to 8
    CrosshairPlace = 0xFA, ///< option 0 to 4
};

/// A vendor command: its number is a row of commandTable. Even rows write, the next odd row reads the same code.
enum class COMMAND_set_Type : std::uint16_t {};

/// The bits of the capability word that the program looks at.
enum class Capability : std::uint16_t {
    LocalDimming = 1 << 0,
    HaloControl = 1 << 1,
    OledPanel = 1 << 2, ///< the care values are read
    ExtraScene = 1 << 3,
    MpcsMotion = 1 << 6, ///< the motion function is called MPCS, not DyDs, and has scenes of its own
    GameFunctions = 1 << 10,
};
