// Saved matches and preference files: what is written, what is read, what a damaged file leaves behind, and
// that play goes on.
#include <gtest/gtest.h>

#include "tools/play/random_player.h"
#include "tools/play/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;
using Lines = std::vector<std::string>;

constexpr const char* kPath = "C:\\partidas\\una.zrp";
const std::string kLastprop = PathOf("lastprop.dat");
const std::string kContinue = "Esta accion terminara con el juego actual, continuar?";
const std::string kDamaged = "El archivo no existe o esta dañado";
const std::string kNoPreferences = "El archivo de propiedades no existe o esta dañado";
const std::string kGone = CardPicture(7);  // a file of the game's that is lost while a match is opened
const std::string kOpen = "open (*.zrp)|*.zrp ";

Lines LinesOf(const std::string& file, const std::string& separator = "\r\n") {
    Lines lines;
    for (std::size_t at = 0, end = 0; (end = file.find(separator, at)) != std::string::npos;) {
        lines.push_back(file.substr(at, end - at));
        at = end + separator.size();
    }
    return lines;
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
    table.Desktop.OnPause = [&] { table.Desktop.Files.erase(kGone); };
    table.Desktop.Files[kPath] = file;
    table.Desktop.Draws = {0.9};  // the computer moves first, and plays a card
    table.Desktop.Answers = {Answer::No};
    table.Desktop.OnBox = [&](const Message&) {
        EXPECT_TRUE(ShowsWhatIsThere(table.Window));
        values = values.empty() ? Saved(table) : values;
    };
    table.Window.CargarJuego(kPath);
    EXPECT_TRUE(CanAct(table.Window)) << file.substr(0, 400);
    EXPECT_TRUE(ShowsWhatIsThere(table.Window));
    return {LinesOf(values.empty() ? Saved(table) : values), table.Desktop.TakeBoxTexts()};
}

Opened OpenPreferences(const std::string& file) {
    Table table;
    table.Desktop.Files[kPath] = file;
    table.Window.LoadProperty(kPath);
    return {LinesOf(SavedPreferences(table)), table.Desktop.TakeBoxTexts()};
}

// The values `read` must be those of the file; when they are not all, the others stay as an empty file leaves
// them, and the player is told as then.
void Expect(Opened (*open)(const std::string&), const std::string& file, const Lines& read,
            bool drawable = true) {
    SCOPED_TRACE(testing::PrintToString(read) + " of " + file.substr(0, 80));
    static std::map<decltype(open), Opened> empty;  // the tests open thousands of files
    if (!empty.contains(open)) empty[open] = open("");
    const Opened opened = open(file);
    auto [values, told] = empty[open];
    EXPECT_FALSE(told.empty());
    EXPECT_EQ(opened.Boxes, drawable && read.size() == values.size() ? Texts{} : told);
    std::copy(read.begin(), read.end(), values.begin());
    EXPECT_EQ(opened.Values, values);
}

TEST(Archivos, OfPreferencesAreWrittenByteForByte) {
    Table table;
    Naipes->aNombrejugador("\r\nÍñigo \"el €\"\r\nzurdo");
    table.Window.fondop1img[0].Tag = "C:\\cartas\\dorso.jpg";
    table.Window.Frame1.BackColor = SystemColor(Palette::ButtonFace);
    EXPECT_EQ(SavedPreferences(table),
              "\" \xCD\xF1igo 'el \x80' zurdo\"\r\n\"Click Here\"\r\n32768\r\n-2147483633\r\n"
              "\"C:\\cartas\\dorso.jpg\"\r\n");
    Naipes->aNombrejugador("Łukasz");  // not in the code page
    EXPECT_TRUE(SavedPreferences(table).starts_with("\xEF\xBB\xBF\"Łukasz\"\r\n"));
    table.Window.Load();
    EXPECT_EQ(table.Window.namelbl.Caption.get(), "Łukasz");
    // The back that cannot be loaded is the game's own now, in the file and on the table.
    EXPECT_EQ(table.Window.fondop1img[0].Tag.get(), PathOf("dibujo.jpg"));
    EXPECT_EQ(table.Window.fondop1img[2].Picture.get(), PathOf("dibujo.jpg"));
    table.Desktop.Files.erase(PathOf("dibujo.jpg"));
    table.Window.Load();
    EXPECT_EQ(table.Window.fondop1img[2].Picture.get(), ":/dorso.jpg");
}

