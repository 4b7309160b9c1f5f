// What each command of the menus and of the toolbar asks, calls and leaves behind.
#include <gtest/gtest.h>

#include "tests/support/table.h"
#include "ui/aboutboxfrm.h"

namespace zarpel {
namespace {

Message Ask(const std::string& text, Icon icon) {
    return {text, icon, "Nuevo Jugador", Buttons::YesNo, Answer::No};
}
const Message kMenu = Ask("Esta accion terminara con el juego actual, continuar?", Icon::Exclamation);
const Message kNew = Ask("Esta accion terminara con el juego actual\n¿continuar?", Icon::Question);
const Message kLeave = Ask("Esta accion terminara con la aplicacion\n¿continuar?", Icon::Question);
const Message kFarewell = {"CHAU!"};
const std::string kPrompt = "input Ingrese su Nick Name|Nuevo Jugador|Humano";
const std::string kSaved = "write C:\\Zarpel\\lastprop.dat";
const std::string kHelp = "help C:\\Zarpel\\ayuda.chm";

enum class After { SameMatch, NewMatch, Closed };

struct Command {
    std::function<void(Playing&)> Do;
    std::vector<Message> Boxes;
    Answer Pressed;
    After Then;
    std::string Typed;
    std::vector<std::string> Calls;  // after the boxes
};

auto Tool(const char* key) {
    return [key](Playing& window) { window.Toolbar1.ButtonClick(key); };
}
auto Entry(Menu Playing::*entry) {
    return [entry](Playing& window) { (window.*entry).Click(); };
}

TEST(Comandos, AskAndCallInOrder) {
    constexpr auto kYes = Answer::Yes, kNo = Answer::No;
    constexpr auto kSame = After::SameMatch, kNewMatch = After::NewMatch, kClosed = After::Closed;
    const Command commands[] = {
        {Tool("Nuevo"), {kNew}, kNo, kSame, "", {}},
        {Tool("Nuevo"), {kNew}, kYes, kNewMatch, "", {}},
        {Tool("Run"), {}, kNo, kSame, "", {"run Click Here"}},
        {Tool("Salir"), {kLeave}, kNo, kSame, "", {}},
        {Tool("Salir"), {kLeave}, kYes, kClosed, "", {kSaved, "end 0"}},
        {Entry(&Playing::Nuevomnu), {}, kNo, kNewMatch, "", {}},
        {Entry(&Playing::nombremnu), {kMenu}, kNo, kSame, "", {}},
        {Entry(&Playing::nombremnu), {kMenu}, kYes, kNewMatch, "", {kPrompt}},
        {Entry(&Playing::nombremnu), {kMenu}, kYes, kNewMatch, "Ñusta", {kPrompt, kSaved}},
        {Entry(&Playing::preferenciasmnu), {}, kNo, kSame, "", {"modal Opciones"}},
        {Entry(&Playing::salir), {kFarewell}, kNo, kClosed, "", {}},
        {[](Playing& window) { window.Form_QueryClose(); }, {kFarewell}, kNo, kClosed, "", {}},
        {Entry(&Playing::contenidosmnu), {}, kNo, kSame, "", {kHelp}},
        {[](Playing& window) { window.Form_KeyDown(kKeyF1, 0); }, {}, kNo, kSame, "", {kHelp}},
        {Entry(&Playing::acercamnu), {}, kNo, kSame, "", {"modal Acerca de Zarpel"}},
    };
    for (const Command& command : commands) {
        SCOPED_TRACE(&command - commands);
        Table table;
        table.Desktop.Answers = {command.Pressed};
        table.Desktop.Typed = {command.Typed};
        table.Desktop.Draws = {0.0};  // the human moves first again
        table.Window.puntajeP2Lbl.Caption = "7";
        try {
            command.Do(table.Window);
        } catch (const ScriptedDesktop::Ended&) {
        }
        std::vector<std::string> calls = command.Calls;
        for (const Message& box : command.Boxes) calls.insert(calls.begin(), "box " + box.Text);
        EXPECT_EQ(table.Desktop.TakeCalls(), calls);
        EXPECT_EQ(table.Desktop.Boxes, command.Boxes);
        EXPECT_EQ(table.Window.puntajeP2Lbl.Caption.get(), command.Then == kNewMatch ? "0" : "7");
        EXPECT_EQ(table.Desktop.Shown.empty(), command.Then == kClosed);
        EXPECT_EQ(table.Window.namelbl.Caption.get(), command.Typed.empty() ? "Humano" : command.Typed);
    }
}

TEST(Acerca, NamesTheGameAndItsAuthorsAndClosesOnItsButton) {
    Table table;
    table.Desktop.Modal = {[&](Form& form) {
        auto& acerca = dynamic_cast<Aboutboxfrm&>(form);
        EXPECT_EQ(acerca.lblProductName.Caption.get() + acerca.lblVersion.Caption.get(), "Zarpel Game1.0");
        EXPECT_EQ(acerca.Label1.Caption.get(), "Los autores de Zarpel");
        EXPECT_TRUE(acerca.cmdOK.Default && acerca.cmdOK.Cancel);  // Enter and Escape
        acerca.cmdOK.Click();
        EXPECT_EQ(table.Desktop.Shown, std::vector<Form*>{&table.Window});
    }};
    table.Window.acercamnu.Click();
}

}  // namespace
}  // namespace zarpel
