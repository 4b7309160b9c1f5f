// Colour codes: signed 32-bit numbers that name either an RGB colour, laid out as 0x00BBGGRR (red in the low
// byte), or, with the top bit set, a colour of the window system's palette (0x80000000 + number, 0 to 24).
#pragma once

#include <cstdint>

namespace zarpel {

using ColorCode = std::int32_t;

constexpr ColorCode Rgb(int red, int green, int blue) { return red | green << 8 | blue << 16; }

// Colours of the window system's palette that the game uses, by their numbers, and the highest there is.
enum class Palette : std::uint32_t { WindowText = 8, HighlightText = 14, ButtonFace = 15, GrayText = 17 };
constexpr std::uint32_t kLastPaletteNumber = 24;

constexpr ColorCode SystemColor(Palette color) {
    return static_cast<ColorCode>(0x80000000U | static_cast<std::uint32_t>(color));
}

// True for a palette colour (the top bit is set).
constexpr bool IsSystemColor(ColorCode code) { return code < 0; }

// The palette number of a palette colour.
constexpr std::uint32_t PaletteNumberOf(ColorCode code) {
    return static_cast<std::uint32_t>(code) & 0x7FFFFFFFU;
}

// False for the codes that the window system refuses: an RGB colour of more than 24 bits, or a palette number
// that does not exist.
constexpr bool IsColorCode(ColorCode code) {
    return IsSystemColor(code) ? PaletteNumberOf(code) <= kLastPaletteNumber : code <= 0xFFFFFF;
}

}  // namespace zarpel
