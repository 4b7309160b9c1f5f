// Preference files: what is written, what is read, and what a damaged file leaves behind.
#include <gtest/gtest.h>

#include "tests/storage/lines.h"
#include "tests/support/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

const Texts kDamaged = {"El archivo de propiedades no existe o esta dañado"};
const std::string kOther = PathOf("otras.dat");
const Lines kBefore = {"\"Antes\"", "\"antes.exe\"", "1", "2", "\"antes.jpg\""};

// The preferences in force, as the lines that SaveProperty writes.
Lines InForce(Table& table) {
    table.Window.SaveProperty();
    return LinesOf(table.Desktop.Files[PathOf("lastprop.dat")]);
}

// What `file` makes of the preferences `before`, and the boxes meanwhile.
Lines Read(Table& table, std::string file, Texts& boxes) {
    table.Desktop.Files[kOther] = FileOf(kBefore);
    table.Window.LoadProperty(kOther);
    table.Desktop.Files[kOther] = std::move(file);
    table.Desktop.Boxes.clear();
    table.Window.LoadProperty(kOther);
    boxes = table.Desktop.TakeBoxTexts();
    return InForce(table);
}

TEST(Preferencias, AreWrittenByteForByte) {
    Table table;
    Naipes->aNombrejugador("Íñigo \"el €\"\r\nzurdo");
    table.Window.fondop1img[0].Tag = "C:\\cartas\\dorso.jpg";
    table.Window.Frame1.BackColor = SystemColor(kButtonFace);
    table.Window.SaveProperty();
    EXPECT_EQ(table.Desktop.Files[PathOf("lastprop.dat")],
              "\"\xCD\xF1igo 'el \x80' zurdo\"\r\n\"Click Here\"\r\n32768\r\n-2147483633\r\n"
              "\"C:\\cartas\\dorso.jpg\"\r\n");
    Naipes->aNombrejugador("Łukasz");  // not in the code page
    table.Window.SaveProperty();
    EXPECT_TRUE(table.Desktop.Files[PathOf("lastprop.dat")].starts_with("\xEF\xBB\xBF\"Łukasz\"\r\n"));
    table.Window.Load();
    EXPECT_EQ(table.Window.namelbl.Caption.get(), "Łukasz");
    EXPECT_EQ(table.Window.fondop1img[0].Tag.get(), PathOf("dibujo.jpg"));  // the other cannot be loaded
}

