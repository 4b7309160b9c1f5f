// The deck of 40 Spanish cards and the match record: who deals, how many cards have left the stock, both
// players' points and the player's nickname. A card is named everywhere by its index, 1 to 40.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/desktop.h"

namespace zarpel {

// Owner tags: where a card is. A player's (jugador.h) does not tell a card in the hand from a captured one.
namespace duenios {
inline const std::string kNinguno = "ninguno";  // in the stock
inline const std::string kLaMesa = "lamesa";    // face up on the table
}  // namespace duenios

struct Naipe {
    std::int16_t Numero = 0;  // 1 to 10, also the card's value
    std::string Palo;         // "espada", "basto", "oro" or "copa"
    std::string Duenio;       // owner tag
    std::string Imagen;       // full path of the picture file
};

class classnaipe {
  public:
    static constexpr int kCartas = 40;

    // The cards stay empty until the first Setnaipe. `desktop` must outlive the record.
    explicit classnaipe(Desktop& desktop) : desktop_(&desktop) {}

    // Getters and setters of a card; `i` must be 1 to 40 (std::out_of_range otherwise).
    std::int16_t Mazo_Numero(int i) const { return Carta(i).Numero; }
    const std::string& Mazo_Palo(int i) const { return Carta(i).Palo; }
    const std::string& Mazo_Duenio(int i) const { return Carta(i).Duenio; }
    const std::string& Mazo_Imagen(int i) const { return Carta(i).Imagen; }
    void aMazo_Numero(int i, std::int16_t modifica) { Carta(i).Numero = modifica; }
    void aMazo_Palo(int i, const std::string& modifica) { Carta(i).Palo = modifica; }
    void aMazo_Duenio(int i, const std::string& modifica) { Carta(i).Duenio = modifica; }
    void aMazo_Imagen(int i, const std::string& modifica) { Carta(i).Imagen = modifica; }

    // 0: the computer deals this deal and the human plays first; 1: the other way round.
    std::int16_t LaMano() const { return laMano_; }
    void aLaMano(std::int16_t modifica) { laMano_ = modifica; }
    // Cards taken from the stock in this deal, 0 to 40.
    std::int16_t Repartidas() const { return repartidas_; }
    void aRepartidas(std::int16_t modifica) { repartidas_ = modifica; }
    // Points in the match.
    std::int16_t Puntajecpu() const { return puntajecpu_; }
    void aPuntajecpu(std::int16_t modifica) { puntajecpu_ = modifica; }
    std::int16_t Puntajehumano() const { return puntajehumano_; }
    void aPuntajehumano(std::int16_t modifica) { puntajehumano_ = modifica; }
    // True until the first distribution of the deal, which also lays four cards on the table.
    bool Primermano() const { return primermano_; }
    void aPrimermano(bool modifica) { primermano_ = modifica; }
    const std::string& Nombrejugador() const { return nombrejugador_; }
    void aNombrejugador(const std::string& modifica) { nombrejugador_ = modifica; }
    std::int16_t CantCartas() const { return kCartas; }

    // Rebuilds the deck, `maxvect` (40) cards in four suits, all in the stock; the match record stays as it
    // is. Ends the program when the card list cannot be read.
    void Setnaipe(std::int16_t maxvect);

    // The picture file's name in record `pos` (1 to 40) of the card list `ArchivoNaipes`: 16 bytes a record,
    // a little-endian 16-bit length of at most 14, then the name in Windows-1252. A file that is missing,
    // ends before the record's end, or has a longer length is reported in two boxes, and the program ends.
    std::string LoadImage(int pos) const;

  private:
    const Naipe& Carta(int i) const { return mazo_.at(static_cast<std::size_t>(i - 1)); }
    Naipe& Carta(int i) { return mazo_.at(static_cast<std::size_t>(i - 1)); }

    Desktop* desktop_;
    std::array<Naipe, kCartas> mazo_;
    std::int16_t laMano_ = 0;
    std::int16_t repartidas_ = 0;
    std::int16_t puntajecpu_ = 0;
    std::int16_t puntajehumano_ = 0;
    bool primermano_ = true;
    std::string nombrejugador_;
};

}  // namespace zarpel
