#include "tests/support/table.h"

#include <utility>

namespace zarpel {
namespace {

void Fill(const Slot& slot, int carta, const std::string& duenio) {
    slot.Imagen.Visible = carta != 0;
    if (carta == 0) return;
    slot.Imagen.Tag = std::to_string(carta);
    slot.Imagen.Picture = Naipes->Mazo_Imagen(carta);
    Naipes->aMazo_Duenio(carta, duenio);
}

int At(const std::vector<int>& cards, int i) {
    return static_cast<std::size_t>(i) < cards.size() ? cards[static_cast<std::size_t>(i)] : 0;
}

}  // namespace

void LayCards(Playing& window, const std::vector<int>& mesa, const std::vector<int>& humano,
              const std::vector<int>& cpu) {
    for (int i = 1; i <= classnaipe::kCartas; ++i) Naipes->aMazo_Duenio(i, duenios::kNinguno);
    for (int i = 0; i < kLugaresMesa; ++i) Fill(window.SlotMesa(i), At(mesa, i), duenios::kLaMesa);
    for (int i = 0; i < kLugaresMano; ++i) {
        Fill(window.SlotHumano(i), At(humano, i), duenios::kHumano);
        Fill(window.SlotCpu(i), At(cpu, i), duenios::kCpu);
        window.fondop1img.at(static_cast<std::size_t>(i)).Visible = At(cpu, i) != 0;
    }
    window.EmprolijaDesktop();
    Reparto->aTurno(1);
}

Table::Table(unsigned seed, bool humanFirst) : Desktop(seed) {
    Desktop.Draws = {humanFirst ? 0.0 : 0.9};  // the first draw chooses the dealer
    Window.cartellbl.Changed = [this] {
        const std::string& caption = Window.cartellbl.Caption;
        if (!caption.empty() && (captions_.empty() || captions_.back() != caption)) {
            captions_.push_back(caption);
        }
    };
    Window.Load();
}

void Table::Press(const std::string& keys, int shift) {
    for (const char key : keys) Window.Form_KeyDown(key, shift);
}

void Table::GiveMoveTo(char clase) {
    Reparto->aTurno(clase == clase::kCpu ? 1 : 0);
    Window.DecideTurno();
}

std::vector<std::string> Table::TakeCaptions() { return std::exchange(captions_, {}); }

void Table::Lay(const std::vector<int>& mesa, const std::vector<int>& humano, const std::vector<int>& cpu) {
    LayCards(Window, mesa, humano, cpu);
    Desktop.Boxes.clear();
    Desktop.Calls.clear();
    Desktop.Pauses.clear();
    captions_.clear();
}

std::vector<int> Table::OnTable() {
    std::vector<int> cards;
    for (int i = 0; i < kLugaresMesa; ++i) {
        if (Window.SlotMesa(i).Ocupado()) cards.push_back(Window.SlotMesa(i).Carta());
    }
    return cards;
}

std::vector<int> Table::InHand(char clase) {
    std::vector<int> cards;
    for (int i = 0; i < kLugaresMano; ++i) {
        const Slot slot = clase == clase::kCpu ? Window.SlotCpu(i) : Window.SlotHumano(i);
        if (slot.Ocupado()) cards.push_back(slot.Carta());
    }
    return cards;
}

}  // namespace zarpel
