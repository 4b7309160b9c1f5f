// The computer's move: a greedy walk over its hand and the table that takes the first capture it finds. It
// drives the same selection as the player's clicks, and never takes a card out of a walk again, so it misses
// some captures.
#include "engine/mesa.h"
#include "engine/zarpelfunc.h"

namespace zarpel {

void Mesa::TurnoPc() {
    int mano = 0;
    const bool levanta = BuscaLevante(mano);
    BajaCartasMesa();
    if (levanta) {
        cartellbl.Caption = "Me llevo estas cartas";
        fondop1img.at(Pos(mano)).Visible = false;
        desktop_.Pause(kPausaMs);
        return Levanta(duenios::kCpu);
    }
    const bool pasa = MesaLlena();
    cartellbl.Caption = pasa ? "Paso" : "He Jugado una carta";
    desktop_.Pause(kPausaMs);
    if (pasa) return Pasa();
    Juega(SlotCpu(mano).Imagen);
}

// True when a capture was found, and is selected. `mano` becomes the capturing hand slot, or else the last
// one that holds a card.
bool Mesa::BuscaLevante(int& mano) {
    for (int i = 0; i < kLugaresMano; ++i) {
        EmprolijaDesktop();
        if (!SlotCpu(i).Ocupado()) continue;
        mano = i;
        for (int ancla = 0; ancla < kLugaresMesa; ++ancla) {
            if (PruebaDesde(i, ancla)) return true;
        }
    }
    return false;
}

// One walk: the hand card, the anchor, and each later table card that still fits.
bool Mesa::PruebaDesde(int mano, int ancla) {
    EmprolijaDesktop();
    Verifica(SlotCpu(mano));
    if (!SlotMesa(ancla).Ocupado()) return false;
    for (int i = ancla; i < kLugaresMesa; ++i) {
        if (!SlotMesa(i).Ocupado()) continue;
        Verifica(SlotMesa(i));
        if (Suma() == kSumaDeLevante) return true;
    }
    return false;
}

}  // namespace zarpel
