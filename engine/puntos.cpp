// End of a deal, its count, and the end of the match.
#include <algorithm>
#include <array>

#include "engine/mesa.h"
#include "engine/zarpelfunc.h"

namespace zarpel {
namespace {

constexpr int kPuntosDePartida = 15;

// What gives one point to the player who has more of it; a zarpel gives a point each.
constexpr std::array kPorMayoria = {&Cuenta::Cartas, &Cuenta::Oros, &Cuenta::Sietes, &Cuenta::Velo};

int Puntos(const Cuenta& suya, const Cuenta& ajena) {
    return suya.Zarpels + static_cast<int>(std::ranges::count_if(
                              kPorMayoria, [&](auto cual) { return suya.*cual > ajena.*cual; }));
}

Matriz Cuentas() {
    Matriz matriz;
    for (int k = 1; k <= Naipes->CantCartas(); ++k) {
        Cuenta& cuenta = matriz[DeDuenio(Naipes->Mazo_Duenio(k))];
        const bool oro = Naipes->Mazo_Palo(k) == "oro";
        const bool siete = Naipes->Mazo_Numero(k) == 7;
        cuenta.Cartas += 1;
        cuenta.Oros += oro;
        cuenta.Sietes += siete;
        cuenta.Velo += oro && siete;
    }
    matriz.Cpu.Zarpels = Reparto->ZarpelP1();
    matriz.Humano.Zarpels = Reparto->ZarpelP2();
    return matriz;
}

}  // namespace

void Mesa::AsignaRestoALUltimo(const std::string& duenio) {
    cartellbl.Caption = "Esta es la ultima mano";
    desktop_.Pause(kPausaMs);
    std::vector<int> cartas;
    for (const Slot& slot : SlotsMesa()) {
        if (!slot.Ocupado()) continue;
        slot.Retirar(DeDuenio(duenio));
        AsignoANaipe(slot.Carta(), duenio);
        cartas.push_back(slot.Carta());
    }
    DiceResto(DeDuenio(duenio), cartas);
}

void Mesa::CuentaPuntos() {
    AsignaRestoALUltimo(Reparto->UltimoqLevanta());
    const Matriz matriz = Cuentas();
    const PorJugador<std::int16_t> puntajes = {
        Mas(Naipes->Puntajecpu(), Puntos(matriz.Cpu, matriz.Humano)),
        Mas(Naipes->Puntajehumano(), Puntos(matriz.Humano, matriz.Cpu))};
    DiceCuenta(matriz, puntajes);
    MuestraResultados(matriz);
    Naipes->aPuntajecpu(puntajes.Cpu);
    Naipes->aPuntajehumano(puntajes.Humano);
    puntajeP1Lbl.Caption = std::to_string(Naipes->Puntajecpu());
    puntajeP2Lbl.Caption = std::to_string(Naipes->Puntajehumano());
    if (Naipes->Puntajehumano() >= kPuntosDePartida || Naipes->Puntajecpu() >= kPuntosDePartida) {
        return DefineGanador(Naipes->Puntajecpu(), Naipes->Puntajehumano());
    }
    SigueOtroReparto();
}

void Mesa::DefineGanador(std::int16_t puntaje1, std::int16_t puntaje2) {
    if (puntaje1 == puntaje2) {
        desktop_.Show({.Text = "JUEGO EMPATADO", .Icon = BoxIcon::Exclamation});
    } else {
        const std::string ganador = puntaje1 > puntaje2 ? "CPU" : Naipes->Nombrejugador();
        desktop_.Show({.Text = "GANADOR " + ganador, .Icon = BoxIcon::Exclamation, .Title = "Final"});
    }
    const Answer otra = desktop_.Show({.Text = "¿Jugar de nuevo?",
                                       .Icon = BoxIcon::Question,
                                       .Title = "Fin de Juego",
                                       .Buttons = BoxButtons::YesNo});
    if (otra == Answer::No) desktop_.End(0);
    ResetGame();
}

}  // namespace zarpel
