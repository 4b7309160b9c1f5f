// Selection of cards and capture.
#include <charconv>

#include "engine/mesa.h"
#include "engine/zarpelfunc.h"

namespace zarpel {

int Mesa::Suma() const {
    const std::string& tag = SumandoLbl.Tag;
    int suma = 0;
    std::from_chars(tag.data(), tag.data() + tag.size(), suma);
    return suma;
}

void Mesa::PonSuma(int suma) { SumandoLbl.Tag = std::to_string(suma); }

bool Mesa::EligeHumana() {
    for (int i = 0; i < kLugaresMano; ++i) {
        if (SlotHumano(i).Elegido()) return true;
    }
    return false;
}

void Mesa::Verifica(Image& carta, CheckBox& marca, char mp) {
    const Slot slot{carta, marca, mp};
    SumandoLbl.Visible = true;
    if (slot.Elegido()) {
        marca.Value = 0;
        PonSuma(Suma() - slot.Numero());
        slot.Bajar();
    } else if (mp == clase::kHumano && EligeHumana()) {
        desktop_.Show({.Text = "SELECCIONE SOLO UNA DE SUS CARTAS", .Icon = BoxIcon::Exclamation});
    } else {
        Elige(slot);
    }
    SumandoLbl.Caption = SumandoLbl.Tag;
}

void Mesa::Elige(const Slot& slot) {
    const int suma = Suma() + slot.Numero();
    slot.Marca.Value = 1;
    slot.Levantar();
    if (suma <= kSumaDeLevante) {
        PonSuma(suma);
        LevantarBtn.Enabled = true;
        return;
    }
    slot.Marca.Value = 0;
    // The computer tries cards without a word; BajaCartasMesa lowers those that it leaves.
    if (Reparto->Turno() != 1) return;
    desktop_.Show({.Text = "La suma es mayor que 15", .Icon = BoxIcon::Information});
    slot.Bajar();
}

void Mesa::Levanta(const std::string& duenio) {
    if (Suma() != kSumaDeLevante) {
        desktop_.Show({.Text = "Para Levantar debes sumar 15", .Icon = BoxIcon::Information});
        return;
    }
    if (duenio != duenios::kCpu && !EligeHumana()) {
        desktop_.Show({.Text = "Debes seleccionar una de tus cartas"});
        return;
    }
    for (int codigo = 1; codigo <= kPosiciones; ++codigo) Entrega(SlotDePosicion(codigo), duenio);
    SumaZarpel(duenio);
    Reparto->aUltimoqLevanta(duenio);
    LevantarBtn.Enabled = false;
    SumandoLbl.Visible = false;
    pasosSeguidos_ = 0;
    DecideTurno();
}

void Mesa::Entrega(const Slot& slot, const std::string& duenio) {
    if (!slot.Elegido()) return;
    slot.Imagen.Visible = false;
    AsignoANaipe(slot.Carta(), duenio);
}

void Mesa::SumaZarpel(const std::string& duenio) {
    for (const Image& imagen : mesaimg) {
        if (imagen.Visible) return;
    }
    desktop_.Show({.Text = "¡¡¡ZARPEL!!!", .Icon = BoxIcon::Exclamation});
    if (duenio == duenios::kCpu) {
        Reparto->aZarpelP1(static_cast<std::int16_t>(Reparto->ZarpelP1() + 1));
    } else {
        Reparto->aZarpelP2(static_cast<std::int16_t>(Reparto->ZarpelP2() + 1));
    }
}

void Mesa::BajaCartasMesa() {
    for (int i = 0; i < kLugaresMesa; ++i) {
        if (!SlotMesa(i).Elegido()) SlotMesa(i).Bajar();
    }
}

}  // namespace zarpel
