#include "ddc_protocol/scenemodes.h"

#include <QtGlobal>

#include "ddc_protocol/devicestate.h"

namespace {

using enum SceneFamily;
constexpr auto kExtra = Capability::ExtraScene;
constexpr auto kMpcs = Capability::MpcsMotion;

// clang-format off
constexpr SceneMode kSceneModes[] = {
    {Scene, QT_TRANSLATE_NOOP("QObject", "Zelmar Mode"), 23, "zelmar", QT_TRANSLATE_NOOP("QObject", "The maker's own tuning."), kExtra},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Standard Mode"), 1, "standard", QT_TRANSLATE_NOOP("QObject", "A balanced picture for every day.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "CAD/CAM Mode"), 3, "cad_cam", QT_TRANSLATE_NOOP("QObject", "Fine lines and clear edges for drawings.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Animate Mode"), 5, "animate", QT_TRANSLATE_NOOP("QObject", "Vivid colours for animation.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Art Design Mode"), 7, "art_design", QT_TRANSLATE_NOOP("QObject", "True colours for design work.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Movie Mode"), 9, "movie", QT_TRANSLATE_NOOP("QObject", "Deep contrast for films.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Reading Mode"), 11, "reading", QT_TRANSLATE_NOOP("QObject", "A soft page for long texts.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Night Mode"), 13, "night", QT_TRANSLATE_NOOP("QObject", "A dim picture for dark rooms.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Eye Care Mode"), 15, "eye_care", QT_TRANSLATE_NOOP("QObject", "Less blue light for long days.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Light Programme"), 17, "light_programme", QT_TRANSLATE_NOOP("QObject", "For code on a light ground.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "Dark Programme"), 19, "dark_programme", QT_TRANSLATE_NOOP("QObject", "For code on a dark ground.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "E-Book Mode"), 21, "e_book", QT_TRANSLATE_NOOP("QObject", "Black and white, like paper.")},
    {Scene, QT_TRANSLATE_NOOP("QObject", "MPCS/ULL FPS"), 25, "mpcs_fps", QT_TRANSLATE_NOOP("QObject", "The sharpest motion for shooters."), kMpcs},
    {Scene, QT_TRANSLATE_NOOP("QObject", "MPCS/LD"), 27, "mpcs_ld", QT_TRANSLATE_NOOP("QObject", "Sharp motion with local dimming."), kMpcs},

    {MacView, QT_TRANSLATE_NOOP("QObject", "Display P3 Mode"), 29, "display_p3", QT_TRANSLATE_NOOP("QObject", "Matches notebooks with a Display P3 screen.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "sRGB(2.2) Mode"), 31, "srgb_22", QT_TRANSLATE_NOOP("QObject", "sRGB primaries with gamma 2.2.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "DCI-P3(D65)"), 33, "dci_p3_d65", QT_TRANSLATE_NOOP("QObject", "Cinema colours at a D65 white.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "HDTV Video"), 35, "hdtv_video", QT_TRANSLATE_NOOP("QObject", "High-definition television.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "NTSC Video"), 37, "ntsc_video", QT_TRANSLATE_NOOP("QObject", "NTSC television.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "PAL & SECAM"), 39, "pal_secam", QT_TRANSLATE_NOOP("QObject", "PAL and SECAM television.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "Print(P3-D50)"), 41, "print_p3_d50", QT_TRANSLATE_NOOP("QObject", "Proofs under a D50 light.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "Photo(P3-D65)"), 43, "photo_p3_d65", QT_TRANSLATE_NOOP("QObject", "Photographs at a D65 white.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "Web(sRGB)"), 45, "web_srgb", QT_TRANSLATE_NOOP("QObject", "What most visitors of a page see.")},
    {MacView, QT_TRANSLATE_NOOP("QObject", "AdobeRGB"), 47, "adobe_rgb", QT_TRANSLATE_NOOP("QObject", "A wide gamut for photographs.")},

    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "Native Mode"), 49, "native", QT_TRANSLATE_NOOP("QObject", "Everything that the panel can show.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "EBU Mode"), 51, "ebu", QT_TRANSLATE_NOOP("QObject", "European broadcasting primaries.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "SMPTE-C Mode"), 53, "smpte_c", QT_TRANSLATE_NOOP("QObject", "American broadcasting primaries.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "Rec.709 Mode"), 55, "rec_709", QT_TRANSLATE_NOOP("QObject", "High-definition video work.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "DICOM Mode"), 57, "dicom", QT_TRANSLATE_NOOP("QObject", "The grey scale of medical pictures.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "Paper Mode"), 59, "paper", QT_TRANSLATE_NOOP("QObject", "The white of printed paper.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "Adobe Mode"), 61, "adobe", QT_TRANSLATE_NOOP("QObject", "A wide gamut for photographs.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "sRGB Mode"), 63, "srgb", QT_TRANSLATE_NOOP("QObject", "The standard of the web.")},
    {ColorSpace, QT_TRANSLATE_NOOP("QObject", "DCI-P3 Mode"), 65, "dci_p3", QT_TRANSLATE_NOOP("QObject", "The colours of the cinema.")},

    {PrintMode, QT_TRANSLATE_NOOP("QObject", "AdobeRGB(D50)"), 81, "adobe_rgb_d50", QT_TRANSLATE_NOOP("QObject", "A wide gamut under a D50 light.")},
    {PrintMode, QT_TRANSLATE_NOOP("QObject", "Softproof"), 83, "softproof", QT_TRANSLATE_NOOP("QObject", "How the print will look.")},
    {PrintMode, QT_TRANSLATE_NOOP("QObject", "Softproof(D55)"), 85, "softproof_d55", QT_TRANSLATE_NOOP("QObject", "How the print will look under a D55 light.")},
    {PrintMode, QT_TRANSLATE_NOOP("QObject", "Softproof(D58)"), 87, "softproof_d58", QT_TRANSLATE_NOOP("QObject", "How the print will look under a D58 light.")},
};
// clang-format on

struct FamilyRange
{
    int first;
    int last;
    SceneFamily family;
};

constexpr FamilyRange kFamilyRanges[] = {{1, 28, Scene}, {29, 48, MacView}, {49, 80, ColorSpace}, {81, 90, PrintMode}};

} // namespace

std::span<const SceneMode> sceneModes()
{
    return kSceneModes;
}

std::vector<const SceneMode *> sceneModesOf(SceneFamily family, const DeviceState &state)
{
    std::vector<const SceneMode *> modes;
    for (const SceneMode &mode : kSceneModes) {
        if (mode.family == family && state.has(mode.needs))
            modes.push_back(&mode);
    }
    return modes;
}

const SceneMode *sceneModeOf(int value)
{
    for (const SceneMode &mode : kSceneModes) {
        if (value == mode.value || value == mode.value + 1)
            return &mode;
    }
    return nullptr;
}

std::optional<SceneFamily> familyOfSceneValue(int value)
{
    for (const FamilyRange &range : kFamilyRanges) {
        if (value >= range.first && value <= range.last)
            return range.family;
    }
    return {};
}
