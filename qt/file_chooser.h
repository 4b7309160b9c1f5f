// The choosers of a file to open and to save, in Spanish on every system and as large as the game's letters
// ask.
#pragma once

#include <QWidget>

#include "platform/controls.h"
#include "qt/game_paths.h"

namespace zarpel {

// Each blocks until the player has answered; `owner` is the window it stands above, or null. They do what
// Desktop::ShowOpen and Desktop::ShowSave say.
bool ShowOpen(QWidget* owner, const GamePaths& paths, ChooserState& dialog);
bool ShowSave(QWidget* owner, const GamePaths& paths, ChooserState& dialog);

}  // namespace zarpel
