// A player who tries anything, legal or not, and repeats with the seed.
#pragma once

#include <random>

#include "ui/playing.h"

namespace zarpel {

class RandomPlayer {
  public:
    RandomPlayer(Playing& window, unsigned seed) : window_(window), generator_(seed) {}

    // One click on a card, one "&Tomar Cartas", or one card of the hand dropped on the table.
    void Act();

  private:
    int Draw(int sides) { return std::uniform_int_distribution(0, sides - 1)(generator_); }

    Playing& window_;
    std::mt19937 generator_;
};

// False: no input on the table can change anything any more. So it must never be while the player is to move.
bool CanAct(Playing& window);

}  // namespace zarpel
