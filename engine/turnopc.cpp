// The computer's move: a greedy walk over its hand and the table that takes the first capture it finds. It
// drives the same selection as the player's clicks, and never takes a card out of a walk again, so it misses
// some captures.
#include <algorithm>
#include <optional>

#include "engine/mesa.h"

namespace zarpel {
namespace {

// One walk: the hand card, the anchor, and each later table card that still fits. True when they make 15.
bool PruebaDesde(Mesa& mesa, std::size_t mano, std::size_t ancla) {
    mesa.EmprolijaDesktop();
    const Slot& carta = mesa.SlotsMano(Jugador::Cpu)[mano];
    mesa.Verifica(carta);
    // In a match changed by hand a card can count more than 15 by itself, and then it is not selected.
    if (!carta.Elegido() || !mesa.SlotsMesa()[ancla].Ocupado()) return false;
    for (const Slot& slot : mesa.SlotsMesa().subspan(ancla)) {
        if (!slot.Ocupado()) continue;
        mesa.Verifica(slot);
        if (mesa.Suma() == kSumaDeLevante) return true;
    }
    return false;
}

// The hand place of the first capture found, which is then selected.
std::optional<std::size_t> BuscaLevante(Mesa& mesa) {
    for (std::size_t mano = 0; mano < kLugaresMano; ++mano) {
        mesa.EmprolijaDesktop();
        if (!mesa.SlotsMano(Jugador::Cpu)[mano].Ocupado()) continue;
        for (std::size_t ancla = 0; ancla < kLugaresMesa; ++ancla) {
            if (PruebaDesde(mesa, mano, ancla)) return mano;
        }
    }
    return std::nullopt;
}

// The last place of the hand that holds a card; the computer has one when it moves.
const Slot& CartaQueDeja(const Mesa& mesa) {
    const auto mano = mesa.SlotsMano(Jugador::Cpu);
    return *std::ranges::find_if(mano.rbegin(), mano.rend(), &Slot::Ocupado);
}

}  // namespace

void Mesa::TurnoPc() {
    const auto mano = BuscaLevante(*this);
    BajaCartasMesa();
    if (mano) {
        cartellbl.Caption = "Me llevo estas cartas";
        fondop1img.at(*mano).Visible = false;
        desktop_.Pause(kPausaMs);
        return Levanta(kSignos.Cpu.Duenio);
    }
    const bool pasa = MesaLlena();
    cartellbl.Caption = pasa ? "Paso" : "He Jugado una carta";
    desktop_.Pause(kPausaMs);
    if (pasa) return Pasa(Jugador::Cpu);
    Juega(CartaQueDeja(*this).Imagen);
}

}  // namespace zarpel
