// The layouts of the game's two kinds of file. A list refers to the places it names and to the records of the
// present match: make it when it is needed, and keep it no longer than the operation lasts.
#pragma once

#include "engine/mesa.h"
#include "storage/fields.h"

namespace zarpel {

// Where the preferences live, but for the nickname, which is in the match record.
struct PreferencePlaces {
    Property<std::string>& Application;  // command line of the program that "Run" starts
    Property<ColorCode>& Table;
    Property<ColorCode>& Rectangle;
    Property<std::string>& CardBack;  // path of the picture
};

// Preference file: five lines.
Fields PreferenceFields(const PreferencePlaces& places);

// Saved match: 201 lines. What the table shows, the match and the deal record, the 40 cards.
Fields MatchFields(Mesa& mesa);

}  // namespace zarpel
