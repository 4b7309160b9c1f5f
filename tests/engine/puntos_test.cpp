// The end of a deal, its count, and the end of a match.
#include <gtest/gtest.h>

#include "tests/support/table.h"
#include "ui/resultadosfrm.h"

namespace zarpel {
namespace {

using Texts = std::vector<std::string>;

// Gives the computer so many of a deal's cards, and the human the rest; the table and the hands are empty.
struct Ganadas {
    int Cartas, Oros, Sietes;
    bool Velo;
};

void Divide(Table& table, const Ganadas& cpu) {
    table.Lay({}, {}, {});
    Naipes->aRepartidas(classnaipe::kCartas);
    const auto oros = cpu.Oros - cpu.Velo, sietes = cpu.Sietes - cpu.Velo;
    int left[] = {cpu.Cartas - oros - sietes - cpu.Velo, oros, sietes, cpu.Velo};  // plain, oro, seven, velo
    for (int i = 1; i <= classnaipe::kCartas; ++i) {
        int& kind = left[(Naipes->Mazo_Palo(i) == "oro" ? 1 : 0) + (Naipes->Mazo_Numero(i) == 7 ? 2 : 0)];
        Naipes->aMazo_Duenio(i, kind-- > 0 ? duenios::kCpu : duenios::kHumano);
    }
}

TEST(Puntos, ADealIsShownThenScored) {
    struct Case {
        Ganadas Cpu;
        std::int16_t ZarpelCpu, ZarpelHumano;
        Texts Figures;  // the computer's and the human's, row by row
        const char *PointsCpu, *PointsHumano;
    };
    const Case cases[] = {
        {{22, 6, 3, true}, 1, 0, {"22", "18", "6", "4", "3", "1", "1", "0", "1", "0"}, "5", "0"},
        {{20, 5, 2, false}, 2, 3, {"20", "20", "5", "5", "2", "2", "0", "1", "2", "3"}, "2", "4"},
        {{23, 7, 2, true}, 0, 1, {"23", "17", "7", "3", "2", "2", "1", "0", "0", "1"}, "3", "1"},
        {{0, 0, 0, false}, 0, 0, {"0", "40", "0", "10", "0", "4", "0", "1", "0", "0"}, "0", "4"},
        {{40, 10, 4, true}, 0, 0, {"40", "0", "10", "0", "4", "0", "1", "0", "0", "0"}, "4", "0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::PrintToString(c.Figures));
        Table table;
        Divide(table, c.Cpu);
        Naipes->aNombrejugador("Ana");
        Reparto->aZarpelP1(c.ZarpelCpu);
        Reparto->aZarpelP2(c.ZarpelHumano);
        Texts figures;
        table.Desktop.Modal = {[&](Form& form) {
            auto& r = dynamic_cast<Resultadosfrm&>(form);
            EXPECT_EQ(r.Label1.Caption.get() + r.Label2.Caption.get(), "PLAYER CPUAna");
            for (const Label* label :
                 {&r.cartasp1lbl, &r.cartasp2lbl, &r.orosp1lbl, &r.orosp2lbl, &r.sietesp1lbl, &r.sietesp2lbl,
                  &r.velop1lbl, &r.velop2lbl, &r.zarpelp1lbl, &r.zarpelp2lbl}) {
                figures.push_back(label->Caption);
            }
            EXPECT_EQ(table.Window.puntajeP1Lbl.Caption.get(), "0");  // not added yet
            r.Command1.Click();
        }};
        table.GiveMoveTo(clase::kHumano);
        EXPECT_EQ(figures, c.Figures);
        EXPECT_EQ(table.Window.puntajeP1Lbl.Caption.get(), c.PointsCpu);
        EXPECT_EQ(table.Window.puntajeP2Lbl.Caption.get(), c.PointsHumano);
        EXPECT_EQ(table.Desktop.Boxes.size(), 0U);
    }
}

TEST(Puntos, TheLastCapturerGetsTheTableAndTheOtherDeals) {
    for (const std::string& ultimo : {duenios::kCpu, duenios::kHumano, std::string()}) {
        SCOPED_TRACE(ultimo);
        Table table;
        Naipes->aNombrejugador("Ana");
        Divide(table, {20, 5, 2, false});
        table.Lay({1, 2, 3}, {Card(10, 'c')}, {});
        for (int i = 1; i <= classnaipe::kCartas; ++i) {
            if (Naipes->Mazo_Duenio(i) == duenios::kNinguno) Naipes->aMazo_Duenio(i, duenios::kHumano);
        }
        Reparto->aUltimoqLevanta(ultimo);
        Reparto->aZarpelP2(1);
        table.Desktop.OnPause = [&table] {
            EXPECT_EQ(table.Window.cartellbl.Caption.get(), "Esta es la ultima mano");
            EXPECT_EQ(table.OnTable(), (std::vector{1, 2, 3, Card(10, 'c')}));
            table.Desktop.OnPause = [] {};
        };
        table.Desktop.Modal = {[&](Form& form) {
            const auto& r = dynamic_cast<Resultadosfrm&>(form);
            EXPECT_EQ(r.cartasp1lbl.Caption.get(), ultimo == duenios::kCpu ? "4" : "0");
            EXPECT_EQ(table.OnTable(), std::vector<int>{});
        }};
        table.Press("1", kShift);
        EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});  // no zarpel
        EXPECT_EQ(table.Desktop.Pauses, (std::vector{1500, 1500}));
        const Texts captions = table.TakeCaptions();
        EXPECT_EQ(captions.at(0), "Esta es la ultima mano");
        EXPECT_EQ(captions.at(1), "Reparte Ana - Juega Cpu");
        EXPECT_EQ(captions.at(2), "Juega Cpu");
        EXPECT_EQ(Naipes->LaMano(), 1);
        EXPECT_EQ(Naipes->Repartidas(), 10);
        EXPECT_EQ(Reparto->ZarpelP2(), 0);
    }
}

TEST(Puntos, AMatchEndsAtFifteenAndAnotherIsOffered) {
    struct Case {
        std::int16_t Cpu, Humano;  // points before the deal
        Ganadas Deal;
        const char *Text, *Title;  // no text: the match goes on
    };
    const Ganadas twoForCpu = {21, 5, 2, true}, oneEach = {21, 5, 2, false}, fourForHuman = {0, 0, 0, false};
    const Case cases[] = {
        {13, 14, twoForCpu, "GANADOR CPU", "Final"},   {14, 14, oneEach, "JUEGO EMPATADO", ""},
        {14, 15, oneEach, "GANADOR Ana", "Final"},  // 15 to 16
        {0, 11, fourForHuman, "GANADOR Ana", "Final"}, {14, 10, fourForHuman, "", ""},
    };
    for (const Case& c : cases) {
        for (const Answer again : {Answer::Yes, Answer::No}) {
            SCOPED_TRACE(::testing::Message() << c.Text << c.Cpu << (again == Answer::Yes ? " yes" : " no"));
            Table table;
            Divide(table, c.Deal);
            Naipes->aNombrejugador("Ana");
            Naipes->aPuntajecpu(c.Cpu);
            Naipes->aPuntajehumano(c.Humano);
            table.Desktop.Answers = {again};
            int status = -1;
            try {
                table.GiveMoveTo(clase::kHumano);
            } catch (const ScriptedDesktop::Ended& ended) {
                status = ended.Status;
            }
            const bool over = *c.Text != '\0';
            EXPECT_EQ(status, over && again == Answer::No ? 0 : -1);
            ASSERT_EQ(table.Desktop.Boxes.size(), over ? 2U : 0U);
            EXPECT_EQ(table.Window.puntajeP2Lbl.Caption.get() == "0", over && again == Answer::Yes);
            if (!over) continue;
            EXPECT_EQ(table.Desktop.Boxes[0].Text, c.Text);
            EXPECT_EQ(table.Desktop.Boxes[0].Title, c.Title);
            EXPECT_EQ(table.Desktop.Boxes[0].Icon, Icon::Exclamation);
            EXPECT_EQ(table.Desktop.Boxes[0].Buttons, Buttons::Ok);
            EXPECT_EQ(table.Desktop.Boxes[1].Text, "¿Jugar de nuevo?");
            EXPECT_EQ(table.Desktop.Boxes[1].Title, "Fin de Juego");
            EXPECT_EQ(table.Desktop.Boxes[1].Icon, Icon::Question);
            EXPECT_EQ(table.Desktop.Boxes[1].Buttons, Buttons::YesNo);
        }
    }
}

}  // namespace
}  // namespace zarpel
