// A card place of the table window: a picture and its selection flag. A shown picture means that the place
// holds a card; the picture's Tag says which.
#pragma once

#include <optional>
#include <string>

#include "engine/jugador.h"
#include "platform/controls.h"

namespace zarpel {

// The computer sits above the table, the human below.
constexpr Side LadoDe(Jugador quien) { return quien == Jugador::Cpu ? Side::Top : Side::Bottom; }

// A selected card is raised from one top to the other (twips). The computer's cards do not move.
struct Altura {
    int Reposo, Levantada;
};

// The card index that a Tag holds: the whole number that it begins with, or 0 when that is no index of a
// card.
int IndiceDeTag(const std::string& tag);

struct Slot {
    Image& Imagen;
    CheckBox& Marca;
    std::optional<Jugador> De;  // whose hand it belongs to; nobody's: it lies on the table

    bool Ocupado() const { return Imagen.Visible; }
    bool Elegido() const { return Marca.Value == 1; }
    int Carta() const { return IndiceDeTag(Imagen.Tag); }
    // The number of its card; 0 when the Tag names none, as a damaged saved match can leave it.
    int Numero() const;
    Altura Alturas() const;

    // Sets the flag. The picture speaks of it, and is drawn again.
    void Marcar(bool elegido) const;
    void Subir() const { Imagen.Top = Alturas().Levantada; }
    void Bajar() const { Imagen.Top = Alturas().Reposo; }
    // Its card goes to that player's heap.
    void Retirar(Jugador aQuien) const {
        Imagen.GoesTo = LadoDe(aQuien);
        Imagen.Visible = false;
    }
};

}  // namespace zarpel
