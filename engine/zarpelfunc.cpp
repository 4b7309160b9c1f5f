#include "engine/zarpelfunc.h"

namespace zarpel {

std::optional<classnaipe> Naipes;
std::optional<classzarpel> Reparto;
std::string ArchivoNaipes;

}  // namespace zarpel
