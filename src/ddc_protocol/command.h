#pragma once

#include <cstdint>

/// The vendor command codes that the program uses, by OSD function. Value ranges stand beside each; an option's number
/// is the monitor's own. Codes that no page names stay in the table, so that every row keeps its number.
enum class Command : std::uint8_t {
    PixelShift = 0x01, ///< OLED care, as all of 0x01 to 0x0E
    CareFunction2 = 0x02,
    DetectionRate = 0x03,
    StaticIcon = 0x04,
    CareState5 = 0x05, ///< 0 or 1, read only
    Taskbar = 0x06,
    Boundary = 0x07,
    CareState8 = 0x08,  ///< 0 or 1, read only
    CareSwitch9 = 0x09, ///< 0 or 1
    CareMode = 0x0A,
    CareFunctionB = 0x0B,
    CareIsp = 0x0D,
    CareFunctionE = 0x0E,
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
    SceneMode = 0x22,        ///< 1 to 90: odd with factory parameters, the next even with the user's
    Gamma = 0x26,            ///< option 0 to 7
    RefreshRate = 0x30,      ///< 0 or 1: the display of the refresh rate, as the other game aids
    RefreshRatePlace = 0x31, ///< option 0 to 3
    CrosshairColor = 0x32,   ///< option 0 to 7
    StopwatchTime = 0x33,    ///< option 1 to 4
    CrosshairShape = 0x34,   ///< option 1 to 6
    StopwatchPlace = 0x35,   ///< option 0 to 3
    GameTimeLength = 0x36,   ///< option 1 to 4
    GameTimePlace = 0x37,    ///< option 0 to 3
    AlignmentAid = 0x3B,     ///< 0 or 1
    Crosshair = 0x3D,        ///< 0 or 1
    Stopwatch = 0x3E,        ///< 0 or 1
    GameTime = 0x3F,         ///< 0 or 1
    ColorEnhance = 0x40,     ///< 0 to 10
    ContrastEnhance = 0x41,  ///< 0 to 5
    BlackLevel = 0x42,       ///< 0 to 100
    AdaptiveSync = 0x43,     ///< 0 or 1
    SuperResolution = 0x44,  ///< 0 to 5
    NightVision = 0x45,      ///< option 0 to 4
    HaloControl = 0x46,      ///< 0 to 100
    LocalDimming = 0x47,     ///< option 2 to 6: the monitor numbers these from 2
    MotionTech = 0x48,       ///< option 2 to 8: the monitor numbers these from 2
    GrayResponse = 0x49,     ///< option 0 to 4
    Hdr = 0x4A,              ///< option 0 to 3
    InputSignal = 0x57,      ///< option 0 to 5
    SaturationRed = 0x59,    ///< 0 to 100, as all hues and saturations; both run R, Y, G, C, B, M
    SaturationYellow = 0x5A,
    SaturationGreen = 0x5B,
    SaturationCyan = 0x5C,
    SaturationBlue = 0x5D,
    SaturationMagenta = 0x5E,
    UsbSwitch = 0x5F,           ///< Type-C 0, Type-B 1
    OutputRange = 0x60,         ///< option 0 to 2
    QuickBoot = 0x61,           ///< 0 or 1
    HawkEyeVision = 0x63,       ///< 0 or 1
    AccessoryBrightness = 0x72, ///< 0 to 10, of the LED-matrix accessory
    AccessoryLevel = 0x73,      ///< 0 to 10, how long the accessory plays an animation
    Sharpness = 0x87,           ///< 0 to 8; the snapshot marks an unread scene block by 10
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
    MenuLock = 0xC4,      ///< 0 or 1
    PowerLed = 0xC5,      ///< option 1 to 4: the monitor numbers these from 1
    PowerSaving = 0xC6,   ///< option 0 to 2
    ResetFactory = 0xC7,  ///< 0, write only
    OsdLanguage = 0xCC,   ///< language number 1 to 23
    UsbPower = 0xD5,      ///< 0 or 1
    DpAltMode = 0xD6,     ///< 0 or 1
    DpTypeC = 0xD7,       ///< 5.4G 0, 8.1G 1
    LowBlueLight = 0xD8,  ///< 0 to 4
    Cec = 0xD9,           ///< 0 or 1
    LightSensor = 0xDA,   ///< 0 or 1
    AiDualMode = 0xE0,    ///< 0 or 1
    NoSignalTimer = 0xE3, ///< minutes
    GameRush = 0xE4,      ///< 0 or 1
    AudioMode = 0xEA,     ///< option 0 to 2
    GravitySensor = 0xEB, ///< 0 or 1
    Paper = 0xEC,         ///< option 0 to 4
    Capability = 0xED,    ///< the capability word, read only (see below)
    Firmware = 0xEE,      ///< major in the high byte, minor in the low byte, read only
    OfficeArea = 0xEF,    ///< maximum and current value are the office area's sizes;
                          ///< written: a paper's width in millimetres, or its height with bit 15
    Alignment = 0xF1,     ///< option 0 to 3
    Ruler = 0xF2,         ///< option 0 to 2
    AudioVolume = 0xF6,   ///< 0 to 100
    AudioMute = 0xF7,     ///< 0 or 1
    Composition = 0xF8,   ///< option 0 to 5
    RestTimer = 0xF9,     ///< option 0 to 8
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
