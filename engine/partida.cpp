// Match, dealing and turns.
#include "engine/errorgrave.h"
#include "engine/mesa.h"
#include "engine/zarpelfunc.h"

namespace zarpel {
namespace {

// A distribution gives its cards in the order of the position codes.
constexpr int kPrimerCodigoCpu = kCartasEnMesa + 1;
constexpr int kUltimoCodigoHumano = 10;

bool EnElMazo(int carta) { return Naipes->Mazo_Duenio(carta) == duenios::kNinguno; }

const std::string& DuenioEn(const Slot& slot) {
    if (slot.Clase == clase::kMesa) return duenios::kLaMesa;
    return slot.Clase == clase::kCpu ? duenios::kCpu : duenios::kHumano;
}

bool MazoVacio() {
    for (int i = 1; i <= Naipes->CantCartas(); ++i) {
        if (EnElMazo(i)) return false;
    }
    return true;
}

// A card of the stock, which must not be empty, each with equal chance.
int SacaCarta(Desktop& desktop) {
    for (;;) {
        desktop.Randomize();
        const int carta = static_cast<int>(Naipes->CantCartas() * desktop.Rnd()) + 1;
        if (EnElMazo(carta)) return carta;
    }
}

}  // namespace

Slot Mesa::SlotDePosicion(int codigo) {
    if (codigo <= 4) return SlotMesa(codigo - 1);
    if (codigo <= 7) return SlotCpu(codigo - 5);
    if (codigo <= 10) return SlotHumano(codigo - 8);
    return SlotMesa(codigo - 7);
}

void Mesa::ResetGame() {
    desktop_.Randomize();
    Naipes->aLaMano(desktop_.Rnd() < 0.5 ? 0 : 1);
    Naipes->aPuntajecpu(0);
    Naipes->aPuntajehumano(0);
    RepartoNuevo();
    Inicia();
}

// What begins with every deal, but for the deck itself.
void Mesa::RepartoNuevo() {
    Naipes->aPrimermano(true);
    Naipes->aRepartidas(0);
    Reparto->aZarpelP1(0);
    Reparto->aZarpelP2(0);
    for (int i = 0; i < kLugaresMano; ++i) {
        SlotCpu(i).Imagen.Visible = false;
        SlotHumano(i).Imagen.Visible = false;
    }
}

void Mesa::SigueOtroReparto() {
    RepartoNuevo();
    Naipes->Setnaipe(Naipes->CantCartas());
    DecideTurno();
}

void Mesa::Inicia() {
    for (Image& imagen : mesaimg) imagen.Enabled = true;
    for (Image& imagen : cartap2img) imagen.Enabled = true;
    LoadProperty(desktop_.Folder() + "\\lastprop.dat");
    puntajeP1Lbl.Caption = "0";
    puntajeP2Lbl.Caption = "0";
    namelbl.Caption = Naipes->Nombrejugador();
    Label2.Caption = Naipes->Nombrejugador();
    Naipes->Setnaipe(Naipes->CantCartas());
    CargaDorsos();
    DecideTurno();
}

void Mesa::DecideTurno() {
    EmprolijaDesktop();
    MuestraVentana();
    if (Naipes->Primermano()) AnunciaReparto();
    if (ManosVacias()) {
        if (Naipes->Repartidas() >= Naipes->CantCartas()) {
            Naipes->aRepartidas(0);
            Naipes->aLaMano(Naipes->LaMano() == 0 ? 1 : 0);
            return CuentaPuntos();
        }
        SeReparte();
        Naipes->aPrimermano(false);
        if (ManosVacias()) return DecideTurno();  // the stock was empty: the deal is over
    }
    if (Reparto->Turno() == 0) return JuegaHumano();
    JuegaCpu();
}

void Mesa::AnunciaReparto() {
    const bool reparteCpu = Naipes->LaMano() == 0;
    cartellbl.Caption = reparteCpu ? "Reparte Cpu - Juega " + Naipes->Nombrejugador()
                                   : "Reparte " + Naipes->Nombrejugador() + " - Juega Cpu";
    Reparto->aTurno(reparteCpu ? 0 : 1);
}

void Mesa::JuegaHumano() {
    cartellbl.Caption = "Juega " + Naipes->Nombrejugador();
    Reparto->aTurno(1);
    if (!TieneCartas(clase::kHumano)) return Pasa();
    if (!Bloqueado(clase::kHumano)) return;
    desktop_.Show({.Text = "La mesa está llena y ninguna de sus cartas suma 15: pasa el turno",
                   .Icon = BoxIcon::Information});
    Pasa();
}

void Mesa::JuegaCpu() {
    cartellbl.Caption = "Juega Cpu";
    Reparto->aTurno(0);
    if (!TieneCartas(clase::kCpu)) return Pasa();
    TurnoPc();
}

bool Mesa::ManosVacias() const { return !TieneCartas(clase::kCpu) && !TieneCartas(clase::kHumano); }

void Mesa::SeReparte() {
    pasosSeguidos_ = 0;
    SetPantalla();
    int codigo = Naipes->Primermano() ? 1 : kPrimerCodigoCpu;
    while (codigo <= kUltimoCodigoHumano && Naipes->Repartidas() <= Naipes->CantCartas() && !MazoVacio()) {
        DaCarta(codigo++);
    }
    // Only a saved match changed by hand has a stock that ends early; it ends the deal, whatever the count
    // says.
    for (; codigo <= kUltimoCodigoHumano; ++codigo) SlotDePosicion(codigo).Imagen.Visible = false;
    if (MazoVacio()) Naipes->aRepartidas(Naipes->CantCartas());
}

void Mesa::DaCarta(int codigo) {
    const int carta = SacaCarta(desktop_);
    Naipes->aMazo_Duenio(carta, DuenioEn(SlotDePosicion(codigo)));
    if (!MuestraCarta(codigo, carta)) {
        // A saved match names the pictures where they were on the day it was saved.
        Naipes->aMazo_Imagen(carta, desktop_.Folder() + "\\" + Naipes->LoadImage(carta));
        if (!MuestraCarta(codigo, carta)) {
            ErrorGrave(desktop_, "No se puede cargar la imagen " + Naipes->Mazo_Imagen(carta));
        }
    }
    Naipes->aRepartidas(static_cast<std::int16_t>(Naipes->Repartidas() + 1));
}

bool Mesa::MuestraCarta(int codigo, int carta) {
    const std::string& imagen = Naipes->Mazo_Imagen(carta);
    return !imagen.empty() && UpdateImagenDesktop(codigo, imagen, carta);
}

void Mesa::Juega(Image& Source) {
    if (!Source.Visible) return;
    for (int i = 0; i < kLugaresMesa; ++i) {
        Image& lugar = SlotMesa(i).Imagen;
        if (lugar.Visible) continue;
        lugar.Picture = Source.Picture;
        lugar.Tag = Source.Tag;
        Source.Visible = false;
        lugar.Visible = true;
        AsignoANaipe(IndiceDeTag(lugar.Tag), duenios::kLaMesa);
        pasosSeguidos_ = 0;
        return DecideTurno();
    }
}

void Mesa::AsignoANaipe(int subind, const std::string& aquien) {
    if (subind == 0) return;
    Naipes->aMazo_Duenio(subind, aquien);
}

}  // namespace zarpel
