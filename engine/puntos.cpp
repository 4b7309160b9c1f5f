// End of a deal, its count, and the end of the match.
#include <algorithm>
#include <cstdint>

#include "engine/mesa.h"
#include "engine/zarpelfunc.h"

namespace zarpel {
namespace {

constexpr int kPuntosDePartida = 15;

// The rows that give one point to the player who holds more; a zarpel gives a point each.
constexpr std::array kFilasPorMayoria = {kCartasGanadas, kOros, kSietes, kVelo};

int Puntos(const Matriz& matriz, ColumnaCuenta quien, ColumnaCuenta otro) {
    int puntos = matriz[kZarpels][quien];
    for (const FilaCuenta fila : kFilasPorMayoria) {
        if (matriz.at(fila).at(quien) > matriz.at(fila).at(otro)) ++puntos;
    }
    return puntos;
}

// The points of a saved match may be as many as a record holds; they never wrap around.
std::int16_t Mas(std::int16_t puntaje, int puntos) {
    return static_cast<std::int16_t>(std::min<int>(puntaje + puntos, INT16_MAX));
}

}  // namespace

void Mesa::AsignaRestoALUltimo(const std::string& duenio) {
    cartellbl.Caption = "Esta es la ultima mano";
    desktop_.Pause(kPausaMs);
    for (int i = 0; i < kLugaresMesa; ++i) {
        const Slot slot = SlotMesa(i);
        if (!slot.Ocupado()) continue;
        AsignoANaipe(slot.Carta(), duenio);
        slot.Imagen.Visible = false;
    }
}

Matriz Mesa::Cuenta() const {
    Matriz matriz{};
    for (int k = 1; k <= Naipes->CantCartas(); ++k) {
        const ColumnaCuenta quien = Naipes->Mazo_Duenio(k) == duenios::kCpu ? kCpu : kHumano;
        const bool oro = Naipes->Mazo_Palo(k) == "oro";
        const bool siete = Naipes->Mazo_Numero(k) == 7;
        matriz[kCartasGanadas].at(quien) += 1;
        matriz[kOros].at(quien) += oro;
        matriz[kSietes].at(quien) += siete;
        matriz[kVelo].at(quien) += oro && siete;
    }
    matriz[kZarpels] = {Reparto->ZarpelP1(), Reparto->ZarpelP2()};
    return matriz;
}

void Mesa::CuentaPuntos() {
    AsignaRestoALUltimo(Reparto->UltimoqLevanta());
    const Matriz matriz = Cuenta();
    MuestraResultados(matriz);
    Naipes->aPuntajecpu(Mas(Naipes->Puntajecpu(), Puntos(matriz, kCpu, kHumano)));
    Naipes->aPuntajehumano(Mas(Naipes->Puntajehumano(), Puntos(matriz, kHumano, kCpu)));
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
