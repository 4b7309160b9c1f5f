// What the player sees of the game's state.
#include "engine/zarpelfunc.h"
#include "ui/playing.h"
#include "ui/resultadosfrm.h"

namespace zarpel {
bool Playing::UpdateImagenDesktop(int i, const std::string& Imagen, int subind) {
    if (Imagen.empty() || i < 1 || i > kPosiciones) return true;
    if (!desktop_.LoadPicture(Imagen)) return false;
    Image& lugar = SlotDePosicion(i).Imagen;
    lugar.Tag = std::to_string(subind);
    lugar.Picture = Imagen;
    return true;
}

void Playing::SetPantalla() {
    // The backs first: a screen reader must not name the cards under them.
    for (Image& imagen : fondop1img) imagen.Visible = true;
    for (Image& imagen : cartap1img) imagen.Visible = true;
    for (Image& imagen : cartap2img) imagen.Visible = true;
    if (!Naipes->Primermano()) return;
    for (std::size_t i = 0; i < kLugaresMesa; ++i) mesaimg[i].Visible = i < kCartasEnMesa;
}

void Playing::EmprolijaDesktop() {
    for (const Slot& slot : Slots()) {
        slot.Marcar(false);
        slot.Bajar();
    }
    for (std::size_t i = 0; i < fondop1img.size(); ++i) {
        if (!cartap1img.at(i).Visible) fondop1img.at(i).Visible = false;
    }
    SumandoLbl.Caption = "";
    SumandoLbl.Tag = "0";
}

// Each file is tried once: after a failure the rest is loaded from the game's own picture, and when that
// fails too the backs keep the picture built into the program.
void Playing::CargaDorsos() {
    const std::string propio = desktop_.PathOf("dibujo.jpg");
    std::string dorso = fondop1img[0].Tag;
    if (dorso.empty()) dorso = propio;
    if (!desktop_.LoadPicture(dorso)) {
        fondop1img[0].Tag = propio;
        if (dorso == propio || !desktop_.LoadPicture(propio)) return;
        dorso = propio;
    }
    for (Image& imagen : fondop1img) imagen.Picture = dorso;
}

void Playing::MuestraResultados(const Matriz& matriz) {
    Resultadosfrm resultados(desktop_);
    resultados.Resultados(matriz);
    desktop_.ShowModal(resultados);
}

}  // namespace zarpel
