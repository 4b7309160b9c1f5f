// The commands of the menus and of the toolbar. The same command can differ between the two: only the toolbar
// asks before a new match and before leaving.
#include "engine/zarpelfunc.h"
#include "ui/aboutboxfrm.h"
#include "ui/playing.h"
#include "ui/preferenciasfrm.h"

namespace zarpel {
namespace {

constexpr const char* kTerminaJuego = "Esta accion terminara con el juego actual, continuar?";

// The text without the blanks around it.
std::string SinBlancos(const std::string& texto) {
    constexpr const char* kBlancos = " \t";
    const std::size_t primero = texto.find_first_not_of(kBlancos);
    if (primero == std::string::npos) return {};
    return texto.substr(primero, texto.find_last_not_of(kBlancos) + 1 - primero);
}

}  // namespace

bool Playing::Confirma(const std::string& texto, BoxIcon icono) {
    return desktop_.Show({.Text = texto,
                          .Icon = icono,
                          .Title = "Nuevo Jugador",
                          .Buttons = BoxButtons::YesNo,
                          .Preselected = Answer::No}) == Answer::Yes;
}

void Playing::Nuevomnu_Click() { ResetGame(); }

void Playing::abrirmnu_Click() {
    if (!Confirma(kTerminaJuego, BoxIcon::Exclamation)) return;
    if (desktop_.ShowOpen(CommonDialog)) CargarJuego(CommonDialog.FileName);
}

void Playing::guardarmnu_Click() {
    if (desktop_.ShowSave(CommonDialog)) GuardaJuego(CommonDialog.FileName);
}

void Playing::nombremnu_Click() {
    if (!Confirma(kTerminaJuego, BoxIcon::Exclamation)) return;
    const std::string nombre =
        SinBlancos(desktop_.InputBox("Ingrese su Nick Name", "Nuevo Jugador", "Humano", Label2));
    if (!nombre.empty()) {
        Naipes->aNombrejugador(nombre);
        SaveProperty();
    }
    ResetGame();
}

void Playing::preferenciasmnu_Click() {
    preferenciasfrm opciones(desktop_, *this);
    desktop_.ShowModal(opciones);
}

void Playing::salir_Click() {
    desktop_.Unload(*this);
    desktop_.Show({.Text = "CHAU!"});
}

void Playing::contenidosmnu_Click() { desktop_.OpenHelp(desktop_.PathOf("ayuda.chm")); }

void Playing::acercamnu_Click() {
    Aboutboxfrm acerca(desktop_);
    desktop_.ShowModal(acerca);
}

void Playing::Toolbar1_ButtonClick(const std::string& key) {
    if (key == "Nuevo") {
        if (Confirma("Esta accion terminara con el juego actual\n¿continuar?", BoxIcon::Question))
            ResetGame();
    } else if (key == "Salir") {
        if (!Confirma("Esta accion terminara con la aplicacion\n¿continuar?", BoxIcon::Question)) return;
        SaveProperty();
        desktop_.Unload(*this);
        desktop_.End(0);
    } else if (key == "Run") {
        desktop_.Run(Toolbar1.Tag);
    }
}

}  // namespace zarpel
