// What the computer plays, and what the player sees of it.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/table.h"

namespace zarpel {
namespace {

// The move as it stands on the table during its pause.
struct Seen {
    std::string Caption;
    std::vector<int> Raised;  // table cards
    std::vector<int> FaceUp;  // the computer's hand slots
    bool Still = true;        // every card that is not selected lies at rest
};

Seen Look(Playing& window) {
    Seen seen{.Caption = window.cartellbl.Caption, .Raised = {}, .FaceUp = {}};
    for (int i = 0; i < kLugaresMesa; ++i) {
        const Slot slot = window.SlotMesa(i);
        if (slot.Elegido() && slot.Imagen.Top == 0) seen.Raised.push_back(slot.Carta());
        if (!slot.Elegido() && slot.Imagen.Top != 360) seen.Still = false;
    }
    for (int i = 0; i < kLugaresMano; ++i) {
        const bool covered = window.fondop1img.at(static_cast<std::size_t>(i)).Visible;
        if (window.SlotCpu(i).Ocupado() && !covered) seen.FaceUp.push_back(i);
    }
    return seen;
}

struct Case {
    const char* What;
    std::vector<int> Mesa, Cpu;
    int Played;              // its hand slot
    std::vector<int> Taken;  // table cards; none: the card is laid
};

const Case kCases[] = {
    {"a pair", {Card(1, 'e'), Card(8, 'e')}, {Card(7, 'o')}, 0, {Card(8, 'e')}},
    {"blind: every walk goes past 2 and 8",
     {Card(2, 'e'), Card(3, 'e'), Card(8, 'e')},
     {Card(5, 'e')},
     0,
     {}},
    {"a later anchor skips what is before it",
     {Card(3, 'e'), Card(4, 'e'), Card(6, 'e')},
     {Card(5, 'e')},
     0,
     {Card(4, 'e'), Card(6, 'e')}},
    {"a card too many is left out",
     {Card(9, 'e'), Card(4, 'e'), Card(1, 'e')},
     {Card(5, 'e')},
     0,
     {Card(9, 'e'), Card(1, 'e')}},
    {"the anchor itself may be too much", {Card(10, 'e'), Card(9, 'e')}, {Card(6, 'o')}, 0, {Card(9, 'e')}},
    {"the first hand slot wins",
     {Card(8, 'e'), Card(9, 'e')},
     {Card(6, 'e'), Card(7, 'e')},
     0,
     {Card(9, 'e')}},
    {"the second hand slot when the first has none",
     {Card(8, 'e'), Card(2, 'e')},
     {Card(1, 'c'), Card(7, 'e'), Card(7, 'b')},
     1,
     {Card(8, 'e')}},
    {"the first anchor wins, not the seven of oro",
     {Card(3, 'e'), Card(7, 'b'), Card(7, 'o')},
     {Card(8, 'e')},
     0,
     {Card(7, 'b')}},
    {"no care for more cards",
     {Card(10, 'e'), Card(4, 'e'), Card(6, 'e')},
     {Card(5, 'e')},
     0,
     {Card(10, 'e')}},
    {"empty places are passed over",
     {0, Card(4, 'e'), 0, Card(6, 'e'), 0, Card(9, 'b')},
     {0, 0, Card(5, 'e')},
     2,
     {Card(4, 'e'), Card(6, 'e')}},
    {"a zarpel, by chance", {Card(8, 'e')}, {Card(7, 'o')}, 0, {Card(8, 'e')}},
    {"lays the last card it has", {Card(1, 'e')}, {Card(9, 'e'), 0, Card(2, 'e')}, 2, {}},
    {"lays on the empty table", {}, {Card(9, 'e'), Card(2, 'e')}, 1, {}},
};

TEST(TurnoPc, TakesTheFirstCaptureOfItsWalkOrLaysItsLastCard) {
    for (const Case& c : kCases) {
        SCOPED_TRACE(c.What);
        Table table;
        table.Lay(c.Mesa, {Card(10, 'c')}, c.Cpu);
        const bool takes = !c.Taken.empty();
        const int played = table.Window.SlotCpu(c.Played).Carta();
        Seen seen;
        table.Desktop.OnPause = [&] { seen = Look(table.Window); };
        table.GiveMoveTo(clase::kCpu);

        EXPECT_EQ(table.Desktop.Pauses, std::vector{1500});
        EXPECT_EQ(seen.Caption, takes ? "Me llevo estas cartas" : "He Jugado una carta");
        EXPECT_EQ(seen.FaceUp, takes ? std::vector{c.Played} : std::vector<int>{});
        EXPECT_TRUE(seen.Still);
        if (takes) {
            EXPECT_EQ(seen.Raised, c.Taken);
        }
        EXPECT_FALSE(table.Window.SlotCpu(c.Played).Ocupado());
        EXPECT_EQ(Naipes->Mazo_Duenio(played), takes ? duenios::kCpu : duenios::kLaMesa);
        for (const int carta : c.Taken) EXPECT_EQ(Naipes->Mazo_Duenio(carta), duenios::kCpu) << carta;

        std::vector<int> left;
        for (const int carta : c.Mesa) {
            if (carta != 0 && std::find(c.Taken.begin(), c.Taken.end(), carta) == c.Taken.end()) {
                left.push_back(carta);
            }
        }
        if (!takes) left.push_back(played);
        EXPECT_EQ(table.OnTable(), left);
        EXPECT_EQ(table.Desktop.Boxes.size(), left.empty() ? 1U : 0U);  // the zarpel's
        EXPECT_EQ(table.TakeCaptions().back(), "Juega " + Naipes->Nombrejugador());
    }
}

}  // namespace
}  // namespace zarpel
