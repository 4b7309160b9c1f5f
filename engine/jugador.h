// Who plays: the computer or the human. The records, the files and the window's operations say it by fixed
// texts, letters and numbers; here these become a player, and the other way round.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zarpel {

enum class Jugador { Cpu, Humano };

constexpr Jugador Otro(Jugador quien) { return quien == Jugador::Cpu ? Jugador::Humano : Jugador::Cpu; }

// Something that each of the two has.
template <class Cosa>
struct PorJugador {
    Cosa Cpu{}, Humano{};

    const Cosa& operator[](Jugador quien) const { return quien == Jugador::Cpu ? Cpu : Humano; }
    Cosa& operator[](Jugador quien) { return quien == Jugador::Cpu ? Cpu : Humano; }
};

struct Signos {
    std::string Duenio;   // owner tag of the player's cards
    char Letra;           // kind letter of the hand
    std::int16_t Turno;   // in the deal record, when the next turn is the player's
    std::int16_t LaMano;  // in the match record, when the player deals
};
inline const PorJugador<Signos> kSignos = {{"player1", 'c', 1, 0}, {"player2", 'p', 0, 1}};

// What is not the computer's counts as the human's: a damaged saved match can hold any tag.
inline Jugador DeDuenio(std::string_view duenio) {
    return duenio == kSignos.Cpu.Duenio ? Jugador::Cpu : Jugador::Humano;
}

inline Jugador DeTurno(std::int16_t turno) {
    return turno == kSignos.Humano.Turno ? Jugador::Humano : Jugador::Cpu;
}

inline Jugador QuienReparte(std::int16_t laMano) {
    return laMano == kSignos.Cpu.LaMano ? Jugador::Cpu : Jugador::Humano;
}

// Kind letter of a row of card places: a player's hand, or, for nobody, the table.
inline char LetraDe(std::optional<Jugador> quien) { return quien ? kSignos[*quien].Letra : 'm'; }

inline std::optional<Jugador> DeLetra(char letra) {
    if (letra == kSignos.Cpu.Letra) return Jugador::Cpu;
    if (letra == kSignos.Humano.Letra) return Jugador::Humano;
    return std::nullopt;
}

}  // namespace zarpel
