// A game set up to be tried: the main window on a desktop without a screen, loaded, and laid out card by
// card.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "engine/zarpelfunc.h"
#include "tools/play/installation.h"
#include "ui/playing.h"

namespace zarpel {

// Index of a card; `palo` is 'e', 'b', 'o' or 'c'.
constexpr int Card(int numero, char palo) {
    return numero + (palo == 'e' ? 0 : palo == 'b' ? 10 : palo == 'o' ? 20 : 30);
}

// Lays these cards (indexes, 0 for an empty place) in slot order; all other places are empty, all other cards
// in the stock. It is the human's move.
void LayCards(Playing& window, const std::vector<int>& mesa, const std::vector<int>& humano,
              const std::vector<int>& cpu);

struct Table {
    // Starts the program; the first match is dealt, and the human is to move when `humanFirst`.
    explicit Table(unsigned seed = 1, bool humanFirst = true);

    // As LayCards; forgets the boxes, calls and captions so far.
    void Lay(const std::vector<int>& mesa, const std::vector<int>& humano, const std::vector<int>& cpu);

    // Presses keys, one a character, as the player would; Shift is held for all of them or for none.
    void Press(const std::string& keys, int shift = 0) {
        for (const char key : keys) Window.Form_KeyDown(key, shift);
    }
    // Runs the turn decision as if it were this player's turn.
    void GiveMoveTo(Jugador quien) {
        Reparto->aTurno(kSignos[quien].Turno);
        Window.DecideTurno();
    }
    // The captions that cartellbl has shown since the last call of this function.
    std::vector<std::string> TakeCaptions() { return std::exchange(captions_, {}); }

    // The indexes of the cards shown in a hand, or on the table, in slot order.
    std::vector<int> InHand(Jugador quien) { return CardsIn(Window.SlotsMano(quien)); }
    std::vector<int> OnTable() { return CardsIn(Window.SlotsMesa()); }

    // The keys of the cards that are selected, those of the hand first.
    std::string Selected();

    InstalledDesktop Desktop;
    Playing Window{Desktop};

  private:
    static std::vector<int> CardsIn(std::span<const Slot> row);

    std::vector<std::string> captions_;
};

}  // namespace zarpel
