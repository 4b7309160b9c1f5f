#include "tools/play/table.h"

namespace zarpel {
void LayCards(Playing& window, const std::vector<int>& mesa, const std::vector<int>& humano,
              const std::vector<int>& cpu) {
    const auto fill = [](const Slot& slot, const std::vector<int>& row, std::size_t i,
                         const std::string& duenio) {
        const int carta = i < row.size() ? row[i] : 0;
        slot.Imagen.Visible = carta != 0;
        if (carta == 0) return;
        slot.Imagen.Tag = std::to_string(carta);
        slot.Imagen.Picture = Naipes->Mazo_Imagen(carta);
        Naipes->aMazo_Duenio(carta, duenio);
    };
    for (int i = 1; i <= classnaipe::kCartas; ++i) Naipes->aMazo_Duenio(i, duenios::kNinguno);
    for (std::size_t i = 0; i < kLugaresMesa; ++i) fill(window.SlotsMesa()[i], mesa, i, duenios::kLaMesa);
    for (std::size_t i = 0; i < kLugaresMano; ++i) {
        fill(window.SlotsMano(Jugador::Humano)[i], humano, i, kSignos.Humano.Duenio);
        fill(window.SlotsMano(Jugador::Cpu)[i], cpu, i, kSignos.Cpu.Duenio);
        window.fondop1img[i].Visible = window.cartap1img[i].Visible;
    }
    window.EmprolijaDesktop();
    Reparto->aTurno(kSignos.Cpu.Turno);
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

std::vector<int> Table::CardsIn(std::span<const Slot> row) {
    std::vector<int> cards;
    for (const Slot& slot : row) {
        if (slot.Ocupado()) cards.push_back(slot.Carta());
    }
    return cards;
}

std::string Table::Selected() {
    const auto hand = Window.SlotsMano(Jugador::Humano), mesa = Window.SlotsMesa();
    std::string keys;
    for (std::size_t i = 0; i < kLugaresMano; ++i) keys.append(hand[i].Elegido(), "123"[i]);
    for (std::size_t i = 0; i < kLugaresMesa; ++i) keys.append(mesa[i].Elegido(), "ASDFGHJK"[i]);
    return keys;
}

}  // namespace zarpel
