// The layout of a saved match. A list refers to the places it names and to the records of the
// present match: make it when it is needed, and keep it no longer than the operation lasts.
#pragma once

#include "engine/mesa.h"
#include "storage/fields.h"

namespace zarpel {

// The player's nickname: a preference, and part of a match.
Field Nickname();

// Saved match: 201 lines. What the table shows, the match and the deal record, the 40 cards.
Fields MatchFields(Mesa& mesa);

}  // namespace zarpel
