// Saved matches: what is written, what is read, what a damaged file leaves behind, and that play goes on.
#include <gtest/gtest.h>

#include "tests/storage/lines.h"
#include "tests/support/random_player.h"
#include "tests/support/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kPath = "C:\\partidas\\una.zrp";
const std::string kConfirmation = "box Esta accion terminara con el juego actual, continuar?";
const std::string kDamaged = "box El archivo no existe o esta dañado";
const std::string kOpen = "open (*.zrp)|*.zrp ";

std::string Saved(Playing& window, ScriptedDesktop& desktop) {
    EXPECT_EQ(window.GuardaJuego("guardada"), "guardada");
    return desktop.Files["guardada"];
}

std::string Saved(Table& table) { return Saved(table.Window, table.Desktop); }

// What the player meets while a program with this seed opens `file`; nothing: there is none.
struct Opened {
    Texts Calls;
    std::string AtTheBox;  // the match, saved, when the file was found damaged
    std::string After;
    bool CanAct = false;
};

Opened Open(const std::optional<std::string>& file, unsigned seed = 1) {
    Table table(seed);
    Opened opened;
    if (file) table.Desktop.Files[kPath] = *file;
    table.Desktop.Draws = {0.0};
    table.Desktop.Answers = {Answer::No};
    table.Desktop.OnBox = [&](const Message& box) {
        if ("box " + box.Text == kDamaged) opened.AtTheBox = Saved(table);
    };
    table.Desktop.TakeCalls();
    table.Window.CargarJuego(kPath);
    for (const std::string& call : table.Desktop.TakeCalls()) {
        if (!call.starts_with("write ")) opened.Calls.push_back(call);
    }
    opened.After = Saved(table);
    opened.CanAct = CanAct(table.Window);
    return opened;
}

TEST(Partida, IsWrittenByteForByte) {
    Table table;
    table.Lay({Card(3, 'e'), 0, Card(7, 'o')}, {Card(1, 'c')}, {0, Card(2, 'b'), Card(4, 'b')});
    Naipes->aNombrejugador("Añil");
    Naipes->aRepartidas(28);
    Naipes->aPuntajecpu(-3);
    Naipes->aPrimermano(true);
    Reparto->aUltimoqLevanta("player2");
    Reparto->aZarpelP2(1);
    table.Window.puntajeP1Lbl.Caption = "-3";
    table.Window.mesaimg_Click(0);
    for (Image& lugar : table.Window.mesaimg) lugar.Tag = lugar.Visible ? lugar.Tag.get() : "";
    const Lines lines = LinesOf(Saved(table));
    ASSERT_EQ(lines.size(), 201U);
    const std::string cpu0 = "\"" + table.Window.cartap1img[0].Tag.get() + "\"";
    const std::string humano1 = "\"" + table.Window.cartap2img[1].Tag.get() + "\"";
    const std::string humano2 = "\"" + table.Window.cartap2img[2].Tag.get() + "\"";
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 49), (Lines{"\"-3\"",      "\"0\"",
                                                               "\"3\"",  // labels
                                                               cpu0,          "\"31\"",
                                                               "#FALSE#",     "#TRUE#",
                                                               "\"3\"",       "#TRUE#",  // slot 0
                                                               "\"12\"",      humano1,
                                                               "#TRUE#",      "#FALSE#",
                                                               "\"\"",        "#FALSE#",  // slot 1
                                                               "\"14\"",      humano2,
                                                               "#TRUE#",      "#FALSE#",
                                                               "\"27\"",      "#TRUE#",  // slot 2
                                                               "\"\"",        "#FALSE#",
                                                               "\"\"",        "#FALSE#",
                                                               "\"\"",        "#FALSE#",  // slots 3 to 5
                                                               "\"\"",        "#FALSE#",
                                                               "\"\"",        "#FALSE#",  // slots 6 and 7
                                                               "\"A\xF1il\"", "\"player2\"",
                                                               "28",          "0",
                                                               "1",           "0",
                                                               "-3",          "0",
                                                               "#FALSE#",     "1",
                                                               "\"ninguno\"", "\"C:\\Zarpel\\carta1.png\"",
                                                               "1",           "\"espada\"",  // card 1
                                                               "\"ninguno\"", "\"C:\\Zarpel\\carta2.png\"",
                                                               "2",           "\"espada\""}));
    EXPECT_EQ(Lines(lines.end() - 4, lines.end()),
              (Lines{"\"ninguno\"", "\"C:\\Zarpel\\carta40.png\"", "10", "\"copa\""}));
}

