// The files that the main window reads and writes.
#include <array>

#include "engine/zarpelfunc.h"
#include "storage/layouts.h"
#include "ui/playing.h"

namespace zarpel {

Fields Playing::Preferencias() {
    return PreferenceFields({Toolbar1.Tag, BackColor, Frame1.BackColor, fondop1img[0].Tag});
}

void Playing::SaveProperty() { SaveFile(desktop_, desktop_.Folder() + "\\lastprop.dat", Preferencias()); }

void Playing::LoadProperty(const std::string& fichero) {
    if (LoadFile(desktop_, fichero, Preferencias())) return;
    desktop_.Show({.Text = "El archivo de propiedades no existe o esta dañado",
                   .Icon = BoxIcon::Critical,
                   .Title = "Hubo un error"});
}

std::string Playing::GuardaJuego(const std::string& filename) {
    SaveFile(desktop_, filename, MatchFields(*this));
    return filename;
}

void Playing::CargarJuego(const std::string& filename) {
    Load();
    if (LeeJuego(filename)) {
        namelbl.Caption = Naipes->Nombrejugador();
        Label2.Caption = Naipes->Nombrejugador();
        MuestraVentana();
    } else {
        desktop_.Show({.Text = "El archivo no existe o esta dañado",
                       .Icon = BoxIcon::Critical,
                       .Title = "Hubo un Error"});
        abrirmnu_Click();
    }
    // A saved match leaves the move to the player. One changed by hand can leave no move to make.
    if (!TieneCartas(Jugador::Humano) || Bloqueado(Jugador::Humano)) DecideTurno();
}

// In the fresh match the computer may have played a card of its hand, whose back is gone. All backs lie there
// while the file is read, so that the player neither sees nor hears a card that the file shows there.
bool Playing::LeeJuego(const std::string& filename) {
    std::array<bool, kLugaresMano> dorsos{};
    for (std::size_t i = 0; i < dorsos.size(); ++i) dorsos.at(i) = fondop1img.at(i).Visible;
    for (Image& dorso : fondop1img) dorso.Visible = true;
    const bool leido = LoadFile(desktop_, filename, MatchFields(*this)) && RedibujaCartas();
    for (std::size_t i = 0; i < dorsos.size(); ++i) {
        fondop1img.at(i).Visible = dorsos.at(i) || cartap1img.at(i).Visible;
    }
    return leido;
}

// Loads the picture of the card that each place names, whether the place is shown or not. False at the first
// place that names no card, or whose picture cannot be loaded. A hidden place with an empty Tag has not held
// a card since the window was made: there is nothing to draw.
bool Playing::RedibujaCartas() {
    for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
        const Slot slot = SlotDePosicion(codigo);
        if (slot.Imagen.Tag.get().empty() && !slot.Ocupado()) continue;
        const int carta = slot.Carta();
        if (carta == 0 || !UpdateImagenDesktop(codigo, Naipes->Mazo_Imagen(carta), carta)) return false;
    }
    return true;
}

}  // namespace zarpel
