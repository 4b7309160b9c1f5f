// The end of a game whose own files are missing or damaged.
#pragma once

#include <string>

#include "platform/desktop.h"

namespace zarpel {

// Exit status of a program that could not go on.
constexpr int kInstalacionDanada = 1;

// Shows `texto` and the advice to install the program again, then ends the program. Saves nothing.
[[noreturn]] void ErrorGrave(Desktop& desktop, const std::string& texto);

}  // namespace zarpel
