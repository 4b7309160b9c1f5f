// What the player does on the table with mouse and keyboard.
#include <string_view>

#include "engine/zarpelfunc.h"
#include "ui/playing.h"

namespace zarpel {
namespace {

constexpr std::string_view kTeclasMano = "123";
constexpr std::string_view kTeclasMesa = "ASDFGHJK";
constexpr int kTeclaTomar = 'L';
constexpr int kBordeBarra = 8055;  // from here down the pointer calls the status bar (twips)

}  // namespace

void Playing::mesaimg_Click(std::size_t Index) { Toca(SlotsMesa()[Index]); }

void Playing::cartap2img_Click(std::size_t Index) { Toca(SlotsMano(Jugador::Humano)[Index]); }

void Playing::Toca(const Slot& slot) {
    if (!slot.Ocupado()) return DiceVacio(slot);
    const bool antes = slot.Elegido();
    Verifica(slot);
    if (slot.Elegido() != antes) DiceEleccion(slot);
}

void Playing::LevantarBtn_Click() { Levanta(kSignos.Humano.Duenio); }

void Playing::Frame1_DragDrop(Image& Source) { Juega(Source); }

void Playing::Form_KeyDown(int keycode, int shift) {
    if (keycode == kKeyF1) return contenidosmnu_Click();
    SensordeTeclas(keycode, shift);
}

void Playing::SensordeTeclas(int KeyAscii, int mayus) {
    if (puntajeP1Lbl.Caption.get().empty()) return;
    if (KeyAscii == kTeclaTomar) return Levanta(kSignos.Humano.Duenio);

    const char tecla = static_cast<char>(KeyAscii);
    const std::size_t mesa = kTeclasMesa.find(tecla);
    if (mesa != std::string_view::npos) return Toca(SlotsMesa()[mesa]);
    const std::size_t mano = kTeclasMano.find(tecla);
    if (mano == std::string_view::npos) return;
    const Slot& slot = SlotsMano(Jugador::Humano)[mano];
    if (mayus == kShift && slot.Ocupado()) {
        if (MesaLlena()) desktop_.Announce("La mesa está llena.");
        return Juega(slot.Imagen);
    }
    Toca(slot);
}

void Playing::Form_MouseMove(int /*x*/, int y) { StatusBar1.Visible = y >= kBordeBarra; }

void Playing::Form_DblClick() { CommonDialog.ShowHelp(); }

void Playing::Form_QueryClose() { salir_Click(); }

}  // namespace zarpel
