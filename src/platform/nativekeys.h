#pragma once

#include <cstdint>

#include <Qt>

/// The virtual-key code of Windows for a key code of the toolkit without modifiers; 0 for a key that has none here.
std::uint32_t nativeKey(std::uint32_t key);

/// The platform's kModifier... bits for the toolkit's modifiers.
std::uint32_t nativeModifiers(Qt::KeyboardModifiers modifiers);