TEST(Partida, CutAnywhereIsAppliedUpToTheCut) {
    Table table(3);
    const std::string file = Saved(table);
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
        Expect(OpenMatch, file.substr(0, bytes), read);
    }
}

// Lines 1 and 2 are the points shown, 4 and 6 a card and whether it is, 34 counts cards, 40 is the flag of
// the first distribution, 43 and 87 are pictures of cards, the second shown.
TEST(Partida, LinesChangedByHandAreReadOrRefused) {
    using Changes = std::map<std::size_t, std::string>;  // of lines, from 1
    enum class Outcome { Opens, Refuses, Stops };        // stops: nothing from that line on is read
    const std::string away = "\"C:\\no\\esta.png\"", shown = "\"" + CardPicture(12) + "\"";
    const struct {
        Changes File, Read;
        Outcome Then;
    } cases[] = {
        {{{1, "\"\""}, {2, "\"1x\""}}, {{1, "\"0\""}, {2, "\"0\""}}, Outcome::Opens},
        {{{1, "\"-32768\""}, {2, "\"32768\""}}, {{1, "\"-32768\""}, {2, "\"0\""}}, Outcome::Opens},
        {{{4, "\" 12abc\""}}, {{4, "\"12\""}}, Outcome::Opens},
        {{{4, "\"0\""}}, {{4, "\"0\""}, {6, "#FALSE#"}}, Outcome::Refuses},
        {{{4, "\"41\""}}, {{4, "\"41\""}, {6, "#FALSE#"}}, Outcome::Refuses},
        {{{4, "\"\""}}, {{4, "\"\""}, {6, "#FALSE#"}}, Outcome::Refuses},
        {{{4, "\"7\""}}, {{4, "\"7\""}, {6, "#FALSE#"}}, Outcome::Refuses},  // its picture is gone
        {{{34, "-32768"}, {35, "32767"}}, {{34, "-32768"}, {35, "32767"}}, Outcome::Opens},
        {{{34, "-32769"}}, {{34, ""}}, Outcome::Stops},
        {{{34, "32768"}}, {{34, ""}}, Outcome::Stops},
        {{{40, "#TRUE#"}}, {{40, "#FALSE#"}}, Outcome::Opens},
        {{{43, away}, {87, "\"\""}}, {{43, "\"" + CardPicture(1) + "\""}, {87, shown}}, Outcome::Opens},
    };
    Table table;
    table.Lay({3, 15}, {32, 31}, {12, 14});
    const Lines saved = LinesOf(Saved(table));
    const auto changed = [&saved](const Changes& changes) {
        Lines lines = saved;
        for (const auto& [line, text] : changes) lines[line - 1] = text;
        return lines;
    };
    for (const auto& c : cases) {
        Lines read = changed(c.Read);
        if (c.Then == Outcome::Stops) read.resize(c.Read.begin()->first - 1);
        std::string file;
        for (const std::string& value : changed(c.File)) file += value + "\r\n";
        Expect(OpenMatch, file, read, c.Then != Outcome::Refuses);
    }
}

TEST(Partida, SavedBeforeTheGameMovedDealsWithItsOwnPictures) {
    Table table;
    for (int i = 1; i <= classnaipe::kCartas; ++i) Naipes->aMazo_Imagen(i, "D:\\antes.png");
    table.Lay({}, {}, {});
    table.GiveMoveTo(Jugador::Humano);
    ASSERT_EQ(table.InHand(Jugador::Humano).size(), 3U);
    for (const int i : table.InHand(Jugador::Humano)) EXPECT_EQ(Naipes->Mazo_Imagen(i), CardPicture(i));
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

    table.Desktop.Chosen = {"mala", "no está", kPath};
    table.Window.abrirmnu.Click();
    Texts calls = table.Desktop.TakeCalls();
    const auto isPause = [](const std::string& call) { return call.starts_with("pause"); };
    EXPECT_GT(std::erase_if(calls, isPause), 0U) << "a fresh match is dealt beneath";
    EXPECT_EQ(calls, (Texts{"box " + kContinue, kOpen, "box " + kDamaged, "box " + kContinue, kOpen + "mala",
                            "box " + kDamaged, "box " + kContinue, kOpen + "no está"}));
    EXPECT_EQ(table.Desktop.Boxes.at(3), (Message{kDamaged, BoxIcon::Critical, "Hubo un Error"}));
    EXPECT_EQ(Saved(table), before);
}

