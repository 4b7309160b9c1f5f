// The card table as the engine plays on it: the card slots, the labels it writes, the capture button, and the
// operations of the game. The main window derives from it and supplies what belongs to a window (the pure
// virtual functions), so that the engine plays without knowing any.
//
// Every move ends in the turn decision, DecideTurno, which deals when both hands are empty, ends the deal
// when the stock is used up, and gives the move to the next player. The computer's move runs inside it,
// pauses included; it returns when the human is to move.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "engine/jugador.h"
#include "engine/slot.h"
#include "platform/desktop.h"

namespace zarpel {

constexpr std::size_t kLugaresMesa = 8;
constexpr std::size_t kLugaresMano = 3;
constexpr int kPosiciones = kLugaresMesa + 2 * kLugaresMano;  // position codes are 1 to this
constexpr std::size_t kCartasEnMesa = 4;                      // laid by the first distribution of a deal
constexpr int kSumaDeLevante = 15;
constexpr int kPausaMs = 1500;  // long enough to see what happens

// What a player has won in a deal.
struct Cuenta {
    int Cartas = 0, Oros = 0, Sietes = 0, Velo = 0, Zarpels = 0;
};
using Matriz = PorJugador<Cuenta>;

// A capture: a place of the hand, and places of the table whose cards make 15 with the hand's card.
struct Captura {
    std::size_t Mano;
    std::vector<std::size_t> Mesa;
};

class Mesa {
  public:
    explicit Mesa(Desktop& desktop);
    virtual ~Mesa() = default;
    Mesa(const Mesa&) = delete;
    Mesa& operator=(const Mesa&) = delete;

    // --- Slots, by row ---
    std::array<Image, kLugaresMesa> mesaimg;
    std::array<CheckBox, kLugaresMesa> CheckMesa;
    std::array<Image, kLugaresMano> cartap1img;  // the computer's hand
    std::array<Image, kLugaresMano> fondop1img;  // the backs over it
    std::array<CheckBox, kLugaresMano> CheckCartap1;
    std::array<Image, kLugaresMano> cartap2img;  // the human's hand
    std::array<CheckBox, kLugaresMano> CheckCartap2;

    std::span<const Slot> SlotsMesa() const { return std::span(slots_).first(kLugaresMesa); }
    std::span<const Slot> SlotsMano(Jugador quien) const;
    // All of them, row by row.
    std::span<const Slot> Slots() const { return slots_; }
    // The slot of a position code: 1 to 4 are table slots 0 to 3, 5 to 7 the computer's hand, 8 to 10 the
    // human's, 11 to 14 table slots 4 to 7.
    const Slot& SlotDePosicion(int codigo) const;

    // --- What the engine writes ---
    Label puntajeP1Lbl, puntajeP2Lbl;  // points in the match
    Label namelbl, Label2;             // the nickname
    Label cartellbl;                   // who deals, who plays, what the computer does
    Label SumandoLbl;                  // sum of the selected cards; its Tag holds it as text, "" counts as 0
    Button LevantarBtn;                // asks for the capture

    // --- Match, dealing and turns (partida.cpp) ---

    // Starts a new match: points 0, a dealer drawn by chance, a fresh deck, the first turn decision.
    void ResetGame();
    // Prepares the table and the deck of a match, reads the preferences, and makes the first turn decision.
    void Inicia();
    void DecideTurno();
    // One distribution: three cards to each player; the first of a deal also lays four on the table.
    void SeReparte();
    // The table slot that takes the next card laid; null: the table is full.
    const Slot* LugarLibre() const;
    // Lays the hand card shown in `Source` on the first free table slot and passes the turn. On a full table,
    // or when the card is gone (a drop that waited while others moved), nothing happens, and the turn stays.
    void Juega(Image& Source);
    // Sets the owner tag of card `subind`, 1 to 40.
    void AsignoANaipe(int subind, const std::string& aquien);

    // --- What a player can do (paso.cpp) ---

    bool TieneCartas(Jugador quien) const;
    bool MesaLlena() const;
    // All captures that the player could make now.
    std::vector<Captura> Capturas(Jugador quien) const;
    // True when the player has cards but can neither capture nor lay one.
    bool Bloqueado(Jugador quien) const;

