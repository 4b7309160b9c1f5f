// Windows-1252, the code page of the game's files, and UTF-8, the encoding of every text inside the game.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zarpel {

// Every byte string has a text: the five bytes that the code page leaves undefined become the control
// characters of the same number, and go back to the same bytes.
std::string Utf8FromWindows1252(std::string_view bytes);

// Nothing when the text holds a character that the code page lacks, or is not UTF-8.
std::optional<std::string> Windows1252FromUtf8(std::string_view text);

}  // namespace zarpel
