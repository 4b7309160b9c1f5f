// What happens when a player cannot move: about one match in thirty fills the eight places of the table while
// the player to move has no capture. The player passes; when both are stuck so, the deal is annulled.
#include <bitset>

#include "engine/mesa.h"

namespace zarpel {
namespace {

constexpr int kPasosDeLosDos = 2;

}  // namespace

bool Mesa::MesaLlena() const {
    for (const Image& imagen : mesaimg) {
        if (!imagen.Visible) return false;
    }
    return true;
}

bool Mesa::TieneCartas(char manoDe) const {
    for (const Image& imagen : manoDe == clase::kCpu ? cartap1img : cartap2img) {
        if (imagen.Visible) return true;
    }
    return false;
}

bool Mesa::PuedeLevantar(char manoDe) {
    std::bitset<kSumaDeLevante + 1> sumas(1);  // bit s: some table cards add up to s
    for (int i = 0; i < kLugaresMesa; ++i) {
        if (SlotMesa(i).Ocupado()) sumas |= sumas << static_cast<std::size_t>(SlotMesa(i).Numero());
    }
    for (int i = 0; i < kLugaresMano; ++i) {
        const Slot mano = manoDe == clase::kCpu ? SlotCpu(i) : SlotHumano(i);
        const auto resto = static_cast<std::size_t>(kSumaDeLevante - mano.Numero());
        if (mano.Ocupado() && resto < sumas.size() && sumas.test(resto)) return true;
    }
    return false;
}

bool Mesa::Bloqueado(char manoDe) { return TieneCartas(manoDe) && MesaLlena() && !PuedeLevantar(manoDe); }

void Mesa::Pasa() {
    if (++pasosSeguidos_ >= kPasosDeLosDos) return AnulaReparto();
    DecideTurno();
}

void Mesa::AnulaReparto() {
    desktop_.Show(
        {.Text = "Ninguno de los dos puede jugar: se reparte de nuevo", .Icon = BoxIcon::Information});
    SigueOtroReparto();
}

}  // namespace zarpel
