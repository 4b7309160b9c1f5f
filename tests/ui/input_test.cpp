// Mouse, keyboard and drops on the main window, and what a screen reader is told.
#include <gtest/gtest.h>

#include "tests/support/table.h"

namespace zarpel {
namespace {

struct Laid : Table {
    Laid() { Lay({3, 13, 0, 23, 33, 4, 14, 24}, {0, 17, 27}, {10, 20}); }
};

TEST(Keyboard, EveryKeyDoesWhatItSaysAndNoOther) {
    const std::string mano = "123", mesa = "ASDFGHJK";
    for (int key = 0; key < 256; ++key) {
        for (int shift = 0; shift < 8; ++shift) {
            SCOPED_TRACE(::testing::Message() << "key " << key << " shift " << shift);
            Laid table;
            table.Window.Form_KeyDown(key, shift);
            const char letter = static_cast<char>(key);
            for (int i = 0; i < kLugaresMesa; ++i) {
                const bool chosen = mesa[static_cast<std::size_t>(i)] == letter && i != 2;
                EXPECT_EQ(table.Window.CheckMesa.at(static_cast<std::size_t>(i)).Value.get(), chosen);
            }
            for (int i = 0; i < kLugaresMano; ++i) {
                const bool pressed = mano[static_cast<std::size_t>(i)] == letter && i != 0;
                const Slot slot = table.Window.SlotHumano(i);
                EXPECT_EQ(slot.Elegido(), pressed && shift != kShift);
                EXPECT_EQ(slot.Ocupado(), i != 0 && !(pressed && shift == kShift));
            }
            EXPECT_EQ(table.Desktop.Boxes.size(), letter == 'L' ? 1U : 0U);  // the sum is not 15
        }
    }
}

TEST(Keyboard, IsDeafUntilAMatchIsSetUp) {
    Laid table;
    table.Window.puntajeP1Lbl.Caption = "";
    table.Press("2AL");
    table.Press("2", kShift);
    EXPECT_EQ(table.Window.Suma(), 0);
    EXPECT_EQ(table.InHand(clase::kHumano).size(), 2U);
    EXPECT_EQ(table.Desktop.Boxes.size(), 0U);
}

TEST(Mouse, ClicksSelectShownCardsAndADropLaysOne) {
    Laid table;
    table.Window.mesaimg[0].Click();
    table.Window.cartap2img[1].Click();
    EXPECT_EQ(table.Window.Suma(), 10);
    // A click or a drop that waited while the computer moved can find its card gone.
    table.Window.mesaimg[2].Click();
    table.Window.cartap2img[0].Click();
    EXPECT_EQ(table.Window.Suma(), 10);
    table.Window.Frame1.DragDrop(table.Window.cartap2img[0]);
    EXPECT_EQ(table.OnTable().size(), 7U);
    EXPECT_EQ(table.Desktop.Pauses.size(), 0U);  // the turn has not passed

    table.Window.Frame1.DragDrop(table.Window.cartap2img[2]);
    EXPECT_EQ(table.Window.SlotMesa(2).Carta(), 27);
    EXPECT_EQ(table.InHand(clase::kHumano), std::vector{17});
    for (int i = 0; i < kLugaresMano; ++i) {
        EXPECT_TRUE(table.Window.SlotHumano(i).Imagen.Draggable);
        EXPECT_FALSE(table.Window.SlotCpu(i).Imagen.Draggable);
        EXPECT_FALSE(table.Window.SlotCpu(i).Imagen.Click);
    }
}

TEST(Mouse, TheStatusBarComesNearTheBottomEdge) {
    Table table;
    EXPECT_FALSE(table.Window.StatusBar1.Visible);
    for (const int y : {8055, 8054, 9000, 0}) {
        table.Window.Form_MouseMove(100, y);
        EXPECT_EQ(table.Window.StatusBar1.Visible.get(), y >= 8055) << y;
    }
    table.Window.Form_DblClick();
    EXPECT_EQ(table.Desktop.TakeCalls(), std::vector<std::string>{});
}

// What a screen reader finds at a computer's card: the back while it is there.
std::string SpokenOf(const Image& image) {
    const Image& seen = image.Cover != nullptr && image.Cover->Visible ? *image.Cover : image;
    const Spoken spoken = seen.Spoken();
    return spoken.Name + " / " + spoken.Description;
}

TEST(Accessibility, CardsSayTheirFacePlaceAndStateAndBacksNothing) {
    Table table;
    table.Lay({3, Card(8, 'o')}, {Card(7, 'o'), Card(10, 'c'), 5}, {Card(7, 'e'), Card(7, 'b')});
    Playing& window = table.Window;
    window.cartap2img[1].Click();
    EXPECT_EQ(SpokenOf(window.mesaimg[1]), "8 de oro / mesa 2");
    EXPECT_EQ(SpokenOf(window.cartap2img[0]), "7 de oro / mano 1");
    EXPECT_EQ(SpokenOf(window.cartap2img[1]), "10 de copa / mano 2, elegida");
    EXPECT_EQ(SpokenOf(window.cartap1img[0]), "carta tapada / cpu 1");
    EXPECT_EQ(SpokenOf(window.cartap1img[1]), "carta tapada / cpu 2");
    table.Desktop.OnPause = [&window] {
        EXPECT_EQ(SpokenOf(window.cartap1img[0]), "7 de espada / cpu 1, elegida");
        EXPECT_EQ(SpokenOf(window.cartap1img[1]), "carta tapada / cpu 2");
    };
    table.Press("3", kShift);
    EXPECT_EQ(table.Desktop.Pauses.size(), 1U);
}

}  // namespace
}  // namespace zarpel
