// How cards and card backs get on the table.
#include <gtest/gtest.h>

#include "tests/support/table.h"

namespace zarpel {
namespace {

TEST(Display, APositionCodeNamesOnePlaceAndOthersNone) {
    Table table;
    table.Lay({}, {}, {});
    for (Image& imagen : table.Window.mesaimg) imagen.Tag = "";
    for (const int codigo : {0, 15, -1}) {
        EXPECT_TRUE(table.Window.UpdateImagenDesktop(codigo, CardPicture(9), 9)) << codigo;
    }
    EXPECT_TRUE(table.Window.UpdateImagenDesktop(11, "", 9));
    for (const Image& imagen : table.Window.mesaimg) EXPECT_EQ(imagen.Tag.get(), "");
    EXPECT_FALSE(table.Window.UpdateImagenDesktop(11, PathOf("none.png"), 9));
    EXPECT_TRUE(table.Window.UpdateImagenDesktop(11, CardPicture(9), 9));
    EXPECT_EQ(table.Window.mesaimg[4].Tag.get(), "9");
    EXPECT_EQ(table.Window.mesaimg[4].Picture.get(), CardPicture(9));
    EXPECT_FALSE(table.Window.mesaimg[4].Visible);
}

TEST(Display, CardBacksFallBackOnTheGamesOwn) {
    const std::string propio = PathOf("dibujo.jpg"), mio = PathOf("mio.jpg"), old = ":/dorso.jpg";
    struct Case {
        const char* What;
        std::string Wanted;
        std::vector<std::string> Present;
        std::string Shown, Tag;
    };
    const Case cases[] = {
        {"none wanted", "", {propio}, propio, ""},
        {"wanted", mio, {propio, mio}, mio, mio},
        {"wanted and missing", mio, {propio}, propio, propio},
        {"nothing there", mio, {}, old, propio},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.What);
        Table table;
        table.Desktop.Files.erase(propio);
        for (const std::string& path : c.Present) table.Desktop.Files[path] = "";
        for (Image& dorso : table.Window.fondop1img) dorso.Picture = old;
        table.Window.fondop1img[0].Tag = c.Wanted;
        table.Window.CargaDorsos();
        for (const Image& dorso : table.Window.fondop1img) EXPECT_EQ(dorso.Picture.get(), c.Shown);
        EXPECT_EQ(table.Window.fondop1img[0].Tag.get(), c.Tag);
    }
}

}  // namespace
}  // namespace zarpel
