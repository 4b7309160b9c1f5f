// What a screen reader finds in the game's windows: pictures that say what they show and can be pressed, and
// no trace of hidden ones.
#pragma once

namespace zarpel {

// Called once, before the first window is made.
void InstallAccessibility();

}  // namespace zarpel
