// Match, dealing and turns.
#include <algorithm>

#include "engine/errorgrave.h"
#include "engine/mesa.h"
#include "engine/zarpelfunc.h"

namespace zarpel {
namespace {

// A distribution gives its cards in the order of the position codes.
constexpr int kPrimerCodigoCpu = 5;
constexpr int kUltimoCodigoHumano = 10;

bool EnElMazo(int carta) { return Naipes->Mazo_Duenio(carta) == duenios::kNinguno; }

const std::string& DuenioEn(const Slot& slot) {
    return slot.De ? kSignos[*slot.De].Duenio : duenios::kLaMesa;
}

bool MazoVacio() {
    for (int i = 1; i <= Naipes->CantCartas(); ++i) {
        if (EnElMazo(i)) return false;
    }
    return true;
}

bool ManosVacias(const Mesa& mesa) {
    return !mesa.TieneCartas(Jugador::Cpu) && !mesa.TieneCartas(Jugador::Humano);
}

// What begins with every deal, but for the deck itself.
void LimpiaReparto(Mesa& mesa) {
    Naipes->aPrimermano(true);
    Naipes->aRepartidas(0);
    Reparto->aZarpelP1(0);
    Reparto->aZarpelP2(0);
    for (Image& imagen : mesa.cartap1img) imagen.Visible = false;
    for (Image& imagen : mesa.cartap2img) imagen.Visible = false;
}

// Who does not deal begins.
void EmpiezaReparto(Mesa& mesa) {
    const PorJugador<std::string> nombres = {"Cpu", Naipes->Nombrejugador()};
    const Jugador reparte = QuienReparte(Naipes->LaMano()), empieza = Otro(reparte);
    mesa.cartellbl.Caption = "Reparte " + nombres[reparte] + " - Juega " + nombres[empieza];
    Reparto->aTurno(kSignos[empieza].Turno);
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

Mesa::Mesa(Desktop& desktop) : desktop_(desktop) {
    for (std::size_t i = 0; i < kLugaresMesa; ++i) slots_.push_back({mesaimg[i], CheckMesa[i], {}});
    for (std::size_t i = 0; i < kLugaresMano; ++i) {
        slots_.push_back({cartap1img[i], CheckCartap1[i], Jugador::Cpu});
    }
    for (std::size_t i = 0; i < kLugaresMano; ++i) {
        slots_.push_back({cartap2img[i], CheckCartap2[i], Jugador::Humano});
    }
}

std::span<const Slot> Mesa::SlotsMano(Jugador quien) const {
    const std::size_t first = quien == Jugador::Cpu ? kLugaresMesa : kLugaresMesa + kLugaresMano;
    return std::span(slots_).subspan(first, kLugaresMano);
}

// The codes count the first four places of the table, the hands, and then the rest of the table.
const Slot& Mesa::SlotDePosicion(int codigo) const {
    const auto i = static_cast<std::size_t>(codigo);
    if (i <= 4) return slots_[i - 1];
    if (i <= 10) return slots_[i + 3];
    return slots_[i - 7];
}

void Mesa::ResetGame() {
    desktop_.Randomize();
    Naipes->aLaMano(kSignos[desktop_.Rnd() < 0.5 ? Jugador::Cpu : Jugador::Humano].LaMano);
    Naipes->aPuntajecpu(0);
    Naipes->aPuntajehumano(0);
    LimpiaReparto(*this);
    Inicia();
}

void Mesa::SigueOtroReparto() {
    LimpiaReparto(*this);
    Naipes->Setnaipe(Naipes->CantCartas());
    DecideTurno();
}

void Mesa::Inicia() {
    for (Image& imagen : mesaimg) imagen.Enabled = true;
    for (Image& imagen : cartap2img) imagen.Enabled = true;
    LoadProperty(desktop_.PathOf("lastprop.dat"));
    puntajeP1Lbl.Caption = "0";
    puntajeP2Lbl.Caption = "0";
    namelbl.Caption = Naipes->Nombrejugador();
    Label2.Caption = Naipes->Nombrejugador();
    Naipes->Setnaipe(Naipes->CantCartas());
    MuestraVentana();  // pictures take longer to read than a window to come
    CargaDorsos();
    DecideTurno();
}

void Mesa::DecideTurno() {
    EmprolijaDesktop();
    if (Naipes->Primermano()) EmpiezaReparto(*this);
    if (ManosVacias(*this)) {
        if (Naipes->Repartidas() >= Naipes->CantCartas()) {
            Naipes->aRepartidas(0);
            Naipes->aLaMano(kSignos[Otro(QuienReparte(Naipes->LaMano()))].LaMano);
            return CuentaPuntos();
        }
        SeReparte();
    }
    // In a changed file it can be true although the hands hold cards; it would give one player every turn.
    Naipes->aPrimermano(false);
    if (ManosVacias(*this)) return DecideTurno();  // the stock was empty: the deal is over
    if (DeTurno(Reparto->Turno()) == Jugador::Humano) return TurnoHumano();
    TurnoCpu();
}

void Mesa::TurnoHumano() {
    cartellbl.Caption = "Juega " + Naipes->Nombrejugador();
    Reparto->aTurno(kSignos.Cpu.Turno);
    if (!TieneCartas(Jugador::Humano)) return Pasa(Jugador::Humano);
    if (!Bloqueado(Jugador::Humano)) return DiceTurno();
    desktop_.Show({.Text = "La mesa está llena y ninguna de sus cartas suma 15: pasa el turno",
                   .Icon = BoxIcon::Information});
    Pasa(Jugador::Humano);
}

void Mesa::TurnoCpu() {
    cartellbl.Caption = "Juega Cpu";
    Reparto->aTurno(kSignos.Humano.Turno);
    if (!TieneCartas(Jugador::Cpu)) return Pasa(Jugador::Cpu);
    TurnoPc();
}

void Mesa::SeReparte() {
    haPasado_.reset();
    SetPantalla();
    int codigo = Naipes->Primermano() ? 1 : kPrimerCodigoCpu;
    while (codigo <= kUltimoCodigoHumano && Naipes->Repartidas() <= Naipes->CantCartas() && !MazoVacio()) {
        DaCarta(codigo++);
    }
    // Only a saved match changed by hand has a stock that ends early; it ends the deal, whatever the count
    // says.
    for (; codigo <= kUltimoCodigoHumano; ++codigo) SlotDePosicion(codigo).Imagen.Visible = false;
    if (MazoVacio()) Naipes->aRepartidas(Naipes->CantCartas());
    DiceReparto();
}

void Mesa::DaCarta(int codigo) {
    const int carta = SacaCarta(desktop_);
    Naipes->aMazo_Duenio(carta, DuenioEn(SlotDePosicion(codigo)));
    SlotDePosicion(codigo).Imagen.ComesFrom = LadoDe(QuienReparte(Naipes->LaMano()));
    AseguraImagen(carta);
    const std::string& imagen = Naipes->Mazo_Imagen(carta);
    if (!UpdateImagenDesktop(codigo, imagen, carta)) {
        ErrorGrave(desktop_, "No se puede cargar la imagen " + desktop_.ShownPath(imagen, FileUse::Reading));
    }
    Naipes->aRepartidas(static_cast<std::int16_t>(Naipes->Repartidas() + 1));
}

void Mesa::AseguraImagen(int carta) {
    const std::string& imagen = Naipes->Mazo_Imagen(carta);
    const std::string propia = desktop_.PathOf(Naipes->LoadImage(carta));
    if (imagen == propia || (!imagen.empty() && desktop_.LoadPicture(imagen))) return;
    Naipes->aMazo_Imagen(carta, propia);
}

const Slot* Mesa::LugarLibre() const {
    const auto libre = std::ranges::find_if_not(SlotsMesa(), &Slot::Ocupado);
    return libre == SlotsMesa().end() ? nullptr : &*libre;
}

void Mesa::Juega(Image& Source) {
    const Slot* const libre = LugarLibre();
    if (!Source.Visible || !libre) return;
    libre->Imagen.Picture = Source.Picture;
    libre->Imagen.Tag = Source.Tag;
    Source.Visible = false;
    libre->Imagen.Visible = true;
    AsignoANaipe(libre->Carta(), duenios::kLaMesa);
    DiceDeja(Otro(DeTurno(Reparto->Turno())), *libre);
    haPasado_.reset();
    DecideTurno();
}

void Mesa::AsignoANaipe(int subind, const std::string& aquien) { Naipes->aMazo_Duenio(subind, aquien); }

}  // namespace zarpel
