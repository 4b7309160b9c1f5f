// Message boxes, the input box and the colour chooser, in Spanish on every system.
#pragma once

#include <QWidget>
#include <string>

#include "platform/desktop.h"

namespace zarpel {

// Each blocks until the player has answered; `owner` is the window it stands above, or null. They do what the
// calls of Desktop of the same names say.
Answer Show(QWidget* owner, const Message& message, const std::string& applicationTitle);
std::string InputBox(QWidget* owner, const std::string& prompt, const std::string& title,
                     const std::string& proposed);
bool ShowColor(QWidget* owner, ChooserState& dialog);

}  // namespace zarpel
