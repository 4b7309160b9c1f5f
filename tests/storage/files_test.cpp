// Saved matches and preference files: what is written, what is read, what a damaged file leaves behind, and
// that play goes on.
#include <gtest/gtest.h>

#include "tests/support/random_player.h"
#include "tests/support/table.h"

namespace zarpel {
namespace {

using namespace std::string_literals;
using Texts = std::vector<std::string>;
using Lines = std::vector<std::string>;

constexpr const char* kPath = "C:\\partidas\\una.zrp";
const std::string kLastprop = PathOf("lastprop.dat");
const std::string kContinue = "Esta accion terminara con el juego actual, continuar?";
const std::string kDamaged = "El archivo no existe o esta dañado";
const std::string kNoPreferences = "El archivo de propiedades no existe o esta dañado";
const std::string kOpen = "open (*.zrp)|*.zrp ";

Lines LinesOf(const std::string& file, const std::string& separator = "\r\n") {
    Lines lines;
    for (std::size_t at = 0, end = 0; (end = file.find(separator, at)) != std::string::npos;) {
        lines.push_back(file.substr(at, end - at));
        at = end + separator.size();
    }
    return lines;
}

std::string FileOf(const Lines& lines) {
    std::string file;
    for (const std::string& line : lines) file += line + "\r\n";
    return file;
}

std::string Saved(Table& table) {
    EXPECT_EQ(table.Window.GuardaJuego("guardada"), "guardada");
    return table.Desktop.Files["guardada"];
}

std::string SavedPreferences(Table& table) {
    table.Window.SaveProperty();
    return table.Desktop.Files[kLastprop];
}

// What opening a file leaves behind: its values, saved again, and the texts of the boxes.
struct Opened {
    Lines Values;
    Texts Boxes;
};

// The values are those behind the first box, where there is one.
Opened OpenMatch(const std::string& file) {
    Table table;
    std::string values;
    table.Desktop.Files[kPath] = file;
    table.Desktop.Draws = {0.0};  // the human moves first
    table.Desktop.Answers = {Answer::No};
    table.Desktop.OnBox = [&](const Message&) { values = values.empty() ? Saved(table) : values; };
    table.Window.CargarJuego(kPath);
    EXPECT_TRUE(CanAct(table.Window)) << file.substr(0, 400);
    return {LinesOf(values.empty() ? Saved(table) : values), table.Desktop.TakeBoxTexts()};
}

Opened OpenPreferences(const std::string& file) {
    Table table;
    table.Desktop.Files[kPath] = file;
    table.Window.LoadProperty(kPath);
    return {LinesOf(SavedPreferences(table)), table.Desktop.TakeBoxTexts()};
}

struct Format {
    Opened (*Open)(const std::string& file);
    Texts Damaged;
    Opened Empty = Open("");

    // The values `read` must be those of the file; when they are not all, the others stay, and the player is
    // told.
    void Expect(const std::string& file, const Lines& read, bool drawable = true) const {
        SCOPED_TRACE(testing::PrintToString(read) + " of " + file.substr(0, 80));
        const Opened opened = Open(file);
        Lines values = Empty.Values;
        EXPECT_EQ(opened.Boxes, drawable && read.size() == values.size() ? Texts{} : Damaged);
        std::copy(read.begin(), read.end(), values.begin());
        EXPECT_EQ(opened.Values, values);
    }
};

const Format& Partidas() {
    static const Format format{OpenMatch, {kDamaged, kContinue}};
    return format;
}
const Format& Preferencias() {
    static const Format format{OpenPreferences, {kNoPreferences}};
    return format;
}

TEST(Archivos, OfAMatchAreWrittenByteForByte) {
    Table table;
    table.Lay({3, 0, 27}, {31}, {0, 12, 14});
    Naipes->aNombrejugador("Añil");
    Naipes->aRepartidas(28);
    Naipes->aPuntajecpu(-3);
    Naipes->aPrimermano(true);
    Reparto->aUltimoqLevanta("player2");
    Reparto->aZarpelP2(1);
    table.Window.puntajeP1Lbl.Caption = "-3";
    table.Window.mesaimg_Click(0);
    for (int i = 1; i <= kPosiciones; ++i) {
        const Slot slot = table.Window.SlotDePosicion(i);
        if (!slot.Ocupado()) slot.Imagen.Tag = "";
    }
    const Lines lines = LinesOf(Saved(table));
    const std::string begin =  // the labels, the places, the match, the cards
        R"("-3" "0" "3" "" "31" #FALSE# #TRUE# "3" #TRUE# "12" "" #TRUE# #FALSE# "" #FALSE# )"
        R"("14" "" #TRUE# #FALSE# "27" #TRUE# "" #FALSE# "" #FALSE# "" #FALSE# "" #FALSE# "" #FALSE# )"
        "\"A\xF1il\" \"player2\" 28 0 1 0 -3 0 #FALSE# 1 "
        R"("ninguno" "C:\Zarpel\carta1.png" 1 "espada" "ninguno" "C:\Zarpel\carta2.png" 2 "espada" )";
    const std::string end = R"("ninguno" "C:\Zarpel\carta40.png" 10 "copa" )";
    ASSERT_EQ(lines.size(), 201U);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 49), LinesOf(begin, " "));
    EXPECT_EQ(Lines(lines.end() - 4, lines.end()), LinesOf(end, " "));
}

