// A file of the game as its lines, to say in a test what a damaged one leaves behind.
#pragma once

#include <string>
#include <vector>

namespace zarpel {

using Lines = std::vector<std::string>;

inline Lines LinesOf(const std::string& file) {
    Lines lines;
    for (std::size_t at = 0, end = 0; (end = file.find("\r\n", at)) != std::string::npos; at = end + 2) {
        lines.push_back(file.substr(at, end - at));
    }
    return lines;
}

inline std::string FileOf(const Lines& lines) {
    std::string file;
    for (const std::string& line : lines) file += line + "\r\n";
    return file;
}

// The values of a file that was cut after so many bytes, on top of the `old` ones: a text or a flag counts
// when it is whole, a number as far as it goes. `damaged`: the last value is missing.
inline Lines AfterCut(const Lines& lines, std::size_t bytes, Lines old, bool& damaged) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string got = lines[i].substr(0, bytes);
        const bool number = lines[i][0] != '"' && lines[i][0] != '#';
        damaged = number ? got.empty() : got != lines[i];
        if (damaged) break;
        old[i] = got;
        bytes -= std::min(bytes, lines[i].size() + 2);
    }
    return old;
}

}  // namespace zarpel
