// Selection and capture, as the player meets them.
#include <gtest/gtest.h>

#include "tests/support/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

TEST(Captura, TakesThreeCardsThatMakeFifteen) {
    Table table;
    table.Lay({Card(3, 'e'), Card(5, 'b'), Card(10, 'c')}, {Card(7, 'o'), Card(1, 'e')}, {Card(2, 'e')});
    table.Window.cartap2img_Click(0);
    table.Window.mesaimg_Click(0);
    table.Window.mesaimg_Click(1);
    EXPECT_EQ(table.Window.SumandoLbl.Caption.get(), "15");
    EXPECT_TRUE(table.Window.LevantarBtn.Enabled);
    table.Window.LevantarBtn_Click();
    for (const int carta : {Card(7, 'o'), Card(3, 'e'), Card(5, 'b')}) {
        EXPECT_EQ(Naipes->Mazo_Duenio(carta), duenios::kHumano) << carta;
    }
    EXPECT_EQ(Reparto->UltimoqLevanta(), duenios::kHumano);
    EXPECT_EQ(table.OnTable(), (std::vector{Card(2, 'e'), Card(10, 'c')}));  // the computer laid its card
    EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});
}

}  // namespace
}  // namespace zarpel
