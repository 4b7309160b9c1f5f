// Start, deals and turns, and what happens when somebody cannot move.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/support/table.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

TEST(Reparto, WhoDoesNotDealMovesFirstInEveryDistribution) {
    for (const bool humanFirst : {true, false}) {
        SCOPED_TRACE(humanFirst);
        Table table(3, humanFirst);
        Playing& window = table.Window;
        const auto look = [&](int dealt) {
            EXPECT_EQ(Naipes->Repartidas(), dealt);
            EXPECT_EQ(table.InHand(clase::kHumano).size(), 3U);
            EXPECT_EQ(table.InHand(clase::kCpu).size(), humanFirst ? 3U : 2U);
        };
        look(10);
        const Texts captions = table.TakeCaptions();
        EXPECT_EQ(captions.front(), humanFirst ? "Reparte Cpu - Juega Humano" : "Reparte Humano - Juega Cpu");
        EXPECT_EQ(captions.at(1), humanFirst ? "Juega Humano" : "Juega Cpu");
        EXPECT_EQ(captions.back(), "Juega Humano");
        EXPECT_EQ(table.Desktop.Pauses.size(), humanFirst ? 0U : 1U);
        EXPECT_EQ(window.puntajeP1Lbl.Caption.get() + window.puntajeP2Lbl.Caption.get(), "00");
        EXPECT_EQ(window.namelbl.Caption.get() + window.Label2.Caption.get(), "HumanoHumano");
        EXPECT_EQ(table.Desktop.Shown, std::vector<Form*>{&window});

        table.Lay({0, 0, 0, 0, 0, 10}, {humanFirst ? 0 : 1}, {humanFirst ? 1 : 0});
        humanFirst ? table.GiveMoveTo(clase::kCpu) : table.Press("1", kShift);
        look(16);
        EXPECT_TRUE(window.SlotMesa(5).Ocupado());
    }
}

TEST(Reparto, ALaidCardGoesToTheFirstFreePlaceIfThereIsOne) {
    Table table;
    table.Lay({9, 19, 0, 29, 39, 8, 18, 28}, {6, 2}, {10});
    table.Press("2", kShift);
    EXPECT_EQ(table.OnTable(), (std::vector{9, 19, 2, 29, 39, 8, 18, 28}));
    EXPECT_EQ(Naipes->Mazo_Duenio(2), duenios::kLaMesa);
    EXPECT_EQ(table.Window.SlotMesa(2).Imagen.Picture.get(), CardPicture(2));
    EXPECT_EQ(table.Desktop.TakeCalls(), Texts{"pause 1500"});  // the computer passes
    table.Press("1", kShift);
    EXPECT_EQ(table.InHand(clase::kHumano), std::vector{6});
    EXPECT_EQ(table.Desktop.TakeCalls(), Texts{});
}

// Who cannot move on a full table passes; when nobody can, the same dealer deals again.
TEST(Paso, NoTableIsEverStuck) {
    const Message llena = {"La mesa está llena y ninguna de sus cartas suma 15: pasa el turno",
                           Icon::Information};
    const Message ninguno = {"Ninguno de los dos puede jugar: se reparte de nuevo", Icon::Information};
    const std::string reparte = "Reparte Cpu - Juega Humano", cpu = "Juega Cpu", yo = "Juega Humano";
    const std::string lleva = "Me llevo estas cartas", laid = "He Jugado una carta", paso = "Paso";
    const std::vector<Message> both = {llena, ninguno};
    constexpr int kStuck = Card(8, 'o'), kStuckToo = Card(8, 'c'), kTakesEight = Card(7, 'o');
    constexpr int kTakesNine = Card(6, 'e'), kBlind = Card(5, 'e');  // to 2 and 8
    const struct {
        const char* What;
        std::vector<int> Humano, Cpu;
        std::vector<Message> Boxes;
        Texts Captions;
        char Mover;
    } cases[] = {
        {"human", {kStuck}, {kTakesNine, kStuckToo}, {llena}, {cpu, lleva, yo}, 'p'},
        {"computer", {kTakesEight}, {kBlind}, {}, {cpu, paso, yo}, 'c'},
        {"both, human first", {kStuck}, {kStuckToo}, both, {cpu, paso, reparte, yo}, 'p'},
        {"both, computer first", {kStuck}, {kStuckToo}, both, {cpu, paso, yo, reparte, yo}, 'c'},
        {"human, computer without cards", {kStuck}, {}, both, {cpu, reparte, yo}, 'p'},
        {"human without cards", {}, {kStuck, kTakesNine}, {}, {cpu, lleva, yo, cpu, laid, yo}, 'p'},
        {"computer without cards", {kTakesNine}, {}, {}, {cpu, yo}, 'c'},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        Table table;
        Reparto->aZarpelP1(2);
        Naipes->aPuntajehumano(4);
        table.Lay({2, 3, 8, 9, 19, 29, 39, 18}, c.Humano, c.Cpu);
        table.GiveMoveTo(c.Mover);
        EXPECT_EQ(table.Desktop.Boxes, c.Boxes);
        EXPECT_EQ(table.TakeCaptions(), c.Captions);
        const auto turns = std::ranges::count_if(c.Captions, [&](const std::string& text) {
            return text == paso || text == lleva || text == laid;
        });
        EXPECT_EQ(table.Desktop.Pauses, std::vector<int>(static_cast<std::size_t>(turns), 1500));
        EXPECT_EQ(Naipes->Puntajehumano(), 4);
        EXPECT_EQ(Naipes->LaMano(), 0);
        EXPECT_EQ(Reparto->Turno(), 1);
        const bool annulled = c.Boxes.size() == 2;
        EXPECT_EQ(Reparto->ZarpelP1(), annulled ? 0 : 2);
        if (!annulled) continue;
        EXPECT_EQ(Naipes->Repartidas(), 10);
        EXPECT_EQ(table.OnTable().size(), 4U);
    }
}

TEST(ErrorGrave, ADamagedInstallationEndsTheGameWithTwoBoxes) {
    const std::string lista = "El archivo naipes.dat esta dañado o no existe", dat = PathOf("naipe.dat");
    const struct {
        std::function<void(ScriptedDesktop&)> Damage;
        std::string Text;
    } cases[] = {
        {[&](ScriptedDesktop& d) { d.Files.erase(dat); }, lista},
        {[&](ScriptedDesktop& d) { d.Files[dat].resize(639); }, lista},
        {[&](ScriptedDesktop& d) { d.Files[dat][624] = 15; }, lista},  // length of the last name
        {[](ScriptedDesktop& d) { d.Files.erase(CardPicture(1)); },
         "No se puede cargar la imagen " + CardPicture(1)},
    };
    for (const auto& [damage, text] : cases) {
        SCOPED_TRACE(text);
        ScriptedDesktop desktop;
        desktop.Draws = {0.0, 0.0};  // the dealer, and card 1
        damage(desktop);
        Playing window(desktop);
        EXPECT_THROW(window.Load(), ScriptedDesktop::Ended);
        EXPECT_EQ(desktop.Calls.back(), "end 1");
        EXPECT_EQ(desktop.Boxes,
                  (std::vector<Message>{{text, Icon::Critical, "Error grave"}, {"Reinstale el programa"}}));
    }
}

}  // namespace
}  // namespace zarpel
