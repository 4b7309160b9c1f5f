// What a player can do, and what happens when a player can do nothing: about one match in thirty fills the
// eight places of the table while the player to move has no capture. The player passes; when both are stuck
// so, the deal is annulled.
#include <algorithm>

#include "engine/mesa.h"

namespace zarpel {
namespace {

constexpr unsigned kConjuntos = 1U << kLugaresMesa;  // sets of table places: bit i stands for place i

// The places of a set, or none when one of them is empty.
std::vector<std::size_t> LugaresDe(unsigned conjunto, std::span<const Slot> mesa) {
    std::vector<std::size_t> lugares;
    for (std::size_t i = 0; i < kLugaresMesa; ++i) {
        if ((conjunto >> i & 1U) == 0) continue;
        if (!mesa[i].Ocupado()) return {};
        lugares.push_back(i);
    }
    return lugares;
}

}  // namespace

bool Mesa::MesaLlena() const { return std::ranges::all_of(SlotsMesa(), &Slot::Ocupado); }

bool Mesa::TieneCartas(Jugador quien) const { return std::ranges::any_of(SlotsMano(quien), &Slot::Ocupado); }

std::vector<Captura> Mesa::Capturas(Jugador quien) const {
    std::vector<Captura> capturas;
    for (unsigned conjunto = 1; conjunto < kConjuntos; ++conjunto) {
        const std::vector<std::size_t> lugares = LugaresDe(conjunto, SlotsMesa());
        if (lugares.empty()) continue;
        int resto = kSumaDeLevante;
        for (const std::size_t i : lugares) resto -= SlotsMesa()[i].Numero();
        for (std::size_t mano = 0; mano < kLugaresMano; ++mano) {
            const Slot& carta = SlotsMano(quien)[mano];
            if (carta.Ocupado() && carta.Numero() == resto) capturas.push_back({mano, lugares});
        }
    }
    return capturas;
}

bool Mesa::Bloqueado(Jugador quien) const {
    return TieneCartas(quien) && MesaLlena() && Capturas(quien).empty();
}

void Mesa::Pasa(Jugador quien) {
    DicePasa(quien);
    if (haPasado_ != Otro(quien)) {
        haPasado_ = quien;
        return DecideTurno();
    }
    desktop_.Show(
        {.Text = "Ninguno de los dos puede jugar: se reparte de nuevo", .Icon = BoxIcon::Information});
    SigueOtroReparto();
}

}  // namespace zarpel