TEST(Partida, ComesBackAndGoesOnAsItWas) {
    constexpr int kMoments = 60, kOn = 80;
    for (unsigned moment = 0; moment < kMoments; ++moment) {
        // A record of each program's play from the moment on; the selection is not part of a saved match.
        const auto playOn = [&](Table& table) {
            table.Window.EmprolijaDesktop();
            table.Desktop.Seed(9);
            table.Desktop.TakeCalls();
            RandomPlayer player(table.Window, moment);
            Texts record;
            for (int i = 0; i < kOn; ++i) {
                player.Act();
                record.push_back(Saved(table));
            }
            for (const std::string& call : table.Desktop.TakeCalls()) record.push_back(call);
            return record;
        };
        std::string file;
        Texts record;
        {
            Table table(moment);
            Naipes->aNombrejugador(moment % 2 == 0 ? "Humano" : "Ωmega");
            RandomPlayer player(table.Window, moment);
            for (unsigned i = 0; i < moment * 7; ++i) player.Act();
            file = Saved(table);
            record = playOn(table);
        }
        Table table(moment + kMoments);
        table.Desktop.Files[kPath] = file;
        table.Desktop.Chosen = {kPath};
        table.Desktop.TakeCalls();
        table.Window.abrirmnu_Click();
        ASSERT_EQ(Saved(table), file) << moment;
        for (std::size_t i = 0; i < table.Window.fondop1img.size(); ++i) {
            EXPECT_TRUE(table.Window.fondop1img.at(i).Visible || !table.Window.cartap1img.at(i).Visible);
        }
        ASSERT_TRUE(playOn(table) == record) << moment;
    }
}

TEST(Partida, LinesChangedByHandAreReadOrRefused) {
    struct Case {
        std::size_t Line;  // from 1
        std::string Text;
        std::string ReadAs;  // empty: refused
    };
    const Case cases[] = {
        {1, "15", "\"15\""},
        {4, "\" 7abc\"", "\"7\""},
        {4, "\"0\"", ""},
        {4, "\"41\"", ""},
        {4, "\"abc\"", ""},
        {4, "\"99999999999999999999\"", ""},
        {4, "\"\"", ""},
        {24, "\"\"", "\"\""},  // a hidden place that has not held a card yet
        {6, "1", ""},
        {6, "True", ""},
        {25, "#FALSE# ", "#FALSE#"},
        {34, "32767", "32767"},
        {34, "32768", ""},
        {34, "-32768", "-32768"},
        {34, "-32769", ""},
        {34, "1e3", "1000"},
        {34, "1.5", "2"},
        {34, "+5", "5"},
        {34, "muchas", ""},
        {34, "", ""},
        {40, "#TRUE#", "#FALSE#"},
        {41, "7", "7"},
        {42, "\"nadie\"", "\"nadie\""},
        {43, "\"C:\\no\\esta.png\"", "\"C:\\no\\esta.png\""},  // of a card that no place shows
        {201, "\"oros", ""},
    };
    Table table;
    table.Lay({Card(3, 'e'), Card(5, 'b')}, {Card(2, 'c'), Card(1, 'c')}, {Card(2, 'b'), Card(4, 'b')});
    table.Window.mesaimg[5].Tag = "9";
    const Lines saved = LinesOf(Saved(table));
    const Lines fresh = LinesOf(Open(std::nullopt).AtTheBox);
    for (const Case& c : cases) {
        Lines lines = saved;
        lines[c.Line - 1] = c.Text;
        const Opened opened = Open(FileOf(lines));
        if (c.ReadAs.empty()) {
            // A Tag is found out only when all values have been applied.
            const auto from = c.Line == 4 ? lines.size() : c.Line - 1;
            std::copy(fresh.begin() + long(from), fresh.end(), lines.begin() + long(from));
            EXPECT_EQ(opened.AtTheBox, FileOf(lines)) << c.Line << " " << c.Text;
            EXPECT_EQ(opened.Calls, (Texts{kDamaged, kConfirmation})) << c.Line << " " << c.Text;
        } else {
            lines[c.Line - 1] = c.ReadAs;
            EXPECT_EQ(opened.Calls, Texts{}) << c.Line << " " << c.Text;
            EXPECT_EQ(opened.After, FileOf(lines)) << c.Line << " " << c.Text;
        }
        EXPECT_TRUE(opened.CanAct) << c.Line << " " << c.Text;
    }
}

