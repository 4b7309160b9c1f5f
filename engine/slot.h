// A card place of the table window: a picture and its selection flag. A shown picture means that the place
// holds a card; the picture's Tag says which.
#pragma once

#include <string>

#include "platform/controls.h"

namespace zarpel {

// Kind letters of the three rows of slots.
namespace clase {
constexpr char kMesa = 'm';
constexpr char kHumano = 'p';
constexpr char kCpu = 'c';
}  // namespace clase

// A selected card is raised from one top to the other (twips). The computer's cards do not move.
struct Altura {
    int Reposo, Levantada;
};
Altura AlturaDe(char letra);

// The card index that a Tag holds: the whole number that it begins with, or 0 when that is no index of a
// card.
int IndiceDeTag(const std::string& tag);

struct Slot {
    Image& Imagen;
    CheckBox& Marca;
    char Clase;

    bool Ocupado() const { return Imagen.Visible; }
    bool Elegido() const { return Marca.Value == 1; }
    int Carta() const { return IndiceDeTag(Imagen.Tag); }
    // The number of its card; 0 when the Tag names none, as a damaged saved match can leave it.
    int Numero() const;

    void Levantar() const;
    void Bajar() const;
};

}  // namespace zarpel
