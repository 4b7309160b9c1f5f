// The choosers of a file to open and to save, in Spanish on every system and as large as the game's letters
// ask.
#pragma once

#include "platform/controls.h"
#include "qt/game_paths.h"
#include "qt/placing.h"

namespace zarpel {

// Each blocks until the player has answered, and does what the call of Desktop of the same name says.
bool ShowOpen(const Site& site, const GamePaths& paths, ChooserState& dialog);
bool ShowSave(const Site& site, const GamePaths& paths, ChooserState& dialog);

}  // namespace zarpel