// Pictures that the loader had not reached yet stay those of the fresh deal.
TEST(Partida, WithAPictureThatCannotBeLoadedIsDrawnUpToIt) {
    Table table;
    table.Lay({Card(3, 'e'), Card(5, 'b'), Card(6, 'b')}, {Card(2, 'c')}, {Card(2, 'b')});
    table.Desktop.Files[kPath] = Saved(table);
    table.Desktop.Files.erase(CardPicture(Card(5, 'b')));
    table.Desktop.Answers = {Answer::No};
    table.Desktop.TakeBoxTexts();
    table.Desktop.OnBox = [&](const Message& box) {
        if ("box " + box.Text != kDamaged) return;
        EXPECT_EQ(box.Title, "Hubo un Error");
        EXPECT_EQ(box.Icon, Icon::Critical);
        EXPECT_EQ(table.Window.mesaimg[0].Picture.get(), CardPicture(Card(3, 'e')));
        EXPECT_NE(table.Window.mesaimg[1].Picture.get(), CardPicture(Card(5, 'b')));
        EXPECT_NE(table.Window.mesaimg[2].Picture.get(), CardPicture(Card(6, 'b')));
        EXPECT_EQ(table.OnTable(), (std::vector{Card(3, 'e'), Card(5, 'b'), Card(6, 'b')}));
    };
    table.Window.CargarJuego(kPath);
    EXPECT_EQ(table.Desktop.TakeBoxTexts().size(), 2U);
}

TEST(Partida, SavedBeforeTheGameMovedLeavesAMatchThatCanBePlayed) {
    Table table;
    std::string file = Saved(table);
    for (std::size_t at = 0; (at = file.find("C:\\Zarpel", at)) != std::string::npos;) file[at] = 'D';
    table.Desktop.Files[kPath] = file;
    table.Desktop.Answers = {Answer::No};
    table.Window.CargarJuego(kPath);
    ASSERT_FALSE(Naipes->Mazo_Imagen(1) == CardPicture(1));
    RandomPlayer player(table.Window, 1);
    for (int i = 0; i < 400; ++i) player.Act();
    EXPECT_EQ(Naipes->Mazo_Imagen(1), CardPicture(1));  // a deal later
}

TEST(Partida, CutAnywhereIsAppliedUpToTheCutAndLeftWithNo) {
    Lines lines;
    {
        Table table(3);
        lines = LinesOf(Saved(table));
    }
    const std::string file = FileOf(lines);
    const Opened fresh = Open(std::nullopt);
    EXPECT_EQ(fresh.Calls, (Texts{kDamaged, kConfirmation}));
    for (std::size_t bytes = 0; bytes <= file.size(); ++bytes) {
        bool damaged = false;
        const Lines expected = AfterCut(lines, bytes, LinesOf(fresh.AtTheBox), damaged);
        const Opened opened = Open(file.substr(0, bytes));
        ASSERT_EQ(damaged ? opened.AtTheBox : opened.After, FileOf(expected)) << bytes;
        ASSERT_EQ(opened.AtTheBox.empty(), !damaged) << bytes;
        ASSERT_TRUE(opened.CanAct) << bytes;
    }
}

