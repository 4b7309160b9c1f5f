// What the player wrote after the program's name. Read before there is a toolkit, so that questions are
// answered on a terminal without a display.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zarpel {

struct CommandLine {
    std::optional<std::string> Match = {};  // the saved match to start with, as written
    std::string Answer;                     // what to print instead of starting
    bool Wrong = false;                     // the answer is an error
};

// `words` are those after the program's name.
CommandLine ReadCommandLine(const std::vector<std::string>& words);

}  // namespace zarpel
