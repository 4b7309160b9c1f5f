// Message boxes, the input box and the colour chooser, in Spanish on every system.
#pragma once

#include <string>

#include "platform/desktop.h"
#include "qt/placing.h"

namespace zarpel {

// Each blocks until the player has answered, and does what the call of Desktop of the same name says.
Answer Show(const Site& site, const Message& message, const std::string& applicationTitle);
std::string InputBox(const Site& site, const std::string& prompt, const std::string& title,
                     const std::string& proposed, const Label& shownBy);
bool ShowColor(const Site& site, ChooserState& dialog);

}  // namespace zarpel
