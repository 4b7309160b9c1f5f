// Selection of cards and capture.
#include <algorithm>
#include <charconv>

#include "engine/mesa.h"
#include "engine/zarpelfunc.h"

namespace zarpel {
namespace {

void PonSuma(Mesa& mesa, int suma) { mesa.SumandoLbl.Tag = std::to_string(suma); }

bool HayElegidaDelHumano(const Mesa& mesa) {
    return std::ranges::any_of(mesa.SlotsMano(Jugador::Humano), &Slot::Elegido);
}

}  // namespace

int Mesa::Suma() const {
    const std::string& tag = SumandoLbl.Tag;
    int suma = 0;
    std::from_chars(tag.data(), tag.data() + tag.size(), suma);
    return suma;
}

void Mesa::Verifica(Image& carta, CheckBox& marca, char mp) {
    const Slot slot{carta, marca, DeLetra(mp)};
    SumandoLbl.Visible = true;
    if (slot.Elegido()) {
        slot.Marcar(false);
        PonSuma(*this, Suma() - slot.Numero());
        slot.Bajar();
    } else if (slot.De == Jugador::Humano && HayElegidaDelHumano(*this)) {
        desktop_.Show({.Text = "SELECCIONE SOLO UNA DE SUS CARTAS", .Icon = BoxIcon::Exclamation});
    } else {
        Elige(slot);
    }
    SumandoLbl.Caption = SumandoLbl.Tag;
}

void Mesa::Elige(const Slot& slot) {
    const int suma = Suma() + slot.Numero();
    slot.Marcar(true);
    slot.Subir();
    if (suma <= kSumaDeLevante) {
        PonSuma(*this, suma);
        LevantarBtn.Enabled = true;
        return;
    }
    slot.Marcar(false);
    // The computer, on its own move, tries cards without a word; BajaCartasMesa lowers those that it leaves.
    if (Reparto->Turno() != kSignos.Cpu.Turno) return;
    desktop_.Show({.Text = "La suma es mayor que 15", .Icon = BoxIcon::Information});
    slot.Bajar();
}

void Mesa::Levanta(const std::string& duenio) {
    if (Suma() != kSumaDeLevante) {
        desktop_.Show({.Text = "Para Levantar debes sumar 15", .Icon = BoxIcon::Information});
        return;
    }
    if (DeDuenio(duenio) == Jugador::Humano && !HayElegidaDelHumano(*this)) {
        desktop_.Show({.Text = "Debes seleccionar una de tus cartas"});
        return;
    }
    std::vector<int> deLaMesa;
    int con = 0;
    for (const Slot& slot : Slots()) {
        if (!slot.Elegido()) continue;
        slot.Retirar(DeDuenio(duenio));
        AsignoANaipe(slot.Carta(), duenio);
        slot.De ? con = slot.Carta() : deLaMesa.emplace_back(slot.Carta());
    }
    DiceToma(DeDuenio(duenio), deLaMesa, con);
    SumaZarpel(duenio);
    Reparto->aUltimoqLevanta(duenio);
    LevantarBtn.Enabled = false;
    SumandoLbl.Visible = false;
    haPasado_.reset();
    DecideTurno();
}

void Mesa::SumaZarpel(const std::string& duenio) {
    if (std::ranges::any_of(SlotsMesa(), &Slot::Ocupado)) return;
    DiceZarpel(DeDuenio(duenio));
    desktop_.Show({.Text = "¡¡¡ZARPEL!!!", .Icon = BoxIcon::Exclamation});
    if (DeDuenio(duenio) == Jugador::Cpu) {
        Reparto->aZarpelP1(Mas(Reparto->ZarpelP1(), 1));
    } else {
        Reparto->aZarpelP2(Mas(Reparto->ZarpelP2(), 1));
    }
}

void Mesa::BajaCartasMesa() {
    for (const Slot& slot : SlotsMesa()) {
        if (!slot.Elegido()) slot.Bajar();
    }
}

}  // namespace zarpel
