// Keys as the game wants them: which key, not which character.
#pragma once

#include <QKeyEvent>

namespace zarpel {

// The key code (keys.h) of a key press; kKeyNone for keys that have none in the game, those of the number pad
// included.
int KeyCodeOf(const QKeyEvent& event);

// The sum of the shift masks (keys.h).
int ShiftMaskOf(Qt::KeyboardModifiers modifiers);

}  // namespace zarpel