TEST(Partida, NoFileFreezesTheTable) {
    const char* const wild[] = {"\"\"",        "\"0\"",       "\"41\"",      "\"7\"",      "#TRUE#",
                                "#FALSE#",     "0",           "32767",       "-32768",     "40",
                                "39",          "7",           "\"ninguno\"", "\"lamesa\"", "1",
                                "\"player1\"", "\"player2\"", "\"oro\"",     "15"};
    std::mt19937 random(11);
    for (unsigned seed = 0; seed < 300; ++seed) {
        Table table(seed);
        Lines lines = LinesOf(Saved(table));
        for (auto changes = random() % 40; changes > 0; --changes) {
            // Half of them in the match, half among the cards.
            const std::size_t line = random() % 2 == 0 ? random() % 41 : random() % lines.size();
            const std::string text = wild[random() % std::size(wild)];
            if ((text[0] == '"') == (lines[line][0] == '"') && (text[0] == '#') == (lines[line][0] == '#')) {
                lines[line] = text;
            }
        }
        table.Desktop.Files[kPath] = FileOf(lines);
        table.Desktop.Answers = {Answer::No};
        RandomPlayer player(table.Window, seed);
        try {
            table.Window.CargarJuego(kPath);
            for (int i = 0; i < 60; ++i) {
                ASSERT_TRUE(CanAct(table.Window)) << seed;
                player.Act();
            }
        } catch (const ScriptedDesktop::Ended&) {
            ADD_FAILURE() << seed;  // every card picture is there, and every new match is accepted
        }
    }
}

TEST(Partida, AbrirComesBackUntilAFileIsReadOrThePlayerHasEnough) {
    Table table;
    table.Desktop.Files[kPath] = Saved(table);
    table.Desktop.Files["mala"] = "mala";
    const std::string before = Saved(table);
    table.Desktop.TakeCalls();

    table.Desktop.Answers = {Answer::No};
    table.Window.abrirmnu.Click();
    EXPECT_EQ(table.Desktop.TakeCalls(), Texts{kConfirmation});
    table.Window.abrirmnu.Click();
    EXPECT_EQ(table.Desktop.TakeCalls(), (Texts{kConfirmation, kOpen}));
    EXPECT_EQ(Saved(table), before);

    table.Desktop.Chosen = {"mala", "no está", kPath};
    table.Desktop.Draws = {0.0};
    table.Desktop.TakeCalls();
    table.Window.abrirmnu.Click();
    Texts boxes;
    for (const std::string& call : table.Desktop.TakeCalls()) {
        if (!call.starts_with("pause")) boxes.push_back(call);
    }
    EXPECT_EQ(boxes, (Texts{kConfirmation, kOpen, kDamaged, kConfirmation, kOpen + "mala", kDamaged,
                            kConfirmation, kOpen + "no está"}));
    EXPECT_EQ(Saved(table), before);
    EXPECT_TRUE(CanAct(table.Window));
}

TEST(Partida, ThatCannotBeWrittenIsReportedAndGoesOn) {
    Table table;
    const auto old = table.Desktop.Files;
    const std::string before = Saved(table);
    table.Desktop.Files = old;
    table.Desktop.WritesFail = true;
    table.Desktop.Chosen = {kPath};
    table.Desktop.TakeCalls();
    table.Window.guardarmnu.Click();
    table.Window.SaveProperty();
    const std::string text = "box No se pudo guardar el archivo\n";
    EXPECT_EQ(table.Desktop.TakeCalls(),
              (Texts{"save (*.zrp)|*.zrp ", std::string("write ") + kPath, text + kPath,
                     "write " + PathOf("lastprop.dat"), text + PathOf("lastprop.dat")}));
    for (const Message& box : table.Desktop.Boxes) {
        EXPECT_EQ(box.Title, "Hubo un error");
        EXPECT_EQ(box.Icon, Icon::Critical);
    }
    EXPECT_EQ(table.Desktop.Files, old);
    table.Desktop.WritesFail = false;
    EXPECT_EQ(Saved(table), before);
}

}  // namespace
}  // namespace zarpel
