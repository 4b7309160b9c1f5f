// The game as it is installed, on a desktop without a screen.
#pragma once

#include <string>

#include "platform/scripted/scripted_desktop.h"

namespace zarpel {

// Full path of a file of the installation.
inline std::string PathOf(const std::string& name) { return "C:\\Zarpel\\" + name; }
inline std::string CardPicture(int carta) { return PathOf("carta" + std::to_string(carta) + ".png"); }

// Its `Files` hold the card list, the card pictures, the card back and both preference files.
class InstalledDesktop : public ScriptedDesktop {
  public:
    explicit InstalledDesktop(unsigned seed = 1);
};

}  // namespace zarpel
