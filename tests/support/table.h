// A game set up for a test: the main window on a scripted desktop, loaded, and laid out card by card.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "engine/zarpelfunc.h"
#include "tests/support/scripted_desktop.h"
#include "ui/playing.h"

namespace zarpel {

// Index of a card; `palo` is 'e', 'b', 'o' or 'c'.
constexpr int Card(int numero, char palo) {
    return numero + (palo == 'e' ? 0 : palo == 'b' ? 10 : palo == 'o' ? 20 : 30);
}

struct Table {
    // Starts the program; the first match is dealt, and the human is to move when `humanFirst`.
    explicit Table(unsigned seed = 1, bool humanFirst = true);

    // Lays these cards (indexes, 0 for an empty place) in slot order; all other places are empty, all other
    // cards in the stock. It is the human's move.
    void Lay(std::initializer_list<int> mesa, std::initializer_list<int> humano,
             std::initializer_list<int> cpu);

    // The indexes of the cards shown on the table, or in a hand, in slot order.
    std::vector<int> OnTable();
    std::vector<int> InHand(char clase);

    ScriptedDesktop Desktop;
    Playing Window{Desktop};
};

}  // namespace zarpel
