// The dialog "Opciones": the two colours of the table, the picture on the card backs, and the program that
// the toolbar's "Run" starts. It works on values of its own, kept in its controls, and gives them to the main
// window when it is accepted; only "Default" changes the main window at once.
#pragma once

#include <array>
#include <string>

#include "platform/desktop.h"

namespace zarpel {

class Playing;

class preferenciasfrm : public Form {
  public:
    // `playing` is the main window whose preferences are changed; both must outlive the dialog.
    preferenciasfrm(Desktop& desktop, Playing& playing);

    TabStrip tbsOptions;
    std::array<Frame, 1> picOptions;  // the pages, one a tab
    Frame Frame1, Frame2, Frame3;     // "Color", "Carta", "Aplicacion de fondo"
    Label Label2, Label7, Label9;     // headings
    Label Label1, Label6;             // swatches; their background is the table's and the rectangle's colour
    Label Label8;                     // path of the card-back picture
    Label Label5;                     // command line of the program
    Button Command1, cmdOK, cmdCancel;
    ChooserState CdPref;  // chooses files; colours come from the main window's own chooser

    // Takes the values from the main window.
    void ValoresActuales();

    void Label1_Click() { EligeColor(Label1); }
    void Label6_Click() { EligeColor(Label6); }
    void Label5_Click();
    void Frame3_Click() { Label5_Click(); }
    void Label8_Click();
    void Command1_Click();
    void cmdOK_Click();
    void cmdCancel_Click() { desktop_.Unload(*this); }
    void tbsOptions_Click();
    void Form_KeyDown(int keycode, int shift) override;
    void Form_QueryClose() override { cmdCancel_Click(); }

  private:
    void Form_Load();
    void Design();
    void ConnectEvents();
    // Calls `action` with each preference: its value in the dialog, and its place in the main window.
    template <class Action>
    void CadaPreferencia(Action action);
    void EligeColor(Label& muestra);
    bool EligeArchivo(const std::string& filtro);

    Desktop& desktop_;
    Playing& playing_;
};

}  // namespace zarpel