TEST(Preferencias, TakeEffectAsTheyAreRead) {
    struct Case {
        std::string File;
        Lines Expected;  // the values applied; the others stay
        bool Damaged = false;
    };
    const Case cases[] = {
        {"\"a\"\r\n\"b\"\r\n3\r\n4\r\n\"c\"\r\n", {"\"a\"", "\"b\"", "3", "4", "\"c\""}},
        {"", {}, true},
        // Line ends, separators, blanks, quotes.
        {"\"a\"\n\"b\"\n3\n4\n\"c\"", {"\"a\"", "\"b\"", "3", "4", "\"c\""}},
        {"\"a\"\r\"b\"\r3\r4\r\"c\"\r", {"\"a\"", "\"b\"", "3", "4", "\"c\""}},
        {"a , \"b,b\"x ,\t3 ,4, c c \r\n", {"\"a\"", "\"b,b\"", "3", "4", "\"c c\""}},
        {"\"\"\r\n\r\n3\r\n4\r\n\r\n", {"\"\"", "\"\"", "3", "4", "\"\""}},
        {"a\"a\r\n  \" b \"\r\n\"3\"\r\n4\r\nc\r\nsixth\r\n", {"\"a'a\"", "\" b \"", "3", "4", "\"c\""}},
        {"\"a\r\nb\",b,3,4,c", {"\"a b\"", "\"b\"", "3", "4", "\"c\""}},
        {std::string("a\0a,\x81\x9D,3,4,c", 12),
         {std::string("\"a\0a\"", 5), "\"\x81\x9D\"", "3", "4", "\"c\""}},
        {"\xEF\xBB\xBF\xC0\xA2,b,3,4,c", {"\xEF\xBB\xBF\"\xC0\xA2\"", "\"b\"", "3", "4", "\"c\""}},
        {"a\r\nb\r\n3\r\n4\r\n\"c\r\n", {"\"a\"", "\"b\"", "3", "4"}, true},
        {"\"a\"\r\n\"b\"\r\n3\r\n", {"\"a\"", "\"b\"", "3"}, true},
        {"\"a\r\n", {}, true},
        // Numbers.
        {"a,b,+5,1e3,c", {"\"a\"", "\"b\"", "5", "1000", "\"c\""}},
        {"a,b,1.5,2.5,c", {"\"a\"", "\"b\"", "2", "2", "\"c\""}},
        {"a,b,-2147483648,16777215,c", {"\"a\"", "\"b\"", "-2147483648", "16777215", "\"c\""}},
        {"a,b,-2147483648.4,-2147483624,c", {"\"a\"", "\"b\"", "-2147483648", "-2147483624", "\"c\""}},
        {"a,b,verde,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,+-5,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,3 4,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,0x10,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,nan,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,inf,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,2147483648,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,3,-1e400,c", {"\"a\"", "\"b\"", "3"}, true},
        // Colours that no window system knows.
        {"a,b,16777216,4,c", {"\"a\"", "\"b\""}, true},
        {"a,b,3,-2147483623,c", {"\"a\"", "\"b\"", "3"}, true},
        {"a,b,3,-1,c", {"\"a\"", "\"b\"", "3"}, true},
    };
    Table table;
    for (const Case& c : cases) {
        Lines expected = kBefore;
        std::copy(c.Expected.begin(), c.Expected.end(), expected.begin());
        Texts boxes;
        EXPECT_EQ(Read(table, c.File, boxes), expected) << c.File.substr(0, 80);
        EXPECT_EQ(boxes, c.Damaged ? kDamaged : Texts{}) << c.File.substr(0, 80);
    }
}

TEST(Preferencias, OfAFileCutAnywhereAreAppliedUpToTheCut) {
    const Lines lines = {"\"Humano\"", "\"Click Here\"", "32768", "16384", "\"dorso.jpg\""};
    const std::string file = FileOf(lines);
    Table table;
    for (std::size_t bytes = 0; bytes <= file.size(); ++bytes) {
        bool damaged = false;
        Texts boxes;
        EXPECT_EQ(Read(table, file.substr(0, bytes), boxes), AfterCut(lines, bytes, kBefore, damaged))
            << bytes;
        EXPECT_EQ(boxes, damaged ? kDamaged : Texts{}) << bytes;
    }
}

TEST(Preferencias, MayStandInALongFileButNotBehindALongLine) {
    constexpr std::size_t kLong = 100'000'000;
    Table table;
    Texts boxes;
    std::string file = "a,b,3,4,c\r\n";
    file.resize(kLong, 'x');
    EXPECT_EQ(Read(table, std::move(file), boxes), (Lines{"\"a\"", "\"b\"", "3", "4", "\"c\""}));
    EXPECT_EQ(boxes, Texts{});
    file = "\"";
    file.resize(kLong, 'x');
    EXPECT_EQ(Read(table, std::move(file), boxes), kBefore);
    EXPECT_EQ(boxes, kDamaged);
}

TEST(Preferencias, AreAskedForAtEveryMatchUntilTheyAreSaved) {
    Table table;
    EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});
    table.Desktop.Files.erase(PathOf("lastprop.dat"));
    table.Window.Load();
    ASSERT_EQ(table.Desktop.Boxes.size(), 1U);
    EXPECT_EQ(table.Desktop.Boxes[0].Title, "Hubo un error");
    EXPECT_EQ(table.Desktop.Boxes[0].Icon, Icon::Critical);
    table.Window.Nuevomnu_Click();
    EXPECT_EQ(table.Desktop.TakeBoxTexts(), (Texts{kDamaged[0], kDamaged[0]}));
    EXPECT_FALSE(table.Desktop.Files.contains(PathOf("lastprop.dat")));
    EXPECT_EQ(InForce(table), (Lines{"\"\"", "\"Click Here\"", "32768", "-2147483633", "\"\""}));
    table.Window.Nuevomnu_Click();
    EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});
}

}  // namespace
}  // namespace zarpel
