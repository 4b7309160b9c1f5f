// The main window: the green table on which the player meets the computer. What it holds is stated in
// playing_design.cpp; what the player does to it arrives in playing_input.cpp and playing_commands.cpp.
#pragma once

#include <string>

#include "engine/mesa.h"
#include "platform/form.h"
#include "storage/fields.h"

namespace zarpel {

class Playing : public Form, public Mesa {
  public:
    // `desktop` must outlive the window.
    explicit Playing(Desktop& desktop);

    // Brings every control to its design state and runs Form_Load. Called at the start of the program, and
    // again to open a saved match: the window on the screen stays, what it holds begins anew.
    void Load();

    // --- Controls that the engine does not touch ---
    Frame Frame1;  // the table area; its background is the rectangle colour
    Label Label1, Label3;
    Line Line1, Line2;
    ToolBar Toolbar1;  // its Tag holds the command line that "Run" starts
    StatusBar StatusBar1;
    ChooserState CommonDialog;
    Menu Archivomnu{"Archivo"}, Nuevomnu{"Nuevo"}, abrirmnu{"Abrir"}, guardarmnu{"Guardar"},
        nombremnu{"Nombre jugador"}, preferenciasmnu{"Preferencias"}, salir{"Salir"};
    Menu ayudafrm{"Ayuda"}, contenidosmnu{"Contenidos"}, acercamnu{"Acerca de..."};

    // --- Display (playing_display.cpp) ---
    void MuestraVentana() override { desktop_.Show(*this); }
    [[nodiscard]] bool UpdateImagenDesktop(int i, const std::string& Imagen, int subind) override;
    void SetPantalla() override;
    void EmprolijaDesktop() override;
    void CargaDorsos() override;
    void MuestraResultados(const Matriz& matriz) override;

    // --- What is said (playing_relato.cpp) ---
    void DiceReparto() override;
    void DiceToma(Jugador quien, const std::vector<int>& deLaMesa, int con) override;
    void DiceZarpel(Jugador quien) override;
    void DiceDeja(Jugador quien, const Slot& lugar) override;
    void DicePasa(Jugador quien) override;
    void DiceResto(Jugador quien, const std::vector<int>& cartas) override;
    void DiceCuenta(const Matriz& matriz, const PorJugador<std::int16_t>& puntajes) override;
    void DiceTurno() override;
    // What a picture of a place is called: the card and the place, "7 de oro, mesa 4".
    std::string NombreDe(const Slot& slot) const;

    // --- Input (playing_input.cpp) ---
    void mesaimg_Click(std::size_t Index);
    void cartap2img_Click(std::size_t Index);
    void LevantarBtn_Click();
    void Frame1_DragDrop(Image& Source);
    void Form_KeyDown(int keycode, int shift) override;
    void Form_MouseMove(int x, int y) override;
    void Form_DblClick() override;
    void Form_QueryClose() override;
    // The keyboard map; `mayus` is the sum of the shift masks.
    void SensordeTeclas(int KeyAscii, int mayus);

    // --- Commands (playing_commands.cpp) ---
    void Nuevomnu_Click();
    void abrirmnu_Click();
    void guardarmnu_Click();
    void nombremnu_Click();
    void preferenciasmnu_Click();
    void salir_Click();
    void contenidosmnu_Click();
    void acercamnu_Click();
    void Toolbar1_ButtonClick(const std::string& key);

    // --- Files (playing_files.cpp) ---

    // Writes the five preferences to "lastprop.dat" in the application folder; says so when that fails.
    void SaveProperty();
    // Each preference takes effect as soon as it is read; the card back at the next match.
    void LoadProperty(const std::string& fichero) override;
    // Writes the match to the file and gives `filename` back; says so when that fails.
    std::string GuardaJuego(const std::string& filename);
    // Ends the match on the table and continues the one in the file. A missing or damaged file is reported,
    // what could be read of it lies over a fresh match, and the command "Abrir" runs again.
    void CargarJuego(const std::string& filename);

  private:
    void UbicaArchivoNaipes();
    void Form_Load();
    void Design();
    void DesignSlots();
    void DesignCommands();
    void ConnectEvents();
    Fields Preferencias();
    bool LeeJuego(const std::string& filename);
    bool RedibujaCartas();
    // Selects or deselects the card in a place of the player's reach. An event that waited while the computer
    // moved can find the place empty, and then does nothing.
    void Toca(const Slot& slot);
    bool Confirma(const std::string& texto, BoxIcon icono);
    void Dice(const std::string& frase);
    void AnunciaRelato();
    std::string LugarDe(const Slot& slot) const;
    void DiceEleccion(const Slot& slot);
    void DiceVacio(const Slot& slot) { desktop_.Announce(LugarDe(slot) + ", vacía."); }

    std::string relato_;            // what has happened since the human last moved
    bool abriendo_ = false;         // a saved match, over a fresh one that is no news
    bool recienRepartido_ = false;  // since then cards were dealt, and the player knows none of them
};

}  // namespace zarpel
