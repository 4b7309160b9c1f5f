// The end of a deal, its count, and the end of a match.
#include <gtest/gtest.h>

#include "tools/play/table.h"
#include "ui/resultadosfrm.h"

namespace zarpel {
namespace {

// The last three cards lie on the table until the deal ends.
TEST(Puntos, ADealIsShownThenScoredAndFifteenEndTheMatch) {
    const std::string cpu = kSignos.Cpu.Duenio, humano = kSignos.Humano.Duenio;
    const Message winCpu = {"GANADOR CPU", BoxIcon::Exclamation, "Final"};
    const Message winHuman = {"GANADOR Ana", BoxIcon::Exclamation, "Final"};
    const Message draw = {"JUEGO EMPATADO", BoxIcon::Exclamation};
    const Message offer = {"¿Jugar de nuevo?", BoxIcon::Question, "Fin de Juego", BoxButtons::YesNo};
    const struct {
        int First, Last;             // the computer has won the cards of these indexes, the human the rest
        std::int16_t Zarpels[2];     // the computer's and the human's ...
        std::int16_t Before[2];      // ... and their points before the deal
        std::string Ultimo;          // the last capturer
        const char* Figures;         // of both, row by row
        std::string Points;          // after the deal
        std::vector<Message> Boxes;  // none: the match goes on
        Answer Again = Answer::No;
    } cases[] = {
        {7, 27, {1, 0}, {0, 0}, cpu, "24 16 7 3 3 1 1 0 1 0 ", "5-0", {}},
        {1, 20, {2, 3}, {0, 0}, humano, "20 20 0 10 2 2 0 1 2 3 ", "2-5", {}},
        {27, 37, {0, 0}, {0, 0}, humano, "11 29 4 6 2 2 1 0 0 0 ", "1-2", {}},
        {0, 0, {0, 0}, {14, 10}, humano, "0 40 0 10 0 4 0 1 0 0 ", "14-14", {}},
        {21, 37, {0, 0}, {13, 14}, cpu, "20 20 10 0 2 2 1 0 0 0 ", "15-14", {winCpu, offer}},
        {7, 27, {1, 0}, {32763, 0}, cpu, "24 16 7 3 3 1 1 0 1 0 ", "32767-0", {winCpu, offer}},
        {1, 25, {0, 0}, {14, 14}, humano, "25 15 5 5 2 2 0 1 0 0 ", "15-15", {draw, offer}, Answer::Yes},
        {1, 25, {0, 1}, {14, 14}, humano, "25 15 5 5 2 2 0 1 0 1 ", "15-16", {winHuman, offer}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Points);
        Table table;
        Naipes->aNombrejugador("Ana");
        Naipes->aRepartidas(classnaipe::kCartas);
        Naipes->aPuntajecpu(c.Before[0]);
        Naipes->aPuntajehumano(c.Before[1]);
        Reparto->aZarpelP1(c.Zarpels[0]);
        Reparto->aZarpelP2(c.Zarpels[1]);
        Reparto->aUltimoqLevanta(c.Ultimo);
        table.Lay({38, 39, 40}, {}, {});
        for (int i = 1; i < 38; ++i) {
            Naipes->aMazo_Duenio(i, c.First <= i && i <= c.Last ? cpu : humano);
        }
        const auto points = [&window = table.Window] {
            return window.puntajeP1Lbl.Caption.get() + "-" + window.puntajeP2Lbl.Caption.get();
        };
        std::string figures;
        table.Desktop.Modal = {[&](Form& form) {
            auto& r = dynamic_cast<Resultadosfrm&>(form);
            for (const Label* label :
                 {&r.cartasp1lbl, &r.cartasp2lbl, &r.orosp1lbl, &r.orosp2lbl, &r.sietesp1lbl, &r.sietesp2lbl,
                  &r.velop1lbl, &r.velop2lbl, &r.zarpelp1lbl, &r.zarpelp2lbl}) {
                figures += label->Caption.get() + " ";
            }
            EXPECT_EQ(r.Label1.Caption.get() + r.Label2.Caption.get(), "PLAYER CPUAna");
            EXPECT_EQ(points(), "0-0");  // not added yet
            EXPECT_EQ(table.TakeCaptions().back(), "Esta es la ultima mano");
            EXPECT_EQ(table.Desktop.TakeCalls(),
                      (std::vector<std::string>{"pause 1500", "modal Resultados"}));
            EXPECT_EQ(table.OnTable(), std::vector<int>{});
            r.Command1.Click();
        }};
        table.Desktop.Answers = {c.Again};
        const bool over = !c.Boxes.empty(), again = c.Again == Answer::Yes;
        if (over && !again) {
            EXPECT_THROW(table.GiveMoveTo(Jugador::Humano), ScriptedDesktop::Ended);
            EXPECT_EQ(table.Desktop.Calls.back(), "end 0");
        } else {
            table.GiveMoveTo(Jugador::Humano);
            EXPECT_EQ(Naipes->Repartidas(), 10);
            EXPECT_EQ(Reparto->ZarpelP2(), 0);
            EXPECT_TRUE(over || table.TakeCaptions().front() == "Reparte Ana - Juega Cpu");
        }
        EXPECT_EQ(figures, c.Figures);
        EXPECT_EQ(points(), again ? "0-0" : c.Points);
        EXPECT_EQ(std::to_string(Naipes->Puntajecpu()) + "-" + std::to_string(Naipes->Puntajehumano()),
                  points());
        EXPECT_EQ(table.Desktop.Boxes, c.Boxes);  // no zarpel
    }
}

}  // namespace
}  // namespace zarpel
