// Selection and capture, as the player meets them.
#include <gtest/gtest.h>

#include "tests/support/table.h"

namespace zarpel {
namespace {

// The keys of the cards that are selected; checks that these are the cards that are raised.
std::string Selected(Table& table) {
    std::string keys;
    const auto look = [&keys](const Slot& slot, char key) {
        if (slot.Elegido()) keys += key;
        const Altura altura = AlturaDe(slot.Clase);
        EXPECT_EQ(slot.Imagen.Top.get(), slot.Elegido() ? altura.Levantada : altura.Reposo) << key;
    };
    for (int i = 0; i < kLugaresMano; ++i) look(table.Window.SlotHumano(i), "123"[i]);
    for (int i = 0; i < kLugaresMesa; ++i) look(table.Window.SlotMesa(i), "ASDFGHJK"[i]);
    return keys;
}

TEST(Seleccion, KeepsTheSumAndSaysWhatItRefuses) {
    const Message unaSola = {"SELECCIONE SOLO UNA DE SUS CARTAS", Icon::Exclamation};
    const Message mayor = {"La suma es mayor que 15", Icon::Information};
    const Message debesSumar = {"Para Levantar debes sumar 15", Icon::Information};
    const Message debesSeleccionar = {"Debes seleccionar una de tus cartas"};
    const struct {
        const char *Keys, *Sum, *Selected;
        std::vector<Message> Boxes = {};
        bool ButtonEnabled = true;
    } cases[] = {
        {"11", "0", ""},  // the button stays as it was
        {"1A1", "3", "A"},
        {"1AS", "15", "1AS"},
        {"12", "7", "1", {unaSola}},
        {"1SF", "12", "1S", {mayor}},
        {"DS2", "15", "SD", {mayor}},
        {"L", "", "", {debesSumar}, false},
        {"1SL", "12", "1S", {debesSumar}},
        {"DSL", "15", "SD", {debesSeleccionar}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Keys);
        Table table;
        table.Lay({3, Card(5, 'b'), Card(10, 'c'), Card(4, 'o')}, {Card(7, 'o'), 1, Card(8, 'b')}, {2});
        table.Window.LevantarBtn.Enabled = false;
        table.Window.SumandoLbl.Visible = false;
        table.Press(c.Keys);
        EXPECT_EQ(table.Window.SumandoLbl.Caption.get(), c.Sum);
        EXPECT_EQ(table.Window.SumandoLbl.Visible.get(), *c.Sum != '\0');
        EXPECT_EQ(Selected(table), c.Selected);
        EXPECT_EQ(table.Window.LevantarBtn.Enabled.get(), c.ButtonEnabled);
        EXPECT_EQ(table.Desktop.Boxes, c.Boxes);
    }
}

TEST(Captura, GivesThePlayerTheCardsAndAZarpelWhenItEmptiesTheTable) {
    for (const bool zarpel : {false, true}) {
        SCOPED_TRACE(zarpel);
        const int last = zarpel ? 0 : Card(10, 'c');
        Table table;
        table.Lay({3, Card(5, 'b'), last}, {Card(7, 'o'), 1}, {2});
        table.Press("1AS");
        table.Window.LevantarBtn.Click();
        for (const int carta : {Card(7, 'o'), 3, Card(5, 'b')}) {
            EXPECT_EQ(Naipes->Mazo_Duenio(carta), duenios::kHumano) << carta;
        }
        EXPECT_EQ(Reparto->UltimoqLevanta(), duenios::kHumano);
        EXPECT_EQ(table.InHand(clase::kHumano), std::vector{1});
        EXPECT_EQ(table.OnTable(), zarpel ? std::vector{2} : (std::vector{2, last}));  // 2: the computer's
        EXPECT_EQ(Selected(table), "");
        const std::vector<Message> boxes = {{"¡¡¡ZARPEL!!!", Icon::Exclamation}};
        EXPECT_EQ(table.Desktop.Boxes, zarpel ? boxes : std::vector<Message>{});
        EXPECT_EQ(table.Desktop.Calls.back(), "pause 1500");  // the computer waits for the box
        EXPECT_EQ(Reparto->ZarpelP1(), 0);
        EXPECT_EQ(Reparto->ZarpelP2(), zarpel ? 1 : 0);
    }
}

}  // namespace
}  // namespace zarpel