TEST(Archivos, OfPreferencesAreWrittenByteForByte) {
    Table table;
    Naipes->aNombrejugador("Íñigo \"el €\"\r\nzurdo");
    table.Window.fondop1img[0].Tag = "C:\\cartas\\dorso.jpg";
    table.Window.Frame1.BackColor = SystemColor(kButtonFace);
    EXPECT_EQ(SavedPreferences(table),
              "\"\xCD\xF1igo 'el \x80' zurdo\"\r\n\"Click Here\"\r\n32768\r\n-2147483633\r\n"
              "\"C:\\cartas\\dorso.jpg\"\r\n");
    Naipes->aNombrejugador("Łukasz");  // not in the code page
    EXPECT_TRUE(SavedPreferences(table).starts_with("\xEF\xBB\xBF\"Łukasz\"\r\n"));
    table.Window.Load();
    EXPECT_EQ(table.Window.namelbl.Caption.get(), "Łukasz");
    EXPECT_EQ(table.Window.fondop1img[0].Tag.get(), PathOf("dibujo.jpg"));  // the other cannot be loaded
}

TEST(Archivos, CutAnywhereAreAppliedUpToTheCut) {
    Table table(3);
    const std::pair<const Format&, std::string> files[] = {
        {Partidas(), Saved(table)}, {Preferencias(), "\"a\"\r\n\"b\"\r\n327\r\n16384\r\n\"c\"\r\n"}};
    for (const auto& [format, file] : files) {
        for (std::size_t bytes = 0; bytes <= file.size() && !HasFailure(); ++bytes) {
            Lines read;
            std::size_t left = bytes;
            for (const std::string& line : LinesOf(file)) {
                // A text or a flag counts when it is whole, a number as far as it goes.
                const bool whole = line[0] == '"' || line[0] == '#';
                if (left < (whole ? line.size() : 1)) break;
                read.push_back(line.substr(0, left));
                left -= std::min(left, line.size() + 2);
            }
            format.Expect(file.substr(0, bytes), read);
        }
    }
}

