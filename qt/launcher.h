// Starts other programs.
#pragma once

#include <string>

#include "qt/game_paths.h"

namespace zarpel {

// As Desktop::Run. A command line that is, whole, the path of a file starts that file, blanks and all;
// otherwise blanks separate the program and its arguments, and double quotes, or apostrophes where there are
// none, keep blanks together.
void Run(const std::string& commandLine, const GamePaths& paths);

}  // namespace zarpel
