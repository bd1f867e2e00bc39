#pragma once

#include <utility>

// What the controls of every page of monitor settings make of the monitor, written down by hand.

enum PageName { Scene, Picture, Game, Office, Io, System, Windows, Care, Lighting, kPageNames };

/// The entries of the four scene families: "label=value|label=value". No monitor has all.
inline const char *const kScenes[] = {
    "Zelmar Mode=23|Standard Mode=1|CAD/CAM Mode=3|Animate Mode=5|Art Design Mode=7|Movie Mode=9|Reading Mode=11|"
    "Night Mode=13|Eye Care Mode=15|Light Programme=17|Dark Programme=19|E-Book Mode=21|MPCS/ULL FPS=25|MPCS/LD=27",
    "Display P3 Mode=29|sRGB(2.2) Mode=31|DCI-P3(D65)=33|HDTV Video=35|NTSC Video=37|PAL & SECAM=39|Print(P3-D50)=41|"
    "Photo(P3-D65)=43|Web(sRGB)=45|AdobeRGB=47",
    "Native Mode=49|EBU Mode=51|SMPTE-C Mode=53|Rec.709 Mode=55|DICOM Mode=57|Paper Mode=59|Adobe Mode=61|"
    "sRGB Mode=63|DCI-P3 Mode=65",
    "AdobeRGB(D50)=81|Softproof=83|Softproof(D55)=85|Softproof(D58)=87"};

