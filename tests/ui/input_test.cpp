// Mouse, keyboard and drops on the main window, and what a screen reader is told.
#include <gtest/gtest.h>

#include "tests/support/table.h"

namespace zarpel {
namespace {

TEST(Keyboard, EveryKeyDoesWhatItSaysAndNoOther) {
    for (int key = 0; key < 256; ++key) {
        for (int shift = 0; shift < 8; ++shift) {
            SCOPED_TRACE(::testing::Message() << "key " << key << " shift " << shift);
            Table table;
            table.Lay({3, 13, 0, 23, 33, 4, 14, 24}, {0, 17, 27}, {10, 20});
            table.Window.Form_KeyDown(key, shift);
            for (int i = 0; i < kLugaresMesa; ++i) {
                EXPECT_EQ(table.Window.SlotMesa(i).Elegido(), "ASDFGHJK"[i] == key && i != 2);
            }
            for (int i = 0; i < kLugaresMano; ++i) {
                const bool pressed = "123"[i] == key && i != 0;
                const Slot slot = table.Window.SlotHumano(i);
                EXPECT_EQ(slot.Elegido(), pressed && shift != kShift);
                EXPECT_EQ(slot.Ocupado(), i != 0 && !(pressed && shift == kShift));
            }
            EXPECT_EQ(table.Desktop.Boxes.size(), key == 'L' ? 1U : 0U);  // the sum is not 15
        }
    }
}

// A click or a drop that waited while the computer moved can find its card gone.
TEST(Mouse, ClicksSelectCardsAndADropLaysOneUnlessItIsGone) {
    Table table;
    Playing& window = table.Window;
    table.Lay({3, 13, 0, 23}, {0, 17, 27}, {10, 20});
    for (Image* card :
         {&window.mesaimg[0], &window.cartap2img[1], &window.mesaimg[2], &window.cartap2img[0]}) {
        card->Click();
        EXPECT_EQ(window.Suma(), card == &window.mesaimg[0] ? 3 : 10);
    }
    window.Frame1.DragDrop(window.cartap2img[0]);
    EXPECT_EQ(table.Desktop.Calls.size(), 0U);  // the turn has not passed
    window.Frame1.DragDrop(window.cartap2img[2]);
    EXPECT_EQ(window.SlotMesa(2).Carta(), 27);
    EXPECT_EQ(table.InHand(clase::kHumano), std::vector{17});
    for (const Image& card : window.cartap2img) EXPECT_TRUE(card.Draggable);
    for (const Image& card : window.cartap1img) EXPECT_FALSE(card.Draggable || card.Click);
}

TEST(Mouse, TheStatusBarComesNearTheBottomEdge) {
    Table table;
    EXPECT_FALSE(table.Window.StatusBar1.Visible);
    for (const int y : {8055, 8054, 9000, 0}) {
        table.Window.Form_MouseMove(100, y);
        EXPECT_EQ(table.Window.StatusBar1.Visible.get(), y >= 8055) << y;
    }
}

// What a screen reader finds at a computer's card: the back while it is there.
std::string SpokenOf(const Image& image) {
    const Image& seen = image.Cover != nullptr && image.Cover->Visible ? *image.Cover : image;
    return seen.Spoken().Name + " / " + seen.Spoken().Description;
}

TEST(Accessibility, CardsSayTheirFacePlaceAndStateAndBacksNothing) {
    Table table;
    table.Lay({3, Card(8, 'o')}, {Card(7, 'b'), Card(10, 'c'), 5}, {Card(7, 'e'), Card(7, 'o')});
    Playing& window = table.Window;
    window.cartap2img[1].Click();
    EXPECT_EQ(SpokenOf(window.mesaimg[1]), "8 de oro / mesa 2");
    EXPECT_EQ(SpokenOf(window.cartap2img[0]), "7 de basto / mano 1");
    EXPECT_EQ(SpokenOf(window.cartap2img[1]), "10 de copa / mano 2, elegida");
    EXPECT_EQ(SpokenOf(window.cartap1img[0]), "carta tapada / cpu 1");
    table.Desktop.OnPause = [&window] {
        EXPECT_EQ(SpokenOf(window.cartap1img[0]), "7 de espada / cpu 1, elegida");
        EXPECT_EQ(SpokenOf(window.cartap1img[1]), "carta tapada / cpu 2");
    };
    table.Press("3", kShift);
    EXPECT_EQ(table.Desktop.Pauses.size(), 1U);
}

}  // namespace
}  // namespace zarpel
