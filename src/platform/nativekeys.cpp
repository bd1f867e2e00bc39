#include "platform/nativekeys.h"

#include "platform/nativemessage.h"

namespace {

/// Keys that follow one another on both sides.
struct KeyRange
{
    Qt::Key first;
    Qt::Key last;
    std::uint32_t native; ///< of the first
};

constexpr KeyRange kKeys[] = {
    {Qt::Key_Escape, Qt::Key_Escape, 27},
    {Qt::Key_Tab, Qt::Key_Tab, 9},
    {Qt::Key_Backtab, Qt::Key_Backtab, 9},
    {Qt::Key_Backspace, Qt::Key_Backspace, 8},
    {Qt::Key_Return, Qt::Key_Return, 13},
    {Qt::Key_Enter, Qt::Key_Enter, 13},
    {Qt::Key_Insert, Qt::Key_Insert, 45},
    {Qt::Key_Delete, Qt::Key_Delete, 46},
    {Qt::Key_Pause, Qt::Key_Pause, 19},
    {Qt::Key_Print, Qt::Key_Print, 42},
    {Qt::Key_Clear, Qt::Key_Clear, 12},
    {Qt::Key_Home, Qt::Key_Home, 36},
    {Qt::Key_End, Qt::Key_End, 35},
    {Qt::Key_Left, Qt::Key_Down, 37}, // left, up, right, down
    {Qt::Key_PageUp, Qt::Key_PageDown, 33},
    {Qt::Key_F1, Qt::Key_F24, 112},
    {Qt::Key_Space, Qt::Key_Space, 32},
    {Qt::Key_Asterisk, Qt::Key_Minus, 106}, // asterisk, plus, comma, minus: the operators of the numeric pad
    {Qt::Key_Slash, Qt::Key_Slash, 111},
    {Qt::Key_VolumeDown, Qt::Key_VolumeDown, 174},
    {Qt::Key_VolumeMute, Qt::Key_VolumeMute, 173},
    {Qt::Key_VolumeUp, Qt::Key_VolumeUp, 175},
    {Qt::Key_MediaPlay, Qt::Key_MediaPlay, 179},
    {Qt::Key_MediaStop, Qt::Key_MediaStop, 178},
    {Qt::Key_MediaPrevious, Qt::Key_MediaPrevious, 177},
    {Qt::Key_MediaNext, Qt::Key_MediaNext, 176},
    {Qt::Key_0, Qt::Key_9, '0'},
    {Qt::Key_A, Qt::Key_Z, 'A'},
};

struct ModifierBit
{
    Qt::KeyboardModifier modifier;
    std::uint32_t native;
};

constexpr ModifierBit kModifiers[] = {{Qt::ShiftModifier, platform::kModifierShift},
                                      {Qt::ControlModifier, platform::kModifierControl},
                                      {Qt::AltModifier, platform::kModifierAlt},
                                      {Qt::MetaModifier, platform::kModifierWin}};

} // namespace

std::uint32_t nativeKey(std::uint32_t key)
{
    for (const KeyRange &range : kKeys) {
        if (key >= static_cast<std::uint32_t>(range.first) && key <= static_cast<std::uint32_t>(range.last))
            return range.native + key - static_cast<std::uint32_t>(range.first);
    }
    return 0;
}

std::uint32_t nativeModifiers(Qt::KeyboardModifiers modifiers)
{
    std::uint32_t native = 0;
    for (const ModifierBit &bit : kModifiers) {
        if (modifiers.testFlag(bit.modifier))
            native |= bit.native;
    }
    return native;
}
