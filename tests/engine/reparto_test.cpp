// Start, deals and turns, and what happens when somebody cannot move.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/support/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

constexpr const char* kMesaLlena = "La mesa está llena y ninguna de sus cartas suma 15: pasa el turno";
constexpr const char* kNinguno = "Ninguno de los dos puede jugar: se reparte de nuevo";

int InStock() {
    int count = 0;
    for (int i = 1; i <= classnaipe::kCartas; ++i) count += Naipes->Mazo_Duenio(i) == duenios::kNinguno;
    return count;
}

TEST(Reparto, AMatchBeginsWithTheDealAndTheMoveOfWhoDoesNotDeal) {
    for (const bool humanFirst : {true, false}) {
        SCOPED_TRACE(humanFirst);
        Table table(3, humanFirst);
        const std::string nombre = Naipes->Nombrejugador();
        const Texts captions = table.TakeCaptions();
        EXPECT_EQ(Naipes->LaMano(), humanFirst ? 0 : 1);
        EXPECT_EQ(captions.front(),
                  humanFirst ? "Reparte Cpu - Juega " + nombre : "Reparte " + nombre + " - Juega Cpu");
        EXPECT_EQ(captions.at(1), humanFirst ? "Juega " + nombre : "Juega Cpu");
        EXPECT_EQ(captions.back(), "Juega " + nombre);
        EXPECT_EQ(table.InHand(clase::kHumano).size(), 3U);
        EXPECT_EQ(table.InHand(clase::kCpu).size(), humanFirst ? 3U : 2U);
        EXPECT_EQ(table.Desktop.Pauses.size(), humanFirst ? 0U : 1U);
        EXPECT_EQ(table.Window.fondop1img[0].Visible.get(), table.Window.cartap1img[0].Visible.get());
        EXPECT_EQ(Naipes->Repartidas(), 10);
        EXPECT_EQ(InStock(), 30);
        EXPECT_EQ(table.Window.puntajeP1Lbl.Caption.get(), "0");
        EXPECT_EQ(table.Window.puntajeP2Lbl.Caption.get(), "0");
        EXPECT_EQ(table.Window.namelbl.Caption.get(), nombre);
        EXPECT_EQ(table.Window.Label2.Caption.get(), nombre);
        EXPECT_EQ(table.Desktop.Shown, std::vector<Form*>{&table.Window});
    }
}

TEST(Reparto, TheDeckIsFourSuitsOfTenWithTheirPictures) {
    const Table table;
    const std::pair<int, const char*> cases[] = {{1, "1espada"}, {10, "10espada"}, {11, "1basto"},
                                                 {27, "7oro"},   {31, "1copa"},    {40, "10copa"}};
    for (const auto& [carta, what] : cases) {
        EXPECT_EQ(std::to_string(Naipes->Mazo_Numero(carta)) + Naipes->Mazo_Palo(carta), what);
        EXPECT_EQ(Naipes->Mazo_Imagen(carta), CardPicture(carta));
    }
}

TEST(Reparto, ALaterDistributionKeepsTheTableAndWhoMovesFirst) {
    for (const bool humanFirst : {true, false}) {
        SCOPED_TRACE(humanFirst);
        Table table(1, humanFirst);
        const std::string nombre = Naipes->Nombrejugador();
        if (humanFirst) {
            table.Lay({0, 0, 0, 0, 0, 10}, {}, {Card(1, 'e')});
            table.GiveMoveTo(clase::kCpu);
        } else {
            table.Lay({0, 0, 0, 0, 0, 10}, {Card(1, 'e')}, {});
            table.Press("1", kShift);
        }
        EXPECT_EQ(Naipes->Repartidas(), 16);
        EXPECT_TRUE(table.Window.SlotMesa(5).Ocupado());
        EXPECT_EQ(table.InHand(clase::kHumano).size(), 3U);
        EXPECT_EQ(table.InHand(clase::kCpu).size(), humanFirst ? 3U : 2U);
        EXPECT_EQ(table.TakeCaptions().front(), "Juega Cpu");
    }
}

TEST(Reparto, ALaidCardGoesToTheFirstFreePlace) {
    Table table;
    table.Lay({9, 19, 0, 29}, {Card(1, 'e'), Card(2, 'e')}, {Card(10, 'c')});
    table.Desktop.OnPause = [&table] {
        EXPECT_EQ(table.OnTable(), (std::vector{9, 19, Card(2, 'e'), 29}));
        EXPECT_EQ(table.InHand(clase::kHumano), std::vector{Card(1, 'e')});
        EXPECT_EQ(Naipes->Mazo_Duenio(Card(2, 'e')), duenios::kLaMesa);
        EXPECT_EQ(table.Window.SlotMesa(2).Imagen.Picture.get(), CardPicture(Card(2, 'e')));
    };
    table.Press("2", kShift);
    EXPECT_EQ(table.OnTable(), (std::vector{9, 19, Card(2, 'e'), 29, Card(10, 'c')}));
}

TEST(Paso, OnAFullTableACaptureIsAsked) {
    Table table;
    table.Lay({10, 20, 30, 40, 9, 19, 29, 8}, {Card(7, 'o'), Card(1, 'e')}, {Card(1, 'c')});
    table.Press("12", kShift);
    EXPECT_EQ(table.InHand(clase::kHumano).size(), 2U);
    EXPECT_EQ(table.Desktop.TakeCalls(), Texts{});
    table.Desktop.OnPause = [] { EXPECT_EQ(Naipes->Mazo_Duenio(8), duenios::kHumano); };
    table.Press("1KL");
    EXPECT_EQ(table.Desktop.Pauses.size(), 1U);
}