/// The values that the options of a group send on a code: "label=value|label=value".
struct Options
{
    PageName page;
    const char *group;
    const char *code;
    const char *values;
};
inline const char *const kSwitch = "         Enable=1|         Disable=0";
inline const char *const kAlwaysOff = "         Enable=0|         Disable=0";
inline const char *const kGrey = "Close=0|Level1=1|Level2=2|Level3=3|Topspeed=4";
inline const char *const kMotion = "Close=2|Low=3|Medium=4|High=5|Ull-Level1=6|Ull-Level2=7|Ull-Level3=8";
inline const char *const kLevels = "Close=0|Low=1|Medium=2|High=3";
inline const char *const kRange = "RGB Auto=0|RGB Limit=1|RGB Full=2";
inline const char *const kCorner = "Top Left=0|Top Right=1|Bottom Left=2|Bottom Right=3";
inline const char *const kColor = "Red=0|Yellow=1|Green=2|Cyan=3|Blue=4|Purple=5|White=6|Auto=7";
inline const char *const kFive = "Level1=0|Level2=1|Level3=2|Level4=3|Level5=4";
inline const char *const kLampLevels = "Soft=0|Standard=1|Highlight=2";
inline const Options kOptions[] = {
    {Scene, "Gama", "26", "1.6=0|1.8=1|2.0=2|2.2=3|2.4=4|2.6=5|CAD/CAM=7"},
    {Scene, "Gray Response", "49", kGrey},
    {Scene, "Light Sensor", "da", "Close=0|Open=1"},
    {Scene, "Localdimming", "47", "Close=2|Low=3|Smooth=4|Medium=5|Strong=6"},
    {Scene, "DyDs TECH", "48", kMotion},
    {Scene, "Color Temperature", "14",
     "5000K=0|5500K=1|6300K=2|6500K=3|7000K=4|7500K=5|9300K=6|Night View C.T=7|User1=8|User2=9|User3=10"},
    {Picture, "Game Rush", "e4", kSwitch},
    {Picture, "DyDs", "48", kAlwaysOff},
    {Picture, "DyDs", "48", kMotion},
    {Picture, "Night Vision", "45", "Close=0|Level1=1|Level2=2|Auto-L1=3|Auto-L2=4"},
    {Picture, "Dynamic OD", "49", kGrey},
    {Picture, "HDR", "4a", "Close=0|Auto=1|Game=2|Movie=3"},
    {Picture, "Localdimming", "47", kAlwaysOff},
    {Picture, "Localdimming", "47", "Close=2|Low=3|Smooth=4|Medium=5|High=6"},
    {Picture, "Adaptive-Sync", "43", kSwitch},
    {Game, "Game Rush", "e4", kSwitch},
    {Game, "Game Crosshair", "3d", kSwitch},
    {Game, "Crosshair Shape", "34", "Cross=1|Open cross=2|Dotted cross=3|Ring=4|Caret=5|Dot=6"},
    {Game, "Crosshair Color", "32", kColor},
    {Game, "Crosshair Place", "fa", "Top=0|Middle+=1|Middle=2|Middle-=3|Bottom=4"},
    {Game, "HawkEye Vision", "63", kSwitch},
    {Game, "HawkEye Zoom", "4d", "x1.5=0|x2=1|x4=2"},
    {Game, "HawkEye Brightness", "64", kFive},
    {Game, "HawkEye Contrast", "65", kFive},
    {Game, "HawkEye Sharpness", "66", kFive},
    {Game, "Night Vision", "45", "Close=0|Level1=1|Level2=2|Auto-L1=3|Auto-L2=4"},
    {Game, "Refresh Rate", "30", kSwitch},
    {Game, "Refresh Rate Place", "31", kCorner},
    {Game, "Stopwatch", "3e", kSwitch},
    {Game, "Stopwatch Time", "33", "15 min=1|30 min=2|60 min=3|90 min=4"},
    {Game, "Stopwatch Place", "35", kCorner},
    {Game, "Game Time", "3f", kSwitch},
    {Game, "Game Time Length", "36", "30 min=1|40 min=2|50 min=3|60 min=4"},
    {Game, "Game Time Place", "37", kCorner},
    {Game, "Dynamic Crosshair", "39", kSwitch},
    {Game, "Dynamic Crosshair Color", "38", kColor},
    {Game, "Dynamic Crosshair Size", "3a", "Small=0|Medium=1|Large=2"},
    {Game, "Focus Dimming", "4b", kSwitch},
    {Game, "Focus Dimming Level", "4c", "Low=0|Medium=1|High=2"},
    {Game, "AI Dual Mode", "e0", "Close=0|Open=1"},
    {Office, "Paper", "ec", "Close=0|Paper_A4=1|Paper_B5=2|Paper_B6=3|Custom Size=4"},
    {Office, "Alignment", "f1", "Close=0|Alignment_4=1|Alignment_6=2|Alignment_9=3"},
    {Office, "Ruler", "f2", "Angle close=0|Ruler=1|Angle Ruler=2"},
    {Office, "Alignment Aid", "3b", "Close=0|Open=1"},
    {Office, "Composition", "f8", "Close=0|Triangle=1|Frame=2|Golden Section=3|Trichotomy=4|Round=5"},
    {Office, "Eyeshield Remind", "f9",
     "Close=0|30s=1|1 Hour=2|1.5 Hour=3|2 Hour=4|2.5 Hour=5|3 Hour=6|3.5 Hour=7|4 Hour=8"},
    {Office, "AI Dual Mode", "e0", "Close=0|Open=1"},
    {Io, "Output Range", "60", kRange},
    {Io, "Quick Boot", "61", kSwitch},
    {Io, "USB Power", "d5", kSwitch},
    {Io, "DP Alt Mode", "d6", kSwitch},
    {Io, "USB Switch", "5f", "Type-C=0|Type-B=1"},
    {Io, "DP/Type-C", "d7", "5.4G=0|8.1G=1"},
    {Io, "Input Signal", "57", "Auto=0|DP1=1|DP2=2|Type-C=3|HDMI1=4|HDMI2=5"},
    {Io, "CEC", "d9", kSwitch},
    {System, "Output Range", "60", kRange},
    {System, "Power Saving", "c6", "Close=0|Level1=1|Level2=2"},
    {System, "Audio Mute", "f7", "Close=0|Open=1"},
    {System, "Audio Mode", "ea", "Standard=0|Movie=1|Convo=2"},
    {System, "Power LED", "c5", "Close=1|Level1=2|Level2=3|Level3=4"},
    {System, "Gravity Sensor", "eb", "Close=0|Open=1"},
    {System, "OSD Language", "cc",
     "简体中文=1|English=2|한국어=3|عربى=4|Türkçe=23|Deutsch=6|Nederland=7|Suomi=8|Français=9|Ελληνικά=10|Indonesia=11|"
     "Italiano=12|日本語=13|Malaysia=14|Polskie=15|Português=16|Pусский=17|Español=18|ไทย=19|Українська=20|"
     "Tiếng Việt=21|繁體中文=22|Portugues do Brasilazil=5"},
    {System, "Menu Lock", "c4", kSwitch},
    {Windows, "Multi-window", "50", "Close=0|PBP=2|PIP=1"},
    {Windows, "Size", "54", "Small=0|Medium=1|Large=2"}, // of PIP, which is on by then
    {Care, "Pixel Shift", "01", "Close=0|Slow=1|Normal=2|Fast=3"},
    {Care, "Still Picture", "02", kSwitch},
    {Care, "Detection Rate", "03", "Slow=0|Normal=1|Fast=2"},
    {Care, "Static Icon", "04", kLevels},
    {Care, "Taskbar", "06", kLevels},
    {Care, "Boundary", "07", kLevels},
    {Care, "Care Reminder", "09", kSwitch},
    {Care, "Care Mode", "0a", "Auto=0|Manual=1"},
    {Care, "Care Interval", "0b", "4 Hour=0|8 Hour=1|12 Hour=2|24 Hour=3"},
    {Care, "ISP", "0d", kSwitch},
    {Windows, "Place", "55", "Top Left=0|Top Right=1|Bottom Left=2|Bottom Right=3"},
    {Lighting, "Light Mode", "75", "Close=0|Normal=1|Global Rhythm=3|Eye Care=5"},
    {Lighting, "Light Level", "7e", kLampLevels}, // each works in its modes only
    {Lighting, "Light Mode", "75", "2 Zone Rhythm=4"},
    {Lighting, "Rhythm Source", "83", "Sound=0|Screen=1"},
    {Lighting, "Rhythm Level", "84", "Level1=0|Level2=1|Level3=2|Level4=3|Level5=4"},
    {Lighting, "Light Mode", "75", "Effect=2"},
    {Lighting, "Light Effect", "76", "Breathe=0|Flow=1|Rainbow=2|Wave=3|Flicker=4"},
    {Lighting, "Light Direction", "85", "Clockwise=0|Counterclockwise=1"},
    {Lighting, "Soft Changes", "8d", kSwitch},
    {Lighting, "Light Color", "79", "Red=0|Yellow=1|Green=2|Cyan=3|Blue=4|Purple=5|White=6|Auto=7|Custom=8"},
    {Lighting, "Front Color", "7f", kColor},
    {Lighting, "Rear Color", "80", kColor},
    {Lighting, "Light Timer", "8c", "Close=0|30 min=1|1 Hour=2|2 Hour=3"},
    {Lighting, "Dark with the Screen", "8b", kSwitch},
    {Lighting, "Light in Standby", "8a", kSwitch},
    {Lighting, "Lamp Belt Color", "e5", kColor},
    {Lighting, "Lamp Belt Brightness", "e6", kLampLevels},
    {Lighting, "Lamp Belt Effect", "e7", "Normal=0|Breathe=1|Flicker=2|Water=3|Star=4|Pearl=5"},
    {Lighting, "Lamp Belt Front Color", "e8", kColor},
    {Lighting, "Lamp Belt Rear Color", "e9", kColor},
};

