// The commands of the menus and of the toolbar. The same command can differ between the two: only the toolbar
// asks before a new match and before leaving.
#include "ui/playing.h"

namespace zarpel {

bool Playing::Confirma(const std::string& texto, Icon icono) {
    return desktop_.Show({.Text = texto,
                          .Icon = icono,
                          .Title = "Nuevo Jugador",
                          .Buttons = Buttons::YesNo,
                          .Preselected = Answer::No}) == Answer::Yes;
}

void Playing::Nuevomnu_Click() { ResetGame(); }

void Playing::abrirmnu_Click() {
    if (!Confirma("Esta accion terminara con el juego actual, continuar?", Icon::Exclamation)) return;
    if (desktop_.ShowOpen(CommonDialog)) CargarJuego(CommonDialog.FileName);
}

void Playing::guardarmnu_Click() {
    if (desktop_.ShowSave(CommonDialog)) GuardaJuego(CommonDialog.FileName);
}

void Playing::salir_Click() {
    desktop_.Unload(*this);
    desktop_.Show({.Text = "CHAU!"});
}

void Playing::Toolbar1_ButtonClick(const std::string& key) {
    if (key == "Nuevo") {
        if (Confirma("Esta accion terminara con el juego actual\n¿continuar?", Icon::Question)) ResetGame();
    } else if (key == "Salir") {
        if (!Confirma("Esta accion terminara con la aplicacion\n¿continuar?", Icon::Question)) return;
        desktop_.Unload(*this);
        desktop_.End(0);
    }
}

}  // namespace zarpel
