// Start, deals and turns, and what happens when somebody cannot move.
#include <gtest/gtest.h>

#include "tools/play/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

TEST(Reparto, WhoDoesNotDealMovesFirstInEveryDistribution) {
    for (const bool humanFirst : {true, false}) {
        SCOPED_TRACE(humanFirst);
        Table table(3, humanFirst);
        const auto look = [&](int dealt) {
            EXPECT_EQ(Naipes->Repartidas(), dealt);
            EXPECT_EQ(table.InHand(Jugador::Humano).size(), 3U);
            EXPECT_EQ(table.InHand(Jugador::Cpu).size(), humanFirst ? 3U : 2U);
        };
        look(10);
        const Texts captions = table.TakeCaptions();
        EXPECT_EQ(captions.front(), humanFirst ? "Reparte Cpu - Juega Humano" : "Reparte Humano - Juega Cpu");
        EXPECT_EQ(captions.at(1), humanFirst ? "Juega Humano" : "Juega Cpu");
        EXPECT_EQ(captions.back(), "Juega Humano");

        table.Lay({0, 0, 0, 0, 0, 10}, {humanFirst ? 0 : 1}, {humanFirst ? 1 : 0});
        humanFirst ? table.GiveMoveTo(Jugador::Cpu) : table.Press("1", kShift);
        look(16);
        EXPECT_TRUE(table.Window.SlotsMesa()[5].Ocupado());
    }
}

// Who cannot move on a full table passes; when nobody can, the same dealer deals again.
TEST(Paso, NoTableIsEverStuck) {
    const std::string llena = "box La mesa está llena y ninguna de sus cartas suma 15: pasa el turno";
    const std::string ninguno = "box Ninguno de los dos puede jugar: se reparte de nuevo";
    const std::string wait = "pause 1500", paso = "Paso", reparte = "Reparte Cpu - Juega Humano";
    const std::string cpu = "Juega Cpu", yo = "Juega Humano";
    const std::string lleva = "Me llevo estas cartas", laid = "He Jugado una carta";
    constexpr Jugador kYo = Jugador::Humano, kEl = Jugador::Cpu;
    constexpr int kStuck = Card(8, 'o'), kStuckToo = Card(8, 'c'), kTakesEight = Card(7, 'o');
    constexpr int kTakesNine = Card(6, 'e'), kBlind = Card(5, 'e');  // to 2 and 8
    const struct {
        const char* What;
        std::vector<int> Humano, Cpu;
        Texts Calls, Captions;
        Jugador Mover;
        bool Annulled = false;
    } cases[] = {
        {"human", {kStuck}, {kTakesNine, kStuckToo}, {llena, wait}, {cpu, lleva, yo}, kYo},
        {"computer", {kTakesEight}, {kBlind}, {wait}, {cpu, paso, yo}, kEl},
        {"both", {kStuck}, {kStuckToo}, {llena, wait, ninguno}, {cpu, paso, reparte, yo}, kYo, true},
        {"computer without cards", {kTakesEight}, {}, {}, {cpu, yo}, kEl},
        {"human, twice", {}, {kStuck, kTakesNine}, {wait, wait}, {cpu, lleva, yo, cpu, laid, yo}, kYo},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        Table table;
        Reparto->aZarpelP1(2);
        Naipes->aPuntajehumano(4);
        table.Lay({2, 3, 8, 9, 19, 29, 39, 18}, c.Humano, c.Cpu);
        table.GiveMoveTo(c.Mover);
        EXPECT_EQ(table.Desktop.Calls, c.Calls);
        for (const Message& box : table.Desktop.Boxes)
            EXPECT_EQ(box, (Message{box.Text, BoxIcon::Information}));
        EXPECT_EQ(table.TakeCaptions(), c.Captions);
        EXPECT_EQ(table.OnTable().size() == 4, c.Annulled);
        EXPECT_EQ(Reparto->ZarpelP1(), c.Annulled ? 0 : 2);
        EXPECT_EQ(Naipes->Puntajehumano(), 4);
    }
}

}  // namespace
}  // namespace zarpel
