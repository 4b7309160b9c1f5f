// What the fuzz programs of the game's files share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tools/play/installation.h"
#include "tools/play/random_player.h"

namespace zarpel {

inline std::string BytesOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Stops the program, so that the fuzzer keeps the input.
inline void Require(bool condition) {
    if (!condition) std::abort();
}

// Plays on, with the same moves for every input, until the deal is over or that takes too long. There must
// always be a move.
inline void PlayOn(Playing& window, ScriptedDesktop& desktop) {
    bool over = false;
    desktop.Modal = {[&over](Form&) { over = true; }};
    RandomPlayer player(window, 1);
    for (int i = 0; i < 2000 && !over; ++i) {
        Require(CanAct(window) && ShowsWhatIsThere(window));
        player.Act();
    }
}

}  // namespace zarpel
