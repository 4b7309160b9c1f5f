// Keys and drops on the main window.
#include <gtest/gtest.h>

#include "tests/support/table.h"

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
            EXPECT_EQ(table.Window.SlotHumano(1).Ocupado(), !(lays && key == '2'));
            EXPECT_EQ(table.Window.SlotHumano(2).Ocupado(), !(lays && key == '3'));
            EXPECT_EQ(table.Desktop.Boxes.size(), key == 'L' ? 1U : 0U);  // the sum is not 15
        }
    }
}

// A drop that waited while the computer moved can find its card gone, or the table full.
TEST(Mouse, ADropLaysACardOnTheFirstFreePlaceIfBothAreThere) {
    Table table;
    table.Lay({3, 13, 0, 23}, {0, 17, 27}, {10, 20});
    table.Window.Frame1.DragDrop(table.Window.cartap2img[0]);
    EXPECT_EQ(table.Desktop.Calls.size(), 0U);  // the turn has not passed
    table.Window.Frame1.DragDrop(table.Window.cartap2img[2]);
    EXPECT_EQ(table.Window.SlotMesa(2).Carta(), 27);
    EXPECT_EQ(table.InHand(clase::kHumano), std::vector{17});

    table.Lay({9, 19, 29, 39, 8, 18, 28, 38}, {6, 2}, {10});
    table.Window.Frame1.DragDrop(table.Window.cartap2img[1]);
    EXPECT_EQ(table.InHand(clase::kHumano), (std::vector{6, 2}));
    EXPECT_EQ(table.Desktop.Calls.size(), 0U);
}

}  // namespace
}  // namespace zarpel
