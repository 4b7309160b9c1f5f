// Selection and capture, as the player meets them.
#include <gtest/gtest.h>

#include "tests/support/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

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

constexpr const char* kUnaSola = "SELECCIONE SOLO UNA DE SUS CARTAS";
constexpr const char* kMayor = "La suma es mayor que 15";
constexpr const char* kDebesSumar = "Para Levantar debes sumar 15";
constexpr const char* kDebesSeleccionar = "Debes seleccionar una de tus cartas";

TEST(Seleccion, KeepsTheSumAndSaysWhatItRefuses) {
    struct Case {
        const char *Keys, *Sum, *Selected;
        const char* Box = "";
        zarpel::Icon Icon = Icon::None;
        bool ButtonEnabled = true;
    };
    const Case cases[] = {
        {"1", "7", "1"},
        {"11", "0", ""},  // the button stays as it was
        {"111", "7", "1"},
        {"1A", "10", "1A"},
        {"1A1", "3", "A"},
        {"1AS", "15", "1AS"},
        {"DS", "15", "SD"},
        {"12", "7", "1", kUnaSola, Icon::Exclamation},
        {"1SF", "12", "1S", kMayor, Icon::Information},
        {"DS2", "15", "SD", kMayor, Icon::Information},
        {"L", "", "", kDebesSumar, Icon::Information, false},
        {"1SL", "12", "1S", kDebesSumar, Icon::Information},
        {"DSL", "15", "SD", kDebesSeleccionar, Icon::None},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Keys);
        Table table;
        table.Lay({Card(3, 'e'), Card(5, 'b'), Card(10, 'c'), Card(4, 'o')},
                  {Card(7, 'o'), Card(1, 'e'), Card(8, 'b')}, {Card(2, 'e')});
        table.Window.LevantarBtn.Enabled = false;
        table.Window.SumandoLbl.Visible = false;
        table.Press(c.Keys);
        EXPECT_EQ(table.Window.SumandoLbl.Caption.get(), c.Sum);
        EXPECT_EQ(table.Window.SumandoLbl.Visible.get(), *c.Sum != '\0');
        EXPECT_EQ(Selected(table), c.Selected);
        EXPECT_EQ(table.Window.LevantarBtn.Enabled.get(), c.ButtonEnabled);
        ASSERT_EQ(table.Desktop.Boxes.size(), *c.Box == '\0' ? 0U : 1U);
        if (*c.Box == '\0') continue;
        const Message& box = table.Desktop.Boxes.front();
        EXPECT_EQ(box.Text, c.Box);
        EXPECT_EQ(box.Icon, c.Icon);
        EXPECT_EQ(box.Title, "");
        EXPECT_EQ(box.Buttons, Buttons::Ok);
    }
}

TEST(Captura, TakesThreeCardsThatMakeFifteen) {
    Table table;
    table.Lay({Card(3, 'e'), Card(5, 'b'), Card(10, 'c')}, {Card(7, 'o'), Card(1, 'e')}, {Card(2, 'e')});
    table.Press("1AS");
    table.Desktop.OnPause = [&table] {  // before the computer's answer
        EXPECT_EQ(table.OnTable(), std::vector{Card(10, 'c')});
        EXPECT_EQ(table.InHand(clase::kHumano), std::vector{Card(1, 'e')});
    };
    table.Window.LevantarBtn.Click();
    for (const int carta : {Card(7, 'o'), Card(3, 'e'), Card(5, 'b')}) {
        EXPECT_EQ(Naipes->Mazo_Duenio(carta), duenios::kHumano) << carta;
    }
    EXPECT_EQ(Reparto->UltimoqLevanta(), duenios::kHumano);
    EXPECT_EQ(table.OnTable(), (std::vector{Card(2, 'e'), Card(10, 'c')}));  // the computer laid its card
    EXPECT_EQ(Selected(table), "");
    EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});
}

TEST(Captura, ThatEmptiesTheTableIsAZarpelOfItsPlayer) {
    for (const bool cpu : {false, true}) {
        SCOPED_TRACE(cpu);
        Table table;
        table.Lay({Card(8, 'e')}, {Card(cpu ? 1 : 7, 'o'), Card(2, 'b')}, {Card(6, 'e'), Card(10, 'e')});
        table.Desktop.OnBox = [&table](const Message&) {
            EXPECT_EQ(table.OnTable(), std::vector<int>{});
            table.Desktop.OnBox = [](const Message&) {};
        };
        if (cpu) {
            table.Press("1", kShift);  // 8 and 1 for the computer's 6
        } else {
            table.Press("1AL");
        }
        ASSERT_EQ(table.Desktop.Boxes.size(), 1U);
        EXPECT_EQ(table.Desktop.Boxes[0].Text, "¡¡¡ZARPEL!!!");
        EXPECT_EQ(table.Desktop.Boxes[0].Icon, Icon::Exclamation);
        EXPECT_EQ(table.Desktop.Boxes[0].Title, "");
        EXPECT_EQ(Reparto->ZarpelP1(), cpu ? 1 : 0);
        EXPECT_EQ(Reparto->ZarpelP2(), cpu ? 0 : 1);
        EXPECT_EQ(Reparto->UltimoqLevanta(), cpu ? duenios::kCpu : duenios::kHumano);
    }
}

}  // namespace
}  // namespace zarpel
