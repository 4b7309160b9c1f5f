// The three objects that the whole game shares. They are made anew each time the main window loads (at the
// start and when a saved match is opened) and live until the next load.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "engine/classnaipe.h"
#include "engine/classzarpel.h"

namespace zarpel {

extern std::optional<classnaipe> Naipes;
extern std::optional<classzarpel> Reparto;
extern std::string ArchivoNaipes;  // full path of the card list file

// The sum, or the end of what a record holds: a saved match may stand at either end already.
std::int16_t Mas(std::int16_t antes, int mas);

}  // namespace zarpel
