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
    const struct {
        Ganadas Cpu;
        std::int16_t ZarpelCpu, ZarpelHumano;
        std::string Figures;  // the computer's and the human's, row by row
        const char* Points;
    } cases[] = {
        {{22, 6, 3, true}, 1, 0, "22 18 6 4 3 1 1 0 1 0 ", "5-0"},
        {{20, 5, 2, false}, 2, 3, "20 20 5 5 2 2 0 1 2 3 ", "2-4"},
        {{23, 7, 2, true}, 0, 1, "23 17 7 3 2 2 1 0 0 1 ", "3-1"},
        {{0, 0, 0, false}, 0, 0, "0 40 0 10 0 4 0 1 0 0 ", "0-4"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Figures);
        Table table;
        Divide(table, c.Cpu);
        Naipes->aNombrejugador("Ana");
        Reparto->aZarpelP1(c.ZarpelCpu);
        Reparto->aZarpelP2(c.ZarpelHumano);
        const auto points = [&window = table.Window] {
            return window.puntajeP1Lbl.Caption.get() + "-" + window.puntajeP2Lbl.Caption.get();
        };
        std::string figures;
        table.Desktop.Modal = {[&](Form& form) {
            auto& r = dynamic_cast<Resultadosfrm&>(form);
            EXPECT_EQ(r.Label1.Caption.get() + r.Label2.Caption.get(), "PLAYER CPUAna");
            for (const Label* label :
                 {&r.cartasp1lbl, &r.cartasp2lbl, &r.orosp1lbl, &r.orosp2lbl, &r.sietesp1lbl, &r.sietesp2lbl,
                  &r.velop1lbl, &r.velop2lbl, &r.zarpelp1lbl, &r.zarpelp2lbl}) {
                figures += label->Caption.get() + " ";
            }
            EXPECT_EQ(points(), "0-0");  // not added yet
            r.Command1.Click();
        }};
        table.GiveMoveTo(clase::kHumano);
        EXPECT_EQ(figures, c.Figures);
        EXPECT_EQ(points(), c.Points);
        EXPECT_EQ(table.Desktop.Boxes.size(), 0U);
    }
}

TEST(Puntos, TheLastCapturerGetsTheTableAndTheOtherDeals) {
    for (const std::string& ultimo : {duenios::kCpu, duenios::kHumano, std::string()}) {
        SCOPED_TRACE(ultimo);
        Table table;
        table.Lay({1, 2, 3}, {10}, {});
        for (int i = 1; i <= classnaipe::kCartas; ++i) {
            if (Naipes->Mazo_Duenio(i) == duenios::kNinguno) Naipes->aMazo_Duenio(i, duenios::kHumano);
        }
        Naipes->aRepartidas(classnaipe::kCartas);
        Reparto->aUltimoqLevanta(ultimo);
        Reparto->aZarpelP2(1);
        table.Desktop.Modal = {[&](Form& form) {
            const auto& r = dynamic_cast<Resultadosfrm&>(form);
            EXPECT_EQ(r.cartasp1lbl.Caption.get(), ultimo == duenios::kCpu ? "4" : "0");
            EXPECT_EQ(table.OnTable(), std::vector<int>{});
        }};
        table.Press("1", kShift);
        EXPECT_EQ(table.Desktop.TakeBoxTexts(), Texts{});  // no zarpel
        EXPECT_EQ(table.Desktop.Pauses, (std::vector{1500, 1500}));
        Texts captions = table.TakeCaptions();
        captions.resize(3);
        EXPECT_EQ(captions, (Texts{"Esta es la ultima mano", "Reparte Humano - Juega Cpu", "Juega Cpu"}));
        EXPECT_EQ(Naipes->LaMano(), 1);
        EXPECT_EQ(Naipes->Repartidas(), 10);
        EXPECT_EQ(Reparto->ZarpelP2(), 0);
    }
}

TEST(Puntos, AMatchEndsAtFifteenAndAnotherIsOffered) {
    const Ganadas twoForCpu = {21, 5, 2, true}, oneEach = {21, 5, 2, false}, fourForHuman = {0, 0, 0, false};
    const Message winCpu = {"GANADOR CPU", Icon::Exclamation, "Final"},
                  draw = {"JUEGO EMPATADO", Icon::Exclamation};
    const Message winHuman = {"GANADOR Ana", Icon::Exclamation, "Final"};
    const Message offer = {"¿Jugar de nuevo?", Icon::Question, "Fin de Juego", Buttons::YesNo};
    const struct {
        std::int16_t Cpu, Humano;  // points before the deal
        Ganadas Deal;
        std::vector<Message> Boxes;  // none: the match goes on
    } cases[] = {
        {13, 14, twoForCpu, {winCpu, offer}},     {14, 14, oneEach, {draw, offer}},
        {14, 15, oneEach, {winHuman, offer}},  // 15 to 16
        {0, 11, fourForHuman, {winHuman, offer}}, {14, 10, fourForHuman, {}},
    };
    for (const auto& c : cases) {
        for (const Answer again : {Answer::Yes, Answer::No}) {
            SCOPED_TRACE(::testing::Message() << c.Cpu << "-" << c.Humano << (again == Answer::Yes));
            Table table;
            Divide(table, c.Deal);
            Naipes->aNombrejugador("Ana");
            Naipes->aPuntajecpu(c.Cpu);
            Naipes->aPuntajehumano(c.Humano);
            table.Desktop.Answers = {again};
            const bool over = !c.Boxes.empty();
            if (over && again == Answer::No) {
                EXPECT_THROW(table.GiveMoveTo(clase::kHumano), ScriptedDesktop::Ended);
                EXPECT_EQ(table.Desktop.Calls.back(), "end 0");
            } else {
                table.GiveMoveTo(clase::kHumano);
            }
            EXPECT_EQ(table.Desktop.Boxes, c.Boxes);
            EXPECT_EQ(table.Window.puntajeP2Lbl.Caption.get() == "0", over && again == Answer::Yes);
        }
    }
}

}  // namespace
}  // namespace zarpel
