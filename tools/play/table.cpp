#include "tools/play/table.h"

namespace zarpel {
void LayCards(Playing& window, const std::vector<int>& mesa, const std::vector<int>& humano,
              const std::vector<int>& cpu) {
    const auto fill = [](const Slot& slot, const std::vector<int>& row, int i, const std::string& duenio) {
        const int carta = i < std::ssize(row) ? row.at(static_cast<std::size_t>(i)) : 0;
        slot.Imagen.Visible = carta != 0;
        if (carta == 0) return;
        slot.Imagen.Tag = std::to_string(carta);
        slot.Imagen.Picture = Naipes->Mazo_Imagen(carta);
        Naipes->aMazo_Duenio(carta, duenio);
    };
    for (int i = 1; i <= classnaipe::kCartas; ++i) Naipes->aMazo_Duenio(i, duenios::kNinguno);
    for (int i = 0; i < kLugaresMesa; ++i) fill(window.SlotMesa(i), mesa, i, duenios::kLaMesa);
    for (int i = 0; i < kLugaresMano; ++i) {
        fill(window.SlotHumano(i), humano, i, duenios::kHumano);
        fill(window.SlotCpu(i), cpu, i, duenios::kCpu);
        window.fondop1img.at(static_cast<std::size_t>(i)).Visible = window.SlotCpu(i).Ocupado();
    }
    window.EmprolijaDesktop();
    Reparto->aTurno(1);
}

Table::Table(unsigned seed, bool humanFirst) : Desktop(seed) {
    Desktop.Draws = {humanFirst ? 0.0 : 0.9};  // the first draw chooses the dealer
    Window.cartellbl.Changed = [this] {
        const std::string& caption = Window.cartellbl.Caption;
        if (caption.empty() || (!captions_.empty() && captions_.back() == caption)) return;
        captions_.push_back(caption);
    };
    Window.Load();
}

void Table::Lay(const std::vector<int>& mesa, const std::vector<int>& humano, const std::vector<int>& cpu) {
    LayCards(Window, mesa, humano, cpu);
    Desktop.Boxes.clear();
    Desktop.Calls.clear();
    captions_.clear();
}

std::vector<int> Table::InHand(char clase) {
    std::vector<int> cards;
    for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
        const Slot slot = Window.SlotDePosicion(codigo);
        if (slot.Clase == clase && slot.Ocupado()) cards.push_back(slot.Carta());
    }
    return cards;
}

std::string Table::Selected() {
    std::string keys;
    for (int i = 0; i < kLugaresMano; ++i) keys.append(Window.SlotHumano(i).Elegido(), "123"[i]);
    for (int i = 0; i < kLugaresMesa; ++i) keys.append(Window.SlotMesa(i).Elegido(), "ASDFGHJK"[i]);
    return keys;
}

}  // namespace zarpel
