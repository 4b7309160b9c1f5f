// The deal record: zarpels made in this deal, who captured last, and whose turn comes next.
#pragma once

#include <cstdint>
#include <string>

namespace zarpel {

class classzarpel {
  public:
    // Owner tag of the last player who captured; empty when nobody has yet.
    const std::string& UltimoqLevanta() const { return ultimoqLevanta_; }
    void aUltimoqLevanta(const std::string& modifica) { ultimoqLevanta_ = modifica; }
    // Zarpels of the computer (1) and of the human (2) in this deal.
    std::int16_t ZarpelP1() const { return zarpelP1_; }
    void aZarpelP1(std::int16_t modifica) { zarpelP1_ = modifica; }
    std::int16_t ZarpelP2() const { return zarpelP2_; }
    void aZarpelP2(std::int16_t modifica) { zarpelP2_ = modifica; }
    // Who plays when the turn is next decided: 0 the human, 1 the computer. It is one step ahead: while the
    // human is to move it is 1, while the computer's move runs it is 0.
    std::int16_t Turno() const { return turno_; }
    void aTurno(std::int16_t modifica) { turno_ = modifica; }

  private:
    std::string ultimoqLevanta_;
    std::int16_t zarpelP1_ = 0;
    std::int16_t zarpelP2_ = 0;
    std::int16_t turno_ = 0;
};

}  // namespace zarpel
