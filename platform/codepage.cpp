#include "platform/codepage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zarpel {
namespace {

constexpr std::uint32_t kFirstMoved = 0x80;

// What the bytes 0x80 to 0x9F stand for; every other byte is the character of its own number.
constexpr std::array<std::uint32_t, 32> kMoved = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::uint32_t CharacterOf(unsigned char byte) {
    const bool moved = byte >= kFirstMoved && byte < kFirstMoved + kMoved.size();
    return moved ? kMoved[byte - kFirstMoved] : byte;
}

std::optional<char> ByteOf(std::uint32_t character) {
    const auto moved = std::find(kMoved.begin(), kMoved.end(), character);
    if (moved != kMoved.end()) return static_cast<char>(kFirstMoved + (moved - kMoved.begin()));
    const bool same =
        character < kFirstMoved || (character >= kFirstMoved + kMoved.size() && character < 0x100);
    return same ? std::optional(static_cast<char>(character)) : std::nullopt;
}

// All characters of the code page lie below U+10000, so three bytes are the longest form met here.
void AppendUtf8(std::string& text, std::uint32_t character) {
    const auto tail = [](std::uint32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); };
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    if (character < 0x800) {
        text += static_cast<char>(0xC0 | character >> 6);
    } else {
        text += static_cast<char>(0xE0 | character >> 12);
        text += tail(character >> 6);
    }
    text += tail(character);
}

// The lowest character that needs a form of so many bytes. A longer form than needed is not UTF-8.
constexpr std::array<std::uint32_t, 4> kLowest = {0, 0, 0x80, 0x800};

// Takes the next character off `text`. Nothing for a malformed one, or one of four bytes, which the code page
// lacks.
std::optional<std::uint32_t> TakeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first < 0x80 ? 1 : (first & 0xE0) == 0xC0 ? 2 : (first & 0xF0) == 0xE0 ? 3 : 0;
    if (length == 0 || length > text.size()) return std::nullopt;
    std::uint32_t character = length == 1 ? first : length == 2 ? first & 0x1FU : first & 0x0FU;
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) return std::nullopt;
        character = character << 6 | (next & 0x3FU);
    }
    if (character < kLowest.at(length)) return std::nullopt;
    text.remove_prefix(length);
    return character;
}

}  // namespace

std::string Utf8FromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) AppendUtf8(text, CharacterOf(static_cast<unsigned char>(byte)));
    return text;
}

std::optional<std::string> Windows1252FromUtf8(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const auto character = TakeCharacter(text);
        const auto byte = character ? ByteOf(*character) : std::nullopt;
        if (!byte) return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

}  // namespace zarpel
