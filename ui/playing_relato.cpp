// What is said to a player who cannot see the table. All that happens until the human is to move is one text:
// a screen reader drops what it is saying when the next one comes.
#include <span>
#include <utility>

#include "engine/zarpelfunc.h"
#include "ui/playing.h"

namespace zarpel {
namespace {

std::string NombreDeCarta(int carta) {
    return carta == 0 ? "carta"
                      : std::to_string(Naipes->Mazo_Numero(carta)) + " de " + Naipes->Mazo_Palo(carta);
}

// "7 de oro, 4 de copa y 1 de basto"
std::string Lista(const std::vector<int>& cartas) {
    std::string lista;
    for (std::size_t i = 0; i < cartas.size(); ++i) {
        lista += (i == 0 ? "" : i + 1 < cartas.size() ? ", " : " y ") + NombreDeCarta(cartas[i]);
    }
    return lista;
}

const std::string& Humano() { return Naipes->Nombrejugador(); }

std::string Sujeto(Jugador quien) { return quien == Jugador::Cpu ? "La Cpu" : Humano(); }

// "Oros: Cpu 6, Ana 4."
std::string Renglon(const char* que, const PorJugador<int>& cuantos) {
    return std::string(que) + ": Cpu " + std::to_string(cuantos.Cpu) + ", " + Humano() + " " +
           std::to_string(cuantos.Humano) + ".";
}

// The cards of a row by their places, as the keys count them.
std::string Fila(const char* cual, std::span<const Slot> slots) {
    std::string fila;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (!slots[i].Ocupado()) continue;
        fila += (fila.empty() ? ": " : "; ") + std::to_string(i + 1) + ", " + NombreDeCarta(slots[i].Carta());
    }
    return cual + (fila.empty() ? " vacía." : fila + ".");
}

}  // namespace

std::string Playing::LugarDe(const Slot& slot) const {
    const std::span<const Slot> fila = slot.De ? SlotsMano(*slot.De) : SlotsMesa();
    const char* const cual = !slot.De ? "mesa " : slot.De == Jugador::Cpu ? "cpu " : "mano ";
    return cual + std::to_string(&slot - fila.data() + 1);
}

std::string Playing::NombreDe(const Slot& slot) const {
    return NombreDeCarta(slot.Carta()) + ", " + LugarDe(slot);
}

void Playing::Dice(const std::string& frase) { relato_ += (relato_.empty() ? "" : " ") + frase; }

void Playing::AnunciaRelato() {
    const std::string relato = std::exchange(relato_, {});
    if (!abriendo_) desktop_.Announce(relato);
}

void Playing::DiceReparto() {
    recienRepartido_ = true;
    if (!Naipes->Primermano()) return Dice("Se reparten tres cartas.");
    Dice(Renglon("Puntos", {Naipes->Puntajecpu(), Naipes->Puntajehumano()}));
    Dice("Reparte " + (QuienReparte(Naipes->LaMano()) == Jugador::Cpu ? "Cpu" : Humano()) + ".");
}

void Playing::DiceToma(Jugador quien, const std::vector<int>& deLaMesa, int con) {
    Dice(Sujeto(quien) + " toma " + Lista(deLaMesa) + " con " + NombreDeCarta(con) + ".");
}

void Playing::DiceZarpel(Jugador quien) { Dice("Zarpel: " + Sujeto(quien) + " deja la mesa vacía."); }

void Playing::DiceDeja(Jugador quien, const Slot& lugar) {
    Dice(Sujeto(quien) + " deja " + NombreDe(lugar) + ".");
}

void Playing::DicePasa(Jugador quien) { Dice(Sujeto(quien) + " pasa."); }

void Playing::DiceResto(Jugador quien, const std::vector<int>& cartas) {
    Dice("Fin de la vuelta.");
    if (!cartas.empty()) Dice(Sujeto(quien) + " se lleva el resto: " + Lista(cartas) + ".");
}

void Playing::DiceCuenta(const Matriz& matriz, const PorJugador<std::int16_t>& puntajes) {
    const auto renglon = [&](const char* que, int Cuenta::*cual) {
        Dice(Renglon(que, {matriz.Cpu.*cual, matriz.Humano.*cual}));
    };
    renglon("Cartas", &Cuenta::Cartas);
    renglon("Oros", &Cuenta::Oros);
    renglon("Sietes", &Cuenta::Sietes);
    renglon("Velo", &Cuenta::Velo);
    renglon("Zarpel", &Cuenta::Zarpels);
    Dice(Renglon("Puntos", {puntajes.Cpu, puntajes.Humano}));
    AnunciaRelato();
}

void Playing::DiceTurno() {
    if (std::exchange(recienRepartido_, false)) {
        Dice(Fila("Mesa", SlotsMesa()));
        Dice(Fila("Mano", SlotsMano(Jugador::Humano)));
    }
    Dice("Juega " + Humano() + ".");
    AnunciaRelato();
}

void Playing::DiceEleccion(const Slot& slot) {
    desktop_.Announce(NombreDeCarta(slot.Carta()) + (slot.Elegido() ? " elegida" : " suelta") + ", suma " +
                      std::to_string(Suma()) + ".");
}

}  // namespace zarpel
