// A whole match by a player who does anything that a hand can do at the table, sensible or not. After every
// event, and whenever the game pauses or shows a box, the table must make sense.
#pragma once

#include <array>
#include <cstdint>
#include <stdexcept>

namespace zarpel {

enum Happening {
    kMatches,
    kEvents,
    kDeals,
    kZarpelsSeen,
    kPassesOfTheHuman,
    kPassesOfTheComputer,
    kMatchesWithAPass,
    kAnnulledDeals,
    kDraws,
    kRefusals,
    kHappenings
};
constexpr std::array<const char*, kHappenings> kNamesOfHappenings = {"matches",
                                                                     "events",
                                                                     "deals",
                                                                     "zarpels",
                                                                     "passes of the human",
                                                                     "passes of the computer",
                                                                     "matches with a pass",
                                                                     "annulled deals",
                                                                     "drawn matches",
                                                                     "refusals"};

using Tally = std::array<std::int64_t, kHappenings>;

// Plays one match and adds to `tally` what happened in it. The same seed plays the same match. Throws
// std::runtime_error, with the last events, when the table does not make sense or the match does not end.
void PlayRandomMatch(unsigned seed, Tally& tally);

}  // namespace zarpel