/// The sliders of each page: "name code lowest-highest", and behind it when a value is sent and stored: on every move,
/// sent on (r)elease only, or also (s)tored then.
inline const std::pair<PageName, const char *> kSliders[] = {
    {Scene, "Brightness 10 0-100|CR Enhance 41 0-5 r|Contrast 12 0-100|Super Resolution 44 0-5 r|Sharpness 87 0-8|"
            "Black Level 42 0-100 r|Color Enchance 40 0-10 r|Low Blue Light d8 0-4|Halo Control 46 0-100 r"},
    {Scene, "Night View C.T 15 0-100 r|UserR 16 0-100|UserG 17 0-100|UserB 18 0-100"},
    {Scene, "Saturation_R 59 0-100|Saturation_Y 5a 0-100|Saturation_G 5b 0-100|Saturation_C 5c 0-100|"
            "Saturation_B 5d 0-100|Saturation_M 5e 0-100"},
    {Scene, "Hue_R 9b 0-100|Hue_Y 9c 0-100|Hue_G 9d 0-100|Hue_C 9e 0-100|Hue_B 9f 0-100|Hue_M a0 0-100"},
    {Picture,
     "Color Enhance 40 0-10 s|CR Enhance 41 0-5 s|Shadow Balance 42 0-100 s|SR 44 0-5 s|Halo Control 46 0-100 s"},
    {System, "Show Time(s) c0 5-100|H-Position c1 0-100|V-Position c2 0-100|Transparency c3 0-100|"
             "No Signal Timer e3 0-100|Audio Volume f6 0-100"},
    {Lighting, "Light Brightness 77 0-100|Light Speed 78 0-10|Light Temperature 7d 0-100|Front Brightness 81 0-100|"
               "Rear Brightness 82 0-100"},
};
