// What a player can see of the table, and what the records say, at one moment.
#pragma once

#include <array>
#include <ostream>
#include <string>

#include "ui/playing.h"

namespace zarpel {

// Places: the table's eight, the computer's hand, the player's hand.
constexpr int kCpuHand = 8, kHumanHand = 11, kPlaces = 14;

struct Seen {
    struct Card {
        int Index = 0;  // 1 to 40; of a place that shows none, the last one that it showed
        bool Shown = true, Chosen = false, Raised = false;
        bool operator==(const Card& other) const;
    };
    std::array<Card, kPlaces> Cards;
    std::array<bool, 3> Backs{true, true, true};
    std::array<std::string, 41> Owners;  // by card index
    std::string Caption, Points[2], Name, SumText;
    int Sum = 0;
    bool SumShown = true, ButtonOn = true, BarShown = false, Open = true;
    // The records.
    int Dealer = 0, Dealt = 0, Turn = 0, Score[2]{}, Zarpels[2]{};
    bool First = true;
    std::string Last;

    bool operator==(const Seen&) const = default;
};

// Reads the window. A card with another's picture, or raised too far, gets an index below 0.
Seen See(const Playing& window, bool open);
std::ostream& operator<<(std::ostream& out, const Seen& seen);

}  // namespace zarpel
