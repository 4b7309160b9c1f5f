// The results window: a deal's figures side by side, the computer's against the player's.
#pragma once

#include "engine/mesa.h"
#include "platform/form.h"

namespace zarpel {

class Resultadosfrm : public Form {
  public:
    explicit Resultadosfrm(Desktop& desktop);

    // Fills the window from a deal's count; does not show it.
    void Resultados(const Matriz& matriz);

    Frame Picture1;
    Label Label1, Label2;  // headings of the computer's and of the player's column
    Label Label13, Label14, Label15, Label16, Label17;
    Label cartasp1lbl, orosp1lbl, sietesp1lbl, velop1lbl, zarpelp1lbl;
    Label cartasp2lbl, orosp2lbl, sietesp2lbl, velop2lbl, zarpelp2lbl;
    Line Line1, Line2, Line3;
    Button Command1;

    void Command1_Click() { desktop_.Unload(*this); }
    void Form_QueryClose() override { Command1_Click(); }

  private:
    Desktop& desktop_;
};

}  // namespace zarpel
