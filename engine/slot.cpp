#include "engine/slot.h"

#include <charconv>

#include "engine/zarpelfunc.h"

namespace zarpel {

Altura AlturaDe(char letra) {
    if (letra == clase::kMesa) return {360, 0};
    if (letra == clase::kHumano) return {6360, 6000};
    return {360, 360};
}

int IndiceDeTag(const std::string& tag) {
    const std::size_t start = tag.find_first_not_of(' ');
    if (start == std::string::npos) return 0;
    int index = 0;
    std::from_chars(tag.data() + start, tag.data() + tag.size(), index);
    return index >= 1 && index <= classnaipe::kCartas ? index : 0;
}

int Slot::Numero() const { return Carta() == 0 ? 0 : Naipes->Mazo_Numero(Carta()); }

void Slot::Levantar() const { Imagen.Top = AlturaDe(Clase).Levantada; }

void Slot::Bajar() const { Imagen.Top = AlturaDe(Clase).Reposo; }

}  // namespace zarpel