TEST(Partida, ComesBackAndGoesOnAsItWas) {
    constexpr unsigned kMoments = 60;
    constexpr int kOn = 80;
    for (unsigned moment = 0; moment < kMoments; ++moment) {
        SCOPED_TRACE(moment);
        // A record of a program's play from here on. The selection is no part of a saved match.
        const auto playOn = [moment](Table& table) {
            table.Window.EmprolijaDesktop();
            table.Desktop.Seed(9);
            table.Desktop.TakeCalls();
            RandomPlayer player(table.Window, moment);
            Texts record;
            for (int i = 0; i < kOn; ++i, record.push_back(Saved(table))) player.Act();
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
        table.Window.abrirmnu.Click();
        ASSERT_EQ(Saved(table), file);
        for (std::size_t i = 0; i < table.Window.fondop1img.size(); ++i) {
            EXPECT_TRUE(table.Window.fondop1img.at(i).Visible || !table.Window.cartap1img.at(i).Visible);
        }
        ASSERT_TRUE(playOn(table) == record);
    }
}

// Line 4 is the card of a shown place, 24 that of a hidden one, 43 and 51 are pictures of cards not shown and
// shown.
TEST(Partida, LinesChangedByHandAreReadOrRefused) {
    const struct {
        std::size_t Line;  // from 1
        std::string Text;
        std::string ReadAs;  // empty: refused
        bool Drawable = true;
    } cases[] = {{1, "15", "\"15\""},
                 {4, "\" 7abc\"", "\"7\""},
                 {4, "\"0\"", "\"0\"", false},
                 {4, "\"41\"", "\"41\"", false},
                 {4, "\"99999999999999999999\"", "\"99999999999999999999\"", false},
                 {4, "\"\"", "\"\"", false},
                 {24, "\"\"", "\"\""},
                 {6, "True", ""},
                 {25, "#FALSE# ", "#FALSE#"},
                 {34, "32767", "32767"},
                 {34, "32768", ""},
                 {34, "-32768", "-32768"},
                 {34, "-32769", ""},
                 {34, "muchas", ""},
                 {40, "#TRUE#", "#FALSE#"},
                 {42, "\"nadie\"", "\"nadie\""},
                 {43, "\"C:\\no\\esta.png\"", "\"C:\\no\\esta.png\""},
                 {51, "\"C:\\no\\esta.png\"", "\"C:\\no\\esta.png\"", false},
                 {201, "\"oros", ""}};
    Table table;
    table.Lay({3, 15}, {32, 31}, {12, 14});
    table.Window.mesaimg[5].Tag = "9";
    const Lines saved = LinesOf(Saved(table));
    for (const auto& [line, text, readAs, drawable] : cases) {
        Lines lines = saved, read = saved;
        lines[line - 1] = text;
        read[line - 1] = readAs;
        if (readAs.empty()) read.resize(line - 1);
        Partidas().Expect(FileOf(lines), read, drawable);
    }
}

TEST(Partida, NoFileFreezesTheTable) {
    const std::string wild[] = {"\"\"",   "\"0\"", "\"41\"",      "\"7\"",      "#TRUE#",      "#FALSE#",
                                "0",      "32767", "\"ninguno\"", "\"lamesa\"", "\"player1\"", "\"player2\"",
                                "-32768", "39",    "40",          "7"};
    for (unsigned seed = 0; seed < 200; ++seed) {
        SCOPED_TRACE(seed);
        Table table(seed);
        RandomPlayer player(table.Window, seed);
        Lines lines = LinesOf(Saved(table));
        for (int changes = player.Below(40); changes > 0; --changes) {
            // Half of them in the match, half among the cards; each by a value of the same kind.
            std::string& line =
                lines[static_cast<std::size_t>(player.Below(player.Below(2) == 0 ? 41 : 201))];
            const std::string& text = wild[player.Below(std::size(wild))];
            if ((text[0] == '"') == (line[0] == '"') && (text[0] == '#') == (line[0] == '#')) line = text;
        }
        table.Desktop.Files[kPath] = FileOf(lines);
        table.Desktop.Answers = {Answer::No};  // to opening another
        table.Window.CargarJuego(kPath);
        table.Desktop.Answers.clear();
        for (int i = 0; i < 60; ++i) {
            ASSERT_TRUE(CanAct(table.Window));
            ASSERT_NO_THROW(player.Act());  // every card picture is there, and every new match is accepted
        }
    }
}

TEST(Partida, SavedBeforeTheGameMovedDealsWithItsOwnPictures) {
    Table table;
    for (int i = 1; i <= classnaipe::kCartas; ++i) Naipes->aMazo_Imagen(i, "D:\\antes.png");
    table.Lay({}, {}, {});
    table.GiveMoveTo(clase::kHumano);
    ASSERT_EQ(table.InHand(clase::kHumano).size(), 3U);
    for (const int i : table.InHand(clase::kHumano)) EXPECT_EQ(Naipes->Mazo_Imagen(i), CardPicture(i));
}

TEST(Partida, AbrirComesBackUntilAFileIsReadOrThePlayerHasEnough) {
    Table table;
    const std::string before = Saved(table);
    table.Desktop.Files[kPath] = before;
    table.Desktop.Files["mala"] = "mala";
    table.Desktop.Answers = {Answer::No};
    table.Desktop.TakeCalls();
    table.Window.abrirmnu.Click();  // No
    table.Window.abrirmnu.Click();  // cancels
    EXPECT_EQ(table.Desktop.TakeCalls(), (Texts{"box " + kContinue, "box " + kContinue, kOpen}));
    EXPECT_EQ(Saved(table), before);

    table.Desktop.Chosen = {"mala", "no está", kPath};
    table.Desktop.Draws = {0.0, 0.0};
    table.Desktop.TakeCalls();
    table.Window.abrirmnu.Click();
    Texts calls = table.Desktop.TakeCalls();
    std::erase_if(calls, [](const std::string& call) { return call.starts_with("pause"); });
    EXPECT_EQ(calls, (Texts{"box " + kContinue, kOpen, "box " + kDamaged, "box " + kContinue, kOpen + "mala",
                            "box " + kDamaged, "box " + kContinue, kOpen + "no está"}));
    EXPECT_EQ(table.Desktop.Boxes.at(3), (Message{kDamaged, Icon::Critical, "Hubo un Error"}));
    EXPECT_EQ(Saved(table), before);
}

TEST(Archivos, ThatCannotBeWrittenAreReportedAndStayAsTheyWere) {
    Table table;
    const std::string before = Saved(table);
    const auto files = table.Desktop.Files;
    table.Desktop.WritesFail = true;
    table.Desktop.Chosen = {kPath};
    table.Window.guardarmnu.Click();
    table.Window.SaveProperty();
    const auto box = [](const std::string& path) {
        return Message{"No se pudo guardar el archivo\n" + path, Icon::Critical, "Hubo un error"};
    };
    EXPECT_EQ(table.Desktop.Boxes, (std::vector{box(kPath), box(kLastprop)}));
    EXPECT_EQ(table.Desktop.Files, files);
    table.Desktop.WritesFail = false;
    EXPECT_EQ(Saved(table), before);
}

TEST(Preferencias, TakeEffectAsTheyAreRead) {
    const std::string kLong(5'000'000, 'x');  // beyond what is read of a file
    const struct {
        std::string File;
        Lines Read;
    } cases[] = {
        // Line ends, separators, blanks, quotes.
        {"\"a\"\n\"b\"\n3\n4\n\"c\"", {"\"a\"", "\"b\"", "3", "4", "\"c\""}},
        {"\"a\"\r\"b\"\r3\r4\r\"c\"\r", {"\"a\"", "\"b\"", "3", "4", "\"c\""}},
        {"a , \"b,b\"x ,\t3 ,4, c c \r\n", {"\"a\"", "\"b,b\"", "3", "4", "\"c c\""}},
        {"\"\"\r\n\r\n3\r\n4\r\n\r\n", {"\"\"", "\"\"", "3", "4", "\"\""}},
        {"a\"a\r\n  \" b \"\r\n\"3\"\r\n4\r\nc\r\nsixth\r\n", {"\"a'a\"", "\" b \"", "3", "4", "\"c\""}},
        {"\"a\r\nb\",b,3,4,c", {"\"a b\"", "\"b\"", "3", "4", "\"c\""}},
        {{"a\0a,\x81\x9D,3,4,c", 12}, {{"\"a\0a\"", 5}, "\"\x81\x9D\"", "3", "4", "\"c\""}},
        {"\xEF\xBB\xBF\xC0\xA2,b,3,4,c", {"\xEF\xBB\xBF\"\xC0\xA2\"", "\"b\"", "3", "4", "\"c\""}},
        {"a\r\nb\r\n3\r\n4\r\n\"c\r\n", {"\"a\"", "\"b\"", "3", "4"}},
        {"a,b,3,4,c\r\n" + kLong, {"\"a\"", "\"b\"", "3", "4", "\"c\""}},
        {"\"" + kLong + "\",b,3,4,c", {}},
    };
    for (const auto& [file, read] : cases) Preferencias().Expect(file, read);

    // Each number behind the text that is read as it, then texts that are no colour.
    const Texts colors = LinesOf(
        "+5 5 1e3 1000 1.5 2 2.5 2 -2147483648.4 -2147483648 16777215 16777215 -2147483624 -2147483624 ",
        " ");
    for (std::size_t i = 0; i < colors.size(); i += 2) {
        Preferencias().Expect("a,b," + colors[i] + ",4,c", {"\"a\"", "\"b\"", colors[i + 1], "4", "\"c\""});
    }
    for (const char* none :
         {"verde", "", "+-5", "nan", "2147483648", "-1e400", "16777216", "-2147483623", "-1"}) {
        Preferencias().Expect("a,b,"s + none + ",4,c", {"\"a\"", "\"b\""});
    }
}

TEST(Preferencias, AreAskedForAtEveryMatchUntilTheyAreSaved) {
    Table table;
    EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});
    table.Desktop.Files.erase(kLastprop);
    table.Window.Load();
    table.Window.Nuevomnu_Click();
    const Message box = {kNoPreferences, Icon::Critical, "Hubo un error"};
    EXPECT_EQ(table.Desktop.Boxes, (std::vector{box, box}));
    EXPECT_FALSE(table.Desktop.Files.contains(kLastprop));
    EXPECT_EQ(SavedPreferences(table), "\"\"\r\n\"Click Here\"\r\n32768\r\n-2147483633\r\n\"\"\r\n");
    table.Window.Nuevomnu_Click();
    EXPECT_EQ(table.Desktop.Boxes.size(), 2U);
}

}  // namespace
}  // namespace zarpel
