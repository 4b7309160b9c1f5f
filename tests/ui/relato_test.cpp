// What a player who cannot see the table is told.
#include <gtest/gtest.h>

#include "tools/play/table.h"

namespace zarpel {
namespace {

constexpr int kSiete = Card(7, 'o'), kTres = Card(3, 'b'), kOcho = Card(8, 'c'), kRey = Card(10, 'e');
const std::vector<int> kLlena = {Card(10, 'e'), Card(10, 'b'), Card(10, 'o'), Card(10, 'c'),
                                 Card(9, 'e'),  Card(9, 'b'),  Card(9, 'o'),  Card(9, 'c')};

TEST(Relato, TellsEveryMoveInOneTextWhenTheHumanIsToMove) {
    const struct {
        const char* What;
        std::vector<int> Mesa, Humano, Cpu;
        std::string Keys;
        int Shift;
        std::string Told;
    } cases[] = {
        {"a selection", {kSiete}, {0, kOcho}, {}, "A2", 0, "8 de copa elegida, suma 15."},
        {"taken back", {kSiete}, {0, kOcho}, {}, "A2A", 0, "7 de oro suelta, suma 8."},
        {"no card on the table there", {kSiete}, {kOcho}, {}, "S", 0, "mesa 2, vacía."},
        {"no card in the hand there", {kSiete}, {kOcho}, {}, "3", kShift, "mano 3, vacía."},
        {"no place to lay a card", kLlena, {Card(5, 'o')}, {kOcho}, "1", kShift, "La mesa está llena."},
        {"a capture, and a card laid",
         {kSiete, kTres, Card(5, 'e')},
         {kOcho, kRey},
         {Card(4, 'b'), 0},
         "1AL",
         0,
         "Humano toma 7 de oro con 8 de copa. La Cpu deja 4 de basto, mesa 1. Juega Humano."},
        {"a card laid, and a capture",
         {kSiete, kTres, Card(1, 'o')},
         {kOcho, kRey},
         {Card(3, 'e')},
         "1",
         kShift,
         "Humano deja 8 de copa, mesa 4. La Cpu toma 3 de basto, 1 de oro y 8 de copa con 3 de espada. "
         "Juega Humano."},
        {"a zarpel",
         {kSiete},
         {kOcho, kRey},
         {Card(4, 'b')},
         "1AL",
         0,
         "Humano toma 7 de oro con 8 de copa. Zarpel: Humano deja la mesa vacía. La Cpu deja 4 de basto, "
         "mesa 1. Juega Humano."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        Table table;
        table.Lay(c.Mesa, c.Humano, c.Cpu);
        table.Press(c.Keys, c.Shift);
        EXPECT_EQ(table.Desktop.Announced.back(), c.Told);
    }
}

TEST(Relato, TellsWhoPassesAndHowADealEnds) {
    Table table;
    auto& told = table.Desktop.Announced;
    EXPECT_TRUE(told.front().starts_with("Puntos: Cpu 0, Humano 0. Reparte Cpu. Mesa: 1, ")) << told.front();
    table.Lay(kLlena, {kOcho}, {Card(6, 'e')});
    table.GiveMoveTo(Jugador::Humano);
    EXPECT_EQ(told.back(), "Humano pasa. La Cpu toma 9 de espada con 6 de espada. Juega Humano.");

    table.Lay({kSiete, kTres}, {kOcho}, {});
    Naipes->aRepartidas(40);
    Naipes->aPuntajecpu(5);
    Reparto->aUltimoqLevanta("player1");
    Reparto->aZarpelP1(0);
    std::string before;
    table.Desktop.Modal = {[&](Form&) { before = told.back(); }};
    table.Press("1", kShift);
    EXPECT_EQ(before, told.at(told.size() - 2)) << "the count is told before its window is shown";
    EXPECT_EQ(before,
              "Humano deja 8 de copa, mesa 3. Fin de la vuelta. La Cpu se lleva el resto: 7 de oro, 3 de "
              "basto y 8 de copa. Cartas: Cpu 3, Humano 37. Oros: Cpu 1, Humano 9. Sietes: Cpu 1, Humano 3. "
              "Velo: Cpu 1, Humano 0. Zarpel: Cpu 0, Humano 0. Puntos: Cpu 6, Humano 3.");
    EXPECT_TRUE(told.back().starts_with("Puntos: Cpu 6, Humano 3. Reparte Humano. La Cpu ")) << told.back();

    // After cards were dealt, and in a match that is opened, the player knows none of them.
    table.Lay({0, kSiete, 0, kTres}, {0, 0, kOcho}, {kRey});
    table.Window.CargarJuego(table.Window.GuardaJuego("a.zrp"));
    EXPECT_EQ(told.back(), "Mesa: 2, 7 de oro; 4, 3 de basto. Mano: 3, 8 de copa. Juega Humano.");
    table.Lay({}, {0, 0, kOcho}, {kRey});
    told.clear();
    table.Window.CargarJuego(table.Window.GuardaJuego("a.zrp"));
    EXPECT_EQ(told.size(), 1U) << "nothing of the match that was dealt meanwhile";
    EXPECT_EQ(told.back(), "Mesa vacía. Mano: 3, 8 de copa. Juega Humano.");
    table.Lay({kSiete}, {kOcho}, {});
    table.Press("1AL");
    EXPECT_TRUE(
        told.back().starts_with("Humano toma 7 de oro con 8 de copa. Zarpel: Humano deja la mesa vacía. "
                                "Se reparten tres cartas. La Cpu deja "))
        << told.back();
    EXPECT_NE(told.back().find(" Mano: 1, "), std::string::npos);
}

}  // namespace
}  // namespace zarpel
