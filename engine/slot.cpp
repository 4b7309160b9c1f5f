#include "engine/slot.h"

#include <charconv>

#include "engine/zarpelfunc.h"

namespace zarpel {

int IndiceDeTag(const std::string& tag) {
    const std::size_t start = tag.find_first_not_of(' ');
    if (start == std::string::npos) return 0;
    int index = 0;
    std::from_chars(tag.data() + start, tag.data() + tag.size(), index);
    return index >= 1 && index <= classnaipe::kCartas ? index : 0;
}

int Slot::Numero() const { return Carta() == 0 ? 0 : Naipes->Mazo_Numero(Carta()); }

Altura Slot::Alturas() const {
    if (!De) return {360, 0};
    return De == Jugador::Humano ? Altura{6360, 6000} : Altura{360, 360};
}

void Slot::Marcar(bool elegido) const {
    if (Elegido() == elegido) return;
    Marca.Value = elegido ? 1 : 0;
    Imagen.Refresh();
}

}  // namespace zarpel
