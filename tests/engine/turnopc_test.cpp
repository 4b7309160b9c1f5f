// What the computer plays, and what the player sees of it.
#include <gtest/gtest.h>

#include <algorithm>

#include "tools/play/table.h"

namespace zarpel {
namespace {

// Cards by index: 1 to 10 are espada, each with its number.
const struct {
    const char* What;
    std::vector<int> Mesa, Cpu;
    int Played;              // its hand slot
    std::vector<int> Taken;  // table cards; none: the card is laid
} kCases[] = {
    {"blind: every walk goes past 2 and 8", {2, 3, 8}, {5}, 0, {}},
    {"a later anchor skips what is before it", {3, 4, 6}, {5}, 0, {4, 6}},
    {"a card too many is left out", {9, 4, 1}, {5}, 0, {9, 1}},
    {"the anchor itself may be too much", {10, 9}, {Card(6, 'o')}, 0, {9}},
    {"the first hand slot that takes wins", {8, 2}, {Card(1, 'c'), 7, Card(7, 'b')}, 1, {8}},
    {"the first anchor wins, not the seven of oro", {3, Card(7, 'b'), Card(7, 'o')}, {8}, 0, {Card(7, 'b')}},
    {"empty places are passed over", {0, 4, 0, 6, 0, Card(9, 'b')}, {0, 0, 5}, 2, {4, 6}},
    {"a zarpel, by chance", {8, 1}, {6, 9}, 0, {8, 1}},
    {"lays the last card it has", {1}, {9, 0, 2}, 2, {}},
};

TEST(TurnoPc, TakesTheFirstCaptureOfItsWalkOrLaysItsLastCard) {
    for (const auto& c : kCases) {
        SCOPED_TRACE(c.What);
        const bool takes = !c.Taken.empty();
        std::vector<int> left = c.Mesa;
        std::erase_if(left, [&](int carta) { return carta == 0 || std::ranges::count(c.Taken, carta) != 0; });
        Table table;
        Playing& window = table.Window;
        table.Lay(c.Mesa, {Card(10, 'c')}, c.Cpu);
        const int played = window.SlotsMano(Jugador::Cpu)[c.Played].Carta();
        table.Desktop.OnPause = [&] {
            EXPECT_EQ(window.SlotsMano(Jugador::Cpu)[c.Played].Imagen.Cover->Visible.get(), !takes);
            for (int i = 0; i < kLugaresMesa && takes; ++i) {
                const Slot slot = window.SlotsMesa()[i];
                const bool taken = slot.Ocupado() && std::ranges::count(left, slot.Carta()) == 0;
                EXPECT_EQ(slot.Imagen.Top.get(), taken ? 0 : 360) << i;
            }
        };
        table.GiveMoveTo(Jugador::Cpu);

        const std::string says = takes ? "Me llevo estas cartas" : "He Jugado una carta";
        EXPECT_EQ(table.TakeCaptions(), (std::vector<std::string>{"Juega Cpu", says, "Juega Humano"}));
        EXPECT_EQ(table.Desktop.Calls.front(), "pause 1500");
        EXPECT_FALSE(window.SlotsMano(Jugador::Cpu)[c.Played].Ocupado());
        EXPECT_EQ(Naipes->Mazo_Duenio(played), takes ? kSignos.Cpu.Duenio : duenios::kLaMesa);
        for (const int carta : c.Taken) EXPECT_EQ(Naipes->Mazo_Duenio(carta), kSignos.Cpu.Duenio) << carta;
        EXPECT_EQ(Reparto->UltimoqLevanta() == kSignos.Cpu.Duenio, takes);
        EXPECT_NE(window.LevantarBtn.Enabled.get(), takes);
        EXPECT_NE(window.SumandoLbl.Visible.get(), takes);
        EXPECT_EQ(Reparto->ZarpelP1(), takes && left.empty() ? 1 : 0);
        EXPECT_EQ(Reparto->ZarpelP2(), 0);
        if (!takes) left.push_back(played);
        EXPECT_EQ(table.OnTable(), left);
    }
}

}  // namespace
}  // namespace zarpel
