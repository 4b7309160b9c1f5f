#include "tools/play/installation.h"

#include <fstream>
#include <iterator>

namespace zarpel {

InstalledDesktop::InstalledDesktop(unsigned seed) : ScriptedDesktop(seed) {
    constexpr int kCards = 40;
    constexpr std::size_t kRecord = 16;
    std::string list;
    for (int carta = 1; carta <= kCards; ++carta) {
        const std::string name = "carta" + std::to_string(carta) + ".png";
        list += {static_cast<char>(name.size()), '\0'};
        list.append(name).resize(kRecord * static_cast<std::size_t>(carta));
        Files[CardPicture(carta)] = "";
    }
    // The defaults that come with the game.
    std::ifstream defaults(ZARPEL_DATA "/pordefecto.dat", std::ios::binary);
    const std::string preferences(std::istreambuf_iterator<char>(defaults), {});
    Files[PathOf("naipe.dat")] = list;
    Files[PathOf("dibujo.jpg")] = "";
    Files[PathOf("lastprop.dat")] = preferences;
    Files[PathOf("pordefecto.dat")] = preferences;
}

}  // namespace zarpel
