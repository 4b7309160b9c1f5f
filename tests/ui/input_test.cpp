// Keys on the main window.
#include <gtest/gtest.h>

#include "tools/play/table.h"

namespace zarpel {
namespace {

TEST(Keyboard, EveryKeyDoesWhatItSaysAndNoOther) {
    constexpr std::string_view kTableKeys = "ASFGHJK";  // no card lies at D
    for (int key = 0; key < 256; ++key) {
        for (int shift = 0; shift < 8; ++shift) {
            SCOPED_TRACE(::testing::Message() << "key " << key << " shift " << shift);
            Table table;
            table.Lay({3, 13, 0, 23, 33, 4, 14, 24}, {0, 17, 27}, {10, 20});
            table.Window.Form_KeyDown(key, shift);
            const bool ofHand = key == '2' || key == '3', lays = ofHand && shift == kShift;
            const bool selects = ofHand ? !lays : kTableKeys.find(static_cast<char>(key)) != kTableKeys.npos;
            EXPECT_EQ(table.Selected(), selects ? std::string(1, static_cast<char>(key)) : "");
            EXPECT_EQ(table.Window.SlotsMano(Jugador::Humano)[1].Ocupado(), !(lays && key == '2'));
            EXPECT_EQ(table.Window.SlotsMano(Jugador::Humano)[2].Ocupado(), !(lays && key == '3'));
            EXPECT_EQ(table.Desktop.Boxes.size(), key == 'L' ? 1U : 0U);  // the sum is not 15
        }
    }
}

}  // namespace
}  // namespace zarpel
