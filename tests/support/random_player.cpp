#include "tests/support/random_player.h"

namespace zarpel {

void RandomPlayer::Act() {
    switch (Draw(5)) {
        case 0: {
            Image& carta = window_.SlotHumano(Draw(kLugaresMano)).Imagen;
            if (carta.Visible) window_.Frame1_DragDrop(carta);
            return;
        }
        case 1:
            return window_.LevantarBtn_Click();
        case 2:
            return window_.SensordeTeclas('1' + Draw(kLugaresMano), 0);
        default:
            return window_.SensordeTeclas("ASDFGHJK"[Draw(kLugaresMesa)], 0);
    }
}

bool CanAct(Playing& window) {
    return window.TieneCartas(clase::kHumano) && !window.Bloqueado(clase::kHumano);
}

}  // namespace zarpel
