// The dialog "Opciones": what the player chooses and cancels in it, and what the main window keeps of it.
#include <gtest/gtest.h>

#include "tests/support/table.h"
#include "ui/preferenciasfrm.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;
using Dialog = preferenciasfrm;

constexpr ColorCode kRed = Rgb(255, 0, 0), kFace = SystemColor(kButtonFace);
const std::string kCat = "C:\\fotos\\gato.jpg", kOther = "C:\\juegos\\otro juego.exe";
const std::string kPrograms = "open (*.exe)|*.exe|(*.bat)|*.bat|(*.com)|*.com|Todos(*.*)|*.* ";
const std::string kPictures = "open Imagenes(*.jpg ;*.bmp)|*.jpg;*.bmp ";
const Message kRestart = {"Este cambio tendra efecto cuando reinicie el juego"};

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

void ClickOn(Dialog& dialog, char which) {
    const std::map<char, std::function<void()>*> clicks = {{'1', &dialog.Label1.Click},
                                                           {'3', &dialog.Frame3.Click},
                                                           {'5', &dialog.Label5.Click},
                                                           {'6', &dialog.Label6.Click},
                                                           {'8', &dialog.Label8.Click}};
    (*clicks.at(which))();
}

TEST(Opciones, KeepsEveryChoiceOnAcceptingAndNoneOtherwise) {
    const struct {
        std::string Clicks;  // digits of the controls' names
        std::deque<std::optional<ColorCode>> Colors;
        std::deque<std::string> Chosen;
        Values Then;
        Texts Calls;
    } choices[] = {
        {"16", {kRed, kFace}, {}, {kRed, kFace}, {"color 0", "color 255"}},
        {"1", {}, {}, {.Fondo = 0}, {"color 0"}},
        {"61", {kRed}, {}, {kRed, kRed}, {"color 0", "color 255"}},
        {"3", {}, {}, {.Aplicacion = ""}, {kPrograms}},
        {"558", {}, {kOther}, {.Aplicacion = kOther}, {kPrograms, kPrograms + kOther, kPictures + kOther}},
        {"8", {}, {}, {}, {kPictures}},
        {"85",
         {},
         {kCat},
         {.Aplicacion = kCat, .Reverso = kCat},
         {kPictures, "box " + kRestart.Text, kPrograms + kCat}},
    };
    const std::function<void(Dialog&)> ways[] = {[](Dialog& dialog) { dialog.cmdOK.Click(); },
                                                 [](Dialog& dialog) { dialog.cmdCancel.Click(); },
                                                 [](Dialog& dialog) { dialog.Form_QueryClose(); }};
    for (const auto& leave : ways) {
        const bool accepts = &leave == ways;
        for (const auto& choice : choices) {
            SCOPED_TRACE(choice.Clicks + (accepts ? ", accepted" : ", not accepted"));
            Table table;
            table.Desktop.Files[kCat] = "";
            table.Desktop.Colors = choice.Colors;
            table.Desktop.Chosen = choice.Chosen;
            Open(table, [&](Dialog& dialog) {
                for (const char which : choice.Clicks) ClickOn(dialog, which);
                EXPECT_EQ(Of(dialog), choice.Then);
                EXPECT_EQ(Of(table.Window), Values{});
                leave(dialog);
                EXPECT_EQ(table.Desktop.Shown, std::vector<Form*>{&table.Window});
            });
            Texts calls = choice.Calls;
            calls.insert(calls.begin(), "modal Opciones");
            if (accepts) calls.push_back("write C:\\Zarpel\\lastprop.dat");
            EXPECT_EQ(table.Desktop.TakeCalls(), calls);
            for (const Message& box : table.Desktop.Boxes) EXPECT_EQ(box, kRestart);
            EXPECT_EQ(Of(table.Window), accepts ? choice.Then : Values{});
            table.Desktop.Draws = {0.0};  // the human moves first
            table.Window.ResetGame();     // reads the file again
            EXPECT_EQ(Of(table.Window), accepts ? choice.Then : Values{});
        }
    }
}

TEST(Opciones, DefaultReachesTheTableAtOnceAndLastsUntilTheNextMatch) {
    const std::string lines = "\"Otro\"\r\n\"juego\"\r\n255\r\n";
    const struct {
        std::string File;
        Values Then;
        Texts Boxes;
    } cases[] = {{lines + "-2147483633\r\n\"\"\r\n", {kRed, kFace, "juego"}, {}},
                 {lines,
                  {.Fondo = kRed, .Aplicacion = "juego"},
                  {"El archivo de propiedades no existe o esta dañado"}}};
    for (const auto& [file, then, boxes] : cases) {
        Table table;
        table.Desktop.Files[PathOf("pordefecto.dat")] = file;
        Open(table, [&, &then = then](Dialog& dialog) {
            dialog.Command1.Click();
            EXPECT_EQ(Of(dialog), then);
        });
        EXPECT_EQ(Of(table.Window), then);
        EXPECT_EQ(table.Desktop.TakeBoxTexts(), boxes);
        EXPECT_EQ(Naipes->Nombrejugador() + table.Window.namelbl.Caption.get(), "OtroHumano");
        table.Window.ResetGame();
        EXPECT_EQ(Of(table.Window), Values{});
    }
}

TEST(Opciones, StandsInTheMiddleAndTurnsItsPagesOnControlTab) {
    Table table;
    Open(table, [](Dialog& dialog) {
        EXPECT_TRUE(dialog.CenterOnScreen && dialog.Left == (28800 - 6150) / 2 && dialog.Top == 5640);
        EXPECT_TRUE(dialog.cmdCancel.Cancel);  // Escape
        dialog.tbsOptions.Tabs.push_back({"Otra", ""});
        const Frame& page = dialog.picOptions[0];
        for (const int shift : {0, kCtrl | kShift}) dialog.Form_KeyDown(kKeyTab, shift);
        EXPECT_TRUE(dialog.tbsOptions.Selected == 1 && page.Enabled);
        dialog.Form_KeyDown(kKeyTab, kCtrl);
        EXPECT_TRUE(dialog.tbsOptions.Selected == 2 && page.Left == -20000 && !page.Enabled);
        dialog.Form_KeyDown(kKeyTab, kCtrl);
        EXPECT_TRUE(dialog.tbsOptions.Selected == 1 && page.Left == 210 && page.Enabled);
    });
}

}  // namespace
}  // namespace zarpel