// Who cannot move on a full table passes; when nobody can, the same dealer deals again.
TEST(Paso, NoTableIsEverStuck) {
    constexpr int kBlocked = Card(1, 'e'), kTakesNine = Card(6, 'e');
    struct Case {
        const char* What;
        std::vector<int> Humano, Cpu;
        Texts Boxes, Captions;
        char Mover;
        bool Annulled = false;
    };
    const std::string juega = "Juega Humano";
    const Case cases[] = {
        {"human",
         {kBlocked},
         {kTakesNine, 3},
         {kMesaLlena},
         {"Juega Cpu", "Me llevo estas cartas", juega},
         'p'},
        {"computer", {kTakesNine}, {kBlocked}, {}, {"Juega Cpu", "Paso", juega}, 'c'},
        {"both, human first",
         {kBlocked},
         {3},
         {kMesaLlena, kNinguno},
         {"Juega Cpu", "Paso", "Reparte Cpu - Juega Humano", juega},
         'p',
         true},
        {"both, computer first",
         {kBlocked},
         {3},
         {kMesaLlena, kNinguno},
         {"Juega Cpu", "Paso", juega, "Reparte Cpu - Juega Humano", juega},
         'c',
         true},
        {"human blocked, computer without cards",
         {kBlocked},
         {},
         {kMesaLlena, kNinguno},
         {"Juega Cpu", "Reparte Cpu - Juega Humano", juega},
         'p',
         true},
        {"human without cards",
         {},
         {3, kTakesNine},
         {},
         {"Juega Cpu", "Me llevo estas cartas", juega, "Juega Cpu", "He Jugado una carta", juega},
         'p'},
        {"computer without cards", {kTakesNine}, {}, {}, {"Juega Cpu", juega}, 'c'},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.What);
        Table table;
        Reparto->aZarpelP1(2);
        Naipes->aPuntajehumano(4);
        table.Lay({10, 20, 30, 40, 9, 19, 29, 39}, c.Humano, c.Cpu);
        table.GiveMoveTo(c.Mover);
        for (const Message& box : table.Desktop.Boxes) EXPECT_EQ(box.Icon, Icon::Information);
        EXPECT_EQ(table.Desktop.TakeBoxTexts(), c.Boxes);
        EXPECT_EQ(table.TakeCaptions(), c.Captions);
        const auto turns = std::count_if(c.Captions.begin(), c.Captions.end(), [](const std::string& text) {
            return text == "Paso" || text.starts_with("Me ") || text.starts_with("He ");
        });
        EXPECT_EQ(table.Desktop.Pauses, std::vector<int>(static_cast<std::size_t>(turns), 1500));
        EXPECT_EQ(Naipes->Puntajehumano(), 4);
        EXPECT_EQ(Naipes->LaMano(), 0);
        EXPECT_EQ(Reparto->Turno(), 1);
        EXPECT_EQ(Reparto->ZarpelP1(), c.Annulled ? 0 : 2);
        if (!c.Annulled) continue;
        EXPECT_EQ(InStock(), 30);
        EXPECT_EQ(table.OnTable().size(), 4U);
    }
}

TEST(Paso, TheComputerPassesWhenItsWalkIsBlindOnAFullTable) {
    Table table;
    table.Lay({2, 3, 8, 9, 19, 29, 39, 18}, {Card(7, 'o')}, {Card(5, 'e')});
    table.GiveMoveTo(clase::kCpu);
    EXPECT_EQ(table.TakeCaptions().at(1), "Paso");
    EXPECT_EQ(table.InHand(clase::kCpu), std::vector{Card(5, 'e')});
}

TEST(ErrorGrave, ADamagedInstallationEndsTheGameWithTwoBoxes) {
    const std::string lista = "El archivo naipes.dat esta dañado o no existe";
    struct Case {
        const char* What;
        std::function<void(ScriptedDesktop&)> Damage;
        std::string Text;
    };
    const std::string dat = PathOf("naipe.dat");
    const Case cases[] = {
        {"no list", [&](ScriptedDesktop& d) { d.Files.erase(dat); }, lista},
        {"short list", [&](ScriptedDesktop& d) { d.Files[dat].resize(639); }, lista},
        {"long last name", [&](ScriptedDesktop& d) { d.Files[dat][624] = 15; }, lista},
        {"no picture", [](ScriptedDesktop& d) { d.Files.erase(CardPicture(1)); },
         "No se puede cargar la imagen " + CardPicture(1)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.What);
        ScriptedDesktop desktop;
        desktop.Draws = {0.0, 0.0};  // the dealer, and card 1
        c.Damage(desktop);
        Playing window(desktop);
        int status = 0;
        try {
            window.Load();
        } catch (const ScriptedDesktop::Ended& ended) {
            status = ended.Status;
        }
        EXPECT_EQ(status, 1);
        ASSERT_EQ(desktop.Boxes.size(), 2U);
        EXPECT_EQ(desktop.Boxes[0].Text, c.Text);
        EXPECT_EQ(desktop.Boxes[0].Title, "Error grave");
        EXPECT_EQ(desktop.Boxes[0].Icon, Icon::Critical);
        EXPECT_EQ(desktop.Boxes[1].Text, "Reinstale el programa");
        EXPECT_EQ(desktop.Boxes[1].Title, "");
        EXPECT_EQ(desktop.Boxes[1].Icon, Icon::None);
    }
}

}  // namespace
}  // namespace zarpel
