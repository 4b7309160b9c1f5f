// What each command of the menus and of the toolbar asks, calls and leaves behind.
#include <gtest/gtest.h>

#include "tools/play/table.h"
#include "ui/aboutboxfrm.h"

namespace zarpel {
namespace {

using Do = std::function<void(Playing&)>;

Message Ask(const std::string& text, BoxIcon icon) {
    return {text, icon, "Nuevo Jugador", BoxButtons::YesNo, Answer::No};
}
Do Tool(const char* key) {
    return [key](Playing& window) { window.Toolbar1.ButtonClick(key); };
}
Do Entry(Menu Playing::*entry) {
    return [entry](Playing& window) { (window.*entry).Click(); };
}

TEST(Comandos, AskAndCallInOrder) {
    const Message menu = Ask("Esta accion terminara con el juego actual, continuar?", BoxIcon::Exclamation);
    const Message fresh = Ask("Esta accion terminara con el juego actual\n¿continuar?", BoxIcon::Question);
    const Message leave = Ask("Esta accion terminara con la aplicacion\n¿continuar?", BoxIcon::Question);
    const Message farewell = {"CHAU!"};
    const std::string prompt = "input Ingrese su Nick Name|Nuevo Jugador|Humano|1215";
    const std::string saved = "write C:\\Zarpel\\lastprop.dat", help = "help C:\\Zarpel\\ayuda.chm";
    constexpr auto kYes = Answer::Yes, kNo = Answer::No;
    enum After { kSame, kNewMatch, kClosed };
    const struct {
        Do Action;
        std::vector<Message> Boxes;
        Answer Pressed;
        After Then;
        std::vector<std::string> Calls = {};  // after the boxes
        std::string Typed = {}, Name = "Humano";
    } commands[] = {
        {Tool("Nuevo"), {fresh}, kNo, kSame},
        {Tool("Nuevo"), {fresh}, kYes, kNewMatch},
        {Tool("Run"), {}, kNo, kSame, {"run Click Here"}},
        {Tool("Salir"), {leave}, kNo, kSame},
        {Tool("Salir"), {leave}, kYes, kClosed, {saved, "end 0"}},
        {Entry(&Playing::Nuevomnu), {}, kNo, kNewMatch},
        {Entry(&Playing::nombremnu), {menu}, kNo, kSame},
        {Entry(&Playing::nombremnu), {menu}, kYes, kNewMatch, {prompt}},
        {Entry(&Playing::nombremnu), {menu}, kYes, kNewMatch, {prompt, saved}, " Ña Ñusta\t", "Ña Ñusta"},
        {Entry(&Playing::nombremnu), {menu}, kYes, kNewMatch, {prompt}, " \t"},
        {Entry(&Playing::preferenciasmnu), {}, kNo, kSame, {"modal Opciones"}},
        {Entry(&Playing::salir), {farewell}, kNo, kClosed},
        {&Playing::Form_QueryClose, {farewell}, kNo, kClosed},
        {Entry(&Playing::contenidosmnu), {}, kNo, kSame, {help}},
        {Entry(&Playing::acercamnu), {}, kNo, kSame, {"modal Acerca de Zarpel"}},
    };
    for (const auto& command : commands) {
        SCOPED_TRACE(&command - commands);
        Table table;
        table.Desktop.Answers = {command.Pressed};
        table.Desktop.Typed = {command.Typed};
        table.Desktop.Draws = {0.0};  // the human moves first again
        table.Window.puntajeP2Lbl.Caption = "7";
        try {
            command.Action(table.Window);
        } catch (const ScriptedDesktop::Ended&) {
        }
        std::vector<std::string> calls = command.Calls;
        for (const Message& box : command.Boxes) calls.insert(calls.begin(), "box " + box.Text);
        EXPECT_EQ(table.Desktop.Calls, calls);
        EXPECT_EQ(table.Desktop.Boxes, command.Boxes);
        EXPECT_EQ(table.Window.puntajeP2Lbl.Caption.get(), command.Then == kNewMatch ? "0" : "7");
        EXPECT_EQ(table.Desktop.Shown.empty(), command.Then == kClosed);
        EXPECT_EQ(table.Window.namelbl.Caption.get(), command.Name);
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
        EXPECT_FALSE(table.Desktop.Shown.contains(&form));
    }};
    table.Window.acercamnu.Click();
}

}  // namespace
}  // namespace zarpel
