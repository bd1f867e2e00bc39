#pragma once

#include <QString>

namespace platform {

// The helper rests on wchar_t being UTF-16 here.
static_assert(sizeof(wchar_t) == sizeof(char16_t));

/// The text as the W functions take it; valid as long as the string is neither changed nor destroyed.
inline const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

} // namespace platform
