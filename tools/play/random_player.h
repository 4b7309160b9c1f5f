// A player who tries anything that a hand can do at the table, legal or not, and repeats with the seed.
#pragma once

#include <random>

#include "engine/zarpelfunc.h"
#include "ui/playing.h"

namespace zarpel {

class RandomPlayer {
  public:
    RandomPlayer(Playing& window, unsigned seed) : window_(window), random_(seed) {}

    int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }

    void Act() {
        const Slot& any = window_.SlotDePosicion(Below(kPosiciones) + 1);
        const int what = Below(10);
        if (what == 0) return window_.Form_KeyDown(Below(256), Below(8));
        if (what == 1) return window_.Form_MouseMove(Below(12000), Below(9000));
        if (what == 2)
            return window_.Frame1.DragDrop(window_.cartap2img.at(static_cast<std::size_t>(Below(3))));
        if (what == 3) return window_.LevantarBtn.Click();  // as "L" does
        if (what == 4) return any.Imagen.Click ? any.Imagen.Click() : void();
        window_.Form_KeyDown("123ASDFGHJKL"[Below(12)], 0);
    }

  private:
    Playing& window_;
    std::mt19937 random_;
};

// False: no input on the table can change anything any more. So it must never be while the player is to move.
inline bool CanAct(Playing& window) {
    return window.TieneCartas(Jugador::Humano) && !window.Bloqueado(Jugador::Humano);
}

// No place shows another's picture, and a back lies over each card of the computer's hand.
inline bool ShowsWhatIsThere(Playing& window) {
    for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
        const Image& place = window.SlotDePosicion(codigo).Imagen;
        const int carta = IndiceDeTag(place.Tag);
        if (!place.Visible) continue;
        if (carta == 0 || place.Picture != Naipes->Mazo_Imagen(carta)) return false;
        if (place.Cover != nullptr && !place.Cover->Visible) return false;
    }
    return true;
}

}  // namespace zarpel
