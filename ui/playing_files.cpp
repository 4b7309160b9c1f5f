// The files that the main window reads and writes.
#include <array>
#include <charconv>
#include <cstdint>

#include "engine/zarpelfunc.h"
#include "storage/layouts.h"
#include "ui/playing.h"

namespace zarpel {
namespace {

// True for what a record's points can be, written as the game writes it.
bool EsPuntaje(const std::string& texto) {
    std::int16_t puntos = 0;
    const char* const fin = texto.data() + texto.size();
    const auto [hasta, error] = std::from_chars(texto.data(), fin, puntos);
    return error == std::errc() && hasta == fin;
}

}  // namespace

// The preference files, line by line.
Fields Playing::Preferencias() {
    return {Nickname(),                         //
            PropertyField(Toolbar1.Tag),        // command line of the program that "Run" starts
            PropertyField(BackColor),           // of the table
            PropertyField(Frame1.BackColor),    // of the rectangle
            PropertyField(fondop1img[0].Tag)};  // path of the card backs' picture
}

void Playing::SaveProperty() { SaveFile(desktop_, desktop_.PathOf("lastprop.dat"), Preferencias()); }

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
    abriendo_ = true;
    Load();
    abriendo_ = false;
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
    recienRepartido_ = true;
    if (!TieneCartas(Jugador::Humano) || Bloqueado(Jugador::Humano)) return DecideTurno();
    DiceTurno();
}

// In the fresh match the computer may have played a card of its hand, whose back is gone. All backs lie there
// while the file is read, so that the player neither sees nor hears a card that the file shows there.
bool Playing::LeeJuego(const std::string& filename) {
    std::array<bool, kLugaresMano> dorsos{};
    for (std::size_t i = 0; i < dorsos.size(); ++i) dorsos.at(i) = fondop1img.at(i).Visible;
    for (Image& dorso : fondop1img) dorso.Visible = true;
    const bool completo = LoadFile(desktop_, filename, MatchFields(*this));
    const bool dibujado = RedibujaCartas();
    for (std::size_t i = 0; i < dorsos.size(); ++i) {
        fondop1img.at(i).Visible = dorsos.at(i) || cartap1img.at(i).Visible;
    }
    if (!EsPuntaje(puntajeP1Lbl.Caption)) puntajeP1Lbl.Caption = std::to_string(Naipes->Puntajecpu());
    if (!EsPuntaje(puntajeP2Lbl.Caption)) puntajeP2Lbl.Caption = std::to_string(Naipes->Puntajehumano());
    return completo && dibujado;
}

// Loads the picture of the card that each place names, whether the place is shown or not. A place that names
// no card, or one whose picture cannot be loaded, is emptied, and the answer is false. A hidden place with an
// empty Tag has not held a card since the window was made: there is nothing to draw.
bool Playing::RedibujaCartas() {
    bool todas = true;
    for (int i = 1; i <= Naipes->CantCartas(); ++i) AseguraImagen(i);
    for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
        const Slot& slot = SlotDePosicion(codigo);
        if (slot.Imagen.Tag.get().empty() && !slot.Ocupado()) continue;
        const int carta = slot.Carta();
        if (carta != 0 && UpdateImagenDesktop(codigo, Naipes->Mazo_Imagen(carta), carta)) continue;
        slot.Imagen.Visible = false;
        todas = false;
    }
    return todas;
}

}  // namespace zarpel
