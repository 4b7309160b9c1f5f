// What no match on a whole installation comes to; everything else random play meets, before its referee.
#include <gtest/gtest.h>

#include "tools/play/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

TEST(Instalacion, EndsTheProgramWhenTheCardListOrACardIsDamaged) {
    const std::string list = "El archivo naipes.dat esta dañado o no existe";
    const std::string longest = "xxxxxxxxxx.png";  // that a record holds
    const struct {
        const char* What;
        std::function<void(std::string& list, std::map<std::string, std::string>& files)> Damage;
        std::string Box;  // none: the game plays
    } cases[] = {
        {"whole", [](auto&, auto&) {}, ""},
        {"followed by more", [](auto& bytes, auto&) { bytes += "x"; }, ""},
        {"no list", [](auto&, auto& files) { files.erase(PathOf("naipe.dat")); }, list},
        {"one byte short", [](auto& bytes, auto&) { bytes.pop_back(); }, list},
        {"a name of 14 bytes",
         [&](auto& bytes, auto&) { bytes.replace(624, 16, std::string("\x0E\0", 2) + longest); }, ""},
        {"of 15", [](auto& bytes, auto&) { bytes[624] = 15; }, list},
        {"of 256 and more", [](auto& bytes, auto&) { bytes[1] = 1; }, list},
        {"a name in Windows-1252",
         [](auto& bytes, auto&) { bytes.replace(0, 4, std::string("\2\0\xF1\x80", 4)); },
         "No se puede cargar la imagen C:\\Zarpel\\ñ€"},
        {"a card missing", [](auto&, auto& files) { files.erase(CardPicture(1)); },
         "No se puede cargar la imagen C:\\Zarpel\\carta1.png"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        InstalledDesktop desktop;
        desktop.Draws = {0.0, 0.0};  // the computer deals card 1
        desktop.Files[PathOf(longest)];
        c.Damage(desktop.Files[PathOf("naipe.dat")], desktop.Files);
        Playing window(desktop);
        if (c.Box.empty()) {
            window.Load();
            EXPECT_EQ(Naipes->Mazo_Imagen(40).size() == PathOf(longest).size(), c.What[0] == 'a')
                << "no name is cut";
            continue;
        }
        EXPECT_THROW(window.Load(), ScriptedDesktop::Ended);
        EXPECT_EQ(desktop.Boxes, (std::vector<Message>{{c.Box, BoxIcon::Critical, "Error grave"},
                                                       {"Reinstale el programa"}}));
        EXPECT_EQ(desktop.Calls.back(), "end 1");
    }
}

// A file changed by hand can leave a player without cards: who has none passes without a word.
TEST(Paso, OfAPlayerWithoutCardsIsSilent) {
    constexpr int kStuck = Card(8, 'o'), kTakesNine = Card(6, 'e'), kTakesEight = Card(7, 'o');
    const std::string cpu = "Juega Cpu", yo = "Juega Humano", reparte = "Reparte Humano - Juega Cpu";
    const struct {
        const char* What;
        std::vector<int> Humano, Cpu;
        Jugador Mover;
        Texts Captions;
        bool Begins = false;  // as if nothing had been dealt yet
    } cases[] = {
        {"the computer", {kTakesEight}, {}, Jugador::Cpu, {cpu, yo}},
        {"the computer, to begin", {kTakesEight}, {}, Jugador::Cpu, {reparte, cpu, yo}, true},
        {"the human, twice",
         {},
         {kStuck, kTakesNine},
         Jugador::Humano,
         {cpu, "Me llevo estas cartas", yo, cpu, "He Jugado una carta", yo}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        Table table;
        table.Lay({2, 3, 8, 9, 19, 29, 39, 18}, c.Humano, c.Cpu);
        Naipes->aPrimermano(c.Begins);
        Naipes->aLaMano(1);
        table.GiveMoveTo(c.Mover);
        EXPECT_EQ(table.TakeCaptions(), c.Captions);
        EXPECT_TRUE(table.Desktop.Boxes.empty());
    }
}

// A file changed by hand can leave fewer cards than two hands take, or a count that ends before the stock.
TEST(Reparto, LeavesPlacesBareWhenTheCardsEnd) {
    const struct { int Stock, Dealt; } cases[] = {{5, 10}, {40, 36}};
    for (const auto& c : cases) {
        Table table;
        table.Lay({}, {}, {});
        for (int i = c.Stock + 1; i <= 40; ++i) Naipes->aMazo_Duenio(i, "player1");
        Naipes->aPrimermano(false);
        Naipes->aRepartidas(static_cast<std::int16_t>(c.Dealt));
        table.GiveMoveTo(Jugador::Humano);
        EXPECT_TRUE(table.Window.cartap2img[1].Visible);
        EXPECT_FALSE(table.Window.cartap2img[2].Visible) << "dealt to last";
        EXPECT_GE(Naipes->Repartidas(), 40) << "the deal ends with these cards";
    }
}

// Wherever on a full table the only card lies that makes 15.
TEST(Paso, NobodyPassesWhoHasACapture) {
    for (std::size_t place = 0; place <= 8; ++place) {
        Table table;
        std::vector<int> mesa = {9, 10, 19, 20, 29, 30, 39, 40};
        if (place < 8) mesa[place] = Card(8, 'o');
        const std::vector<int> small = {1, 2, 11, 12, 21, 22, 31, 32};  // make 15 all together with a three
        table.Lay(place < 8 ? mesa : small, {place < 8 ? Card(7, 'o') : Card(3, 'o')}, {Card(1, 'c')});
        table.GiveMoveTo(Jugador::Humano);
        EXPECT_TRUE(table.Desktop.Boxes.empty()) << place;
    }
}

// Points, and zarpels before one more, as a file changed by hand can hold them.
TEST(Puntos, StopAtWhatARecordHolds) {
    const struct {
        std::int16_t Points, Zarpels;
        const char* Shown;
    } cases[] = {{32767, -1, "32767"},
                 {32766, 1, "32767"},
                 {-32767, 0, "-32762"},
                 {-32767, -11, "-32768"},
                 {-32767, 32767, "4"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Shown);
        Table table;
        table.Lay({}, {}, {});
        for (int i = 1; i <= 40; ++i) Naipes->aMazo_Duenio(i, "player1");
        Naipes->aRepartidas(40);
        Naipes->aPuntajecpu(c.Points);
        Reparto->aZarpelP1(c.Zarpels);
        table.Window.SumaZarpel("player1");
        table.Desktop.Answers = {Answer::No};
        try {
            table.GiveMoveTo(Jugador::Humano);
        } catch (const ScriptedDesktop::Ended&) {
        }
        EXPECT_EQ(table.Window.puntajeP1Lbl.Caption.get(), c.Shown);
    }
}

}  // namespace
}  // namespace zarpel