TEST(Archivos, ThatCannotBeWrittenAreReportedAndStayAsTheyWere) {
    Table table;
    const auto files = table.Desktop.Files;
    table.Desktop.WritesFail = true;
    table.Desktop.Chosen = {kPath};
    table.Window.guardarmnu.Click();
    table.Window.SaveProperty();
    const auto box = [](const std::string& path) {
        return Message{"No se pudo guardar el archivo\n" + path, BoxIcon::Critical, "Hubo un error"};
    };
    EXPECT_EQ(table.Desktop.Boxes, (std::vector{box(kPath), box(kLastprop)}));
    EXPECT_EQ(table.Desktop.Files, files);
}

TEST(Preferencias, TakeEffectAsTheyAreRead) {
    const std::pair<std::string, Lines> files[] = {
        // Line ends, separators, blanks, quotes.
        {"\"a\"\n\"b\"\r3\n4\n\"c\"", {"\"a\"", "\"b\"", "3", "4", "\"c\""}},
        {"a , \"b,b\"x ,\t3 ,4, c c \r\n", {"\"a\"", "\"b,b\"", "3", "4", "\"c c\""}},
        {"a\"a\r\n  \" b \"\r\n\"3\"\r\n4\r\n\r\nsixth\r\n", {"\"a'a\"", "\" b \"", "3", "4", "\"\""}},
        {"\"a\r\nb\",b,3,4,c", {"\"a b\"", "\"b\"", "3", "4", "\"c\""}},
        {{"a\0a,\x80\x81\x9D,3,4,c", 13}, {{"\"a\0a\"", 5}, "\"\x80\x81\x9D\"", "3", "4", "\"c\""}},
        {"a\r\nb\r\n3\r\n4\r\n\"c\r\n", {"\"a\"", "\"b\"", "3", "4"}},
        {"\"" + std::string(64 << 10, 'x') + "\",b,3,4,c", {}},  // beyond what is read of a file
    };
    for (const auto& [file, read] : files) Expect(OpenPreferences, file, read);

    const Texts written = {"+5",       "1e3",         "1.5",      "2.5",         "-2147483648.4",
                           "16777215", "-2147483624", "",         "verde",       "+-5",
                           "nan",      "2147483648",  "16777216", "-2147483623", "-1"};
    const Texts taken = {"5", "1000", "2", "2", "-2147483648", "16777215", "-2147483624"};  // no more
    for (std::size_t i = 0; i < written.size(); ++i) {
        Lines read = {"\"a\"", "\"b\""};
        if (i < taken.size()) read.insert(read.end(), {taken[i], "4", "\"c\""});
        Expect(OpenPreferences, "a,b," + written[i] + ",4,c", read);
    }
}

TEST(Preferencias, AreAskedForAtEveryMatchUntilTheyAreSaved) {
    Table table;
    EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});
    table.Desktop.Files.erase(kLastprop);
    table.Window.Load();
    table.Window.Nuevomnu_Click();
    const Message box = {kNoPreferences, BoxIcon::Critical, "Hubo un error"};
    EXPECT_EQ(table.Desktop.Boxes, (std::vector{box, box}));
    EXPECT_FALSE(table.Desktop.Files.contains(kLastprop));
    EXPECT_EQ(SavedPreferences(table), "\"\"\r\n\"Click Here\"\r\n32768\r\n-2147483633\r\n\"\"\r\n");
    table.Window.Nuevomnu_Click();
    EXPECT_EQ(table.Desktop.Boxes.size(), 2U);
}

}  // namespace
}  // namespace zarpel