    // --- Selection and capture (captura.cpp) ---

    // Selects a slot's card, or deselects it when it is selected. `mp` is the slot's kind letter. A second
    // card of the human's hand and a sum above 15 are refused; the human is told.
    void Verifica(Image& carta, CheckBox& marca, char mp);
    void Verifica(const Slot& slot) { Verifica(slot.Imagen, slot.Marca, LetraDe(slot.De)); }
    // Gives the selected cards to `duenio` (an owner tag) when they make 15, and passes the turn. The human's
    // capture needs one card of the hand. Says why not, and changes nothing, otherwise.
    void Levanta(const std::string& duenio);
    // Counts a zarpel for `duenio` (an owner tag), and says so, when the table is empty.
    void SumaZarpel(const std::string& duenio);
    // Lowers every table card that is not selected.
    void BajaCartasMesa();
    // Value of the running sum.
    int Suma() const;

    // --- The computer's move (turnopc.cpp) ---
    void TurnoPc();

    // --- End of deal and of match (puntos.cpp) ---

    // Counts a finished deal, shows the results, adds the points, and deals again or ends the match.
    void CuentaPuntos();
    // Pauses, then gives the cards left on the table to `duenio` (an owner tag). That is never a zarpel.
    void AsignaRestoALUltimo(const std::string& duenio);
    // Announces the result of the match and offers a new one. Ends the program when it is declined.
    void DefineGanador(std::int16_t puntaje1, std::int16_t puntaje2);

    // --- What the window supplies ---

    // Shows the window if it is not shown yet.
    virtual void MuestraVentana() = 0;
    // Loads the picture file into the slot of a position code and marks it with card index `subind`. True
    // when that was done, or when there was nothing to do (an empty path, no such code). False: the picture
    // cannot be loaded, and the slot is unchanged.
    [[nodiscard]] virtual bool UpdateImagenDesktop(int i, const std::string& Imagen, int subind) = 0;
    // Shows both hands, and at the start of a deal the first four table slots alone.
    virtual void SetPantalla() = 0;
    // Puts every card to rest, clears every selection and the sum, removes the backs of cards that were
    // played.
    virtual void EmprolijaDesktop() = 0;
    // Loads the card backs from the preferred file, or the game's own.
    virtual void CargaDorsos() = 0;
    // Reads a preference file; says so when it is missing or damaged.
    virtual void LoadProperty(const std::string& fichero) = 0;
    // Shows a deal's count and returns when the player has closed it.
    virtual void MuestraResultados(const Matriz& matriz) = 0;

    // --- What happens, for a player who cannot see it; cards by their index ---

    virtual void DiceReparto() = 0;
    virtual void DiceToma(Jugador quien, const std::vector<int>& deLaMesa, int con) = 0;
    virtual void DiceZarpel(Jugador quien) = 0;
    virtual void DiceDeja(Jugador quien, const Slot& lugar) = 0;
    virtual void DicePasa(Jugador quien) = 0;
    // The cards that the last capturer gets at the end of a deal.
    virtual void DiceResto(Jugador quien, const std::vector<int>& cartas) = 0;
    // The count of a deal, and the points that the match then stands at.
    virtual void DiceCuenta(const Matriz& matriz, const PorJugador<std::int16_t>& puntajes) = 0;
    // The human is to move.
    virtual void DiceTurno() = 0;

  protected:
    // Gives the card's record the path of the game's own picture when the one it has cannot be loaded, as in
    // a match saved before the game moved.
    void AseguraImagen(int carta);

    Desktop& desktop_;

  private:
    void SigueOtroReparto();
    void TurnoHumano();
    void TurnoCpu();
    void DaCarta(int codigo);
    void Pasa(Jugador quien);
    void Elige(const Slot& slot);

    std::vector<Slot> slots_;
    // Who has passed since a card was last played or dealt. When the other passes too, nobody can move.
    std::optional<Jugador> haPasado_;
};

}  // namespace zarpel
