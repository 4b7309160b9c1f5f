// Selection and capture, as the player meets them.
#include <gtest/gtest.h>

#include "tools/play/table.h"

namespace zarpel {
namespace {

TEST(Seleccion, KeepsTheSumAndSaysWhatItRefuses) {
    const struct {
        const char *Keys, *Sum, *Selected;
        std::vector<Message> Boxes;
    } cases[] = {
        {"1A1", "3", "A", {}},
        {"12", "7", "1", {{"SELECCIONE SOLO UNA DE SUS CARTAS", BoxIcon::Exclamation}}},
        {"1SF", "12", "1S", {{"La suma es mayor que 15", BoxIcon::Information}}},
        {"1SL", "12", "1S", {{"Para Levantar debes sumar 15", BoxIcon::Information}}},
        {"DSL", "15", "SD", {{"Debes seleccionar una de tus cartas"}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Keys);
        Table table;
        Playing& window = table.Window;
        table.Lay({3, Card(5, 'b'), Card(10, 'c'), Card(4, 'o')}, {Card(7, 'o'), 1}, {2});
        window.LevantarBtn.Enabled = false;
        window.SumandoLbl.Visible = false;
        table.Press(c.Keys);
        EXPECT_TRUE(window.LevantarBtn.Enabled && window.SumandoLbl.Visible);
        EXPECT_EQ(window.SumandoLbl.Caption.get(), c.Sum);
        EXPECT_EQ(table.Selected(), c.Selected);
        EXPECT_EQ(table.Desktop.Boxes, c.Boxes);
    }
}

TEST(Captura, GivesThePlayerTheCardsAndAZarpelWhenItEmptiesTheTable) {
    Table table;
    table.Lay({3, Card(5, 'b')}, {Card(7, 'o'), 1}, {2});
    table.Press("1AS");
    table.Window.LevantarBtn.Click();
    for (const int carta : {Card(7, 'o'), 3, Card(5, 'b')}) {
        EXPECT_EQ(Naipes->Mazo_Duenio(carta), kSignos.Humano.Duenio) << carta;
    }
    EXPECT_EQ(table.InHand(Jugador::Humano), std::vector{1});
    EXPECT_EQ(Reparto->UltimoqLevanta(), kSignos.Humano.Duenio);
    EXPECT_EQ(Reparto->ZarpelP1(), 0);
    EXPECT_EQ(Reparto->ZarpelP2(), 1);
    EXPECT_EQ(table.Desktop.Boxes, (std::vector<Message>{{"¡¡¡ZARPEL!!!", BoxIcon::Exclamation}}));
    EXPECT_EQ(table.Desktop.Calls.back(), "pause 1500");  // the computer waits for the box
}

}  // namespace
}  // namespace zarpel
