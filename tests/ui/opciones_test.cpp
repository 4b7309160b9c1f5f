// The dialog "Opciones": what the player chooses and cancels in it, and what the main window keeps of it.
#include <gtest/gtest.h>

#include "tools/play/table.h"
#include "ui/preferenciasfrm.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;
using Dialog = preferenciasfrm;

constexpr ColorCode kRed = Rgb(255, 0, 0), kFace = SystemColor(Palette::ButtonFace);

// Those of the defaults that come with the game, but for what a test says.
struct Values {
    ColorCode Fondo = Rgb(0, 128, 0), Rectangulo = Rgb(0, 96, 0);
    std::string Aplicacion = "Click Here", Reverso = {};
    bool operator==(const Values&) const = default;
};

Values Of(const Dialog& dialog) {
    return {dialog.Label1.BackColor, dialog.Label6.BackColor, dialog.Label5.Caption, dialog.Label8.Caption};
}
Values Of(const Playing& window) {
    return {window.BackColor, window.Frame1.BackColor, window.Toolbar1.Tag, window.fondop1img[0].Tag};
}

void Open(Table& table, const std::function<void(Dialog&)>& play) {
    table.Desktop.Modal = {[&](Form& form) { play(dynamic_cast<Dialog&>(form)); }};
    table.Window.preferenciasmnu.Click();
}

TEST(Opciones, KeepsEveryChoiceOnAcceptingAndNoneOtherwise) {
    const std::string cat = "C:\\fotos\\gato.jpg", game = "C:\\juegos\\otro juego.exe";
    const std::string programs = "open (*.exe)|*.exe|(*.bat)|*.bat|(*.com)|*.com|Todos(*.*)|*.* ";
    const std::string pictures = "open Imagenes(*.jpg ;*.bmp)|*.jpg;*.bmp ";
    const std::string restart = "box Este cambio tendra efecto cuando reinicie el juego";
    enum Part { kFondo, kRectangulo, kAplicacion, kReverso, kMarco };
    const struct {
        std::vector<Part> Clicks;
        std::deque<std::optional<ColorCode>> Colors;
        std::deque<std::string> Chosen;
        Values Then;
        Texts Calls;
    } choices[] = {
        {{kFondo, kRectangulo}, {kRed, kFace}, {}, {kRed, kFace}, {"color 0", "color 255"}},
        {{kFondo}, {}, {}, {.Fondo = 0}, {"color 0"}},
        {{kRectangulo, kFondo}, {kRed}, {}, {kRed, kRed}, {"color 0", "color 255"}},
        {{kMarco}, {}, {}, {.Aplicacion = ""}, {programs}},
        {{kAplicacion, kReverso}, {}, {game}, {.Aplicacion = game}, {programs, pictures + game}},
        {{kReverso}, {}, {cat}, {.Reverso = cat}, {pictures, restart}},
        {{kAplicacion, kMarco}, {}, {game}, {.Aplicacion = game}, {programs, programs + game}},
    };
    const std::function<void(Dialog&)> ways[] = {[](Dialog& dialog) { dialog.cmdOK.Click(); },
                                                 [](Dialog& dialog) { dialog.cmdCancel.Click(); },
                                                 &Dialog::Form_QueryClose};
    for (const auto& leave : ways) {
        const bool accepts = &leave == ways;
        for (const auto& choice : choices) {
            SCOPED_TRACE(::testing::Message()
                         << (&choice - choices) << (accepts ? " accepted" : " not accepted"));
            Table table;
            table.Desktop.Files[cat] = "";
            table.Desktop.Colors = choice.Colors;
            table.Desktop.Chosen = choice.Chosen;
            Open(table, [&](Dialog& dialog) {
                std::function<void()>* const parts[] = {&dialog.Label1.Click, &dialog.Label6.Click,
                                                        &dialog.Label5.Click, &dialog.Label8.Click,
                                                        &dialog.Frame3.Click};
                dialog.Form_KeyDown(kKeyTab, kCtrl);
                EXPECT_EQ(dialog.picOptions[0].Left, 210) << "after the last page comes the first";
                for (const Part part : choice.Clicks) (*parts[part])();
                EXPECT_EQ(Of(dialog), choice.Then);
                EXPECT_EQ(Of(table.Window), Values{});
                leave(dialog);
                EXPECT_FALSE(table.Desktop.Shown.contains(&dialog));
            });
            Texts calls = choice.Calls;
            calls.insert(calls.begin(), "modal Opciones");
            if (accepts) calls.push_back("write C:\\Zarpel\\lastprop.dat");
            EXPECT_EQ(table.Desktop.TakeCalls(), calls);
            for (const Message& box : table.Desktop.Boxes) EXPECT_EQ(box, Message{box.Text});
            const Values kept = accepts ? choice.Then : Values{};
            EXPECT_EQ(Of(table.Window), kept);
            table.Window.ResetGame();  // reads the file again
            EXPECT_EQ(Of(table.Window), kept);
            const std::string dorso = kept.Reverso.empty() ? PathOf("dibujo.jpg") : kept.Reverso;
            for (const Image& image : table.Window.fondop1img) EXPECT_EQ(image.Picture.get(), dorso);
        }
    }
}

TEST(Opciones, DefaultReachesTheTableAtOnceAndLastsUntilTheNextMatch) {
    Table table;
    table.Desktop.Files[PathOf("pordefecto.dat")] =
        "\"Otro\"\r\n\"juego\"\r\n255\r\n-2147483633\r\n\"x.jpg\"\r\n";
    Open(table, [&](Dialog& dialog) {
        dialog.Command1.Click();
        EXPECT_EQ(Of(dialog), (Values{kRed, kFace, "juego", "x.jpg"}));
    });
    EXPECT_EQ(Of(table.Window), (Values{kRed, kFace, "juego", "x.jpg"}));
    EXPECT_EQ(table.Desktop.Boxes.size(), 0U);
    EXPECT_EQ(Naipes->Nombrejugador() + table.Window.namelbl.Caption.get(), "OtroHumano");
    table.Window.ResetGame();
    EXPECT_EQ(Of(table.Window), Values{});
}

}  // namespace
}  // namespace zarpel
