#include "engine/zarpelfunc.h"

#include <algorithm>

namespace zarpel {

std::optional<classnaipe> Naipes;
std::optional<classzarpel> Reparto;
std::string ArchivoNaipes;

std::int16_t Mas(std::int16_t antes, int mas) {
    return static_cast<std::int16_t>(std::clamp(antes + mas, INT16_MIN, INT16_MAX));
}

}  // namespace zarpel
