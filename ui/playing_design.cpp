// What the main window holds: every control with its place (twips: left, top, width, height), texts, font and
// colours. This is the file to edit when the table is to look different.
#include <array>

#include "engine/zarpelfunc.h"
#include "ui/design.h"
#include "ui/playing.h"
#include "ui/version.h"

namespace zarpel {
namespace {

constexpr ColorCode kYellow = Rgb(255, 255, 0);
constexpr ColorCode kLightYellow = Rgb(255, 255, 128);
constexpr int kCardCorner = 90;

// Where the pictures and flags of the slots stand; the tops of the pictures are the resting tops of their
// row.
struct RowDesign {
    int Left, Step, Width, Height;
};
constexpr RowDesign kTableRow = {120, 1320, 1200, 1875};
constexpr RowDesign kCpuRow = {3600, 1560, 1455, 2010};
constexpr RowDesign kHumanRow = {3480, 1560, 1455, 2010};
constexpr int kBackWidth = 1450;

constexpr std::array kTableFlags = {600, 1800, 3120, 4680, 5760, 7200, 8760, 9840};
constexpr std::array kCpuFlags = {4440, 5520, 6960};
constexpr std::array kHumanFlags = {4080, 5640, 7200};
constexpr int kTableFlagTop = 0, kCpuFlagTop = 2520, kHumanFlagTop = 6000;
constexpr int kFlagWidth = 375, kFlagHeight = 255;

const std::array kTableTips = {"carta a tomar", "carta a tomar", "carta en mesa", "carta a tomar",
                               "carta a tomar", "carta a tomar", "carta a tomar", "carta a tomar"};
const std::array kCpuTips = {"Carta Cpu", "Carta Cpu", "Carta Cpu"};
const std::array kHumanTips = {"Vuestra carta", "Carta 1", "Carta 1"};

Place InRow(const RowDesign& row, const Slot& slot, std::size_t i) {
    return {row.Left + row.Step * static_cast<int>(i), slot.Alturas().Reposo, row.Width, row.Height};
}

void DrawCard(Container& container, Image& image, const Place& at, const char* tip) {
    Draw(container, image, at);
    image.ToolTip = tip;
    image.Picture = "";
    image.Corner = kCardCorner;
}

void DrawFlag(Container& container, const Slot& slot, int left, int top) {
    Draw(container, slot.Marca, {left, top, kFlagWidth, kFlagHeight});
    slot.Marcar(false);
}

}  // namespace

void Playing::Design() {
    Children.clear();
    Caption = "Playing";
    BackColor = kTableGreen;
    Width = 12000;
    Height = 8400;
    BoxArea = {0, 0, Width, 3000};  // over the computer's hand, where no box hides what the player has chosen
    CommonDialog.DefaultExt = "zrp";
    CommonDialog.Filter = "(*.zrp)|*.zrp";
    CommonDialog.Color = kBlack;  // the file name last chosen outlives the reload that opens it

    const FontSpec trebuchet = {"Trebuchet MS", 9.75, true};
    const FontSpec points = {"MS Sans Serif", 18};
    Draw(*this, {{.Control = Frame1, .At = {480, 3000, 10815, 2655}, .Border = false}});
    Frame1.BackColor = SystemColor(Palette::ButtonFace);
    Draw(*this, {{Line1, 1200, 360, 1200, 2280}, {Line2, 120, 720, 2280, 720}});
    Draw(*this, {{.Control = Label1,
                  .At = {120, 360, 975, 255},
                  .Caption = "Score CPU",
                  .Font = trebuchet,
                  .ForeColor = kWhite},
                 {.Control = Label2,
                  .At = {1275, 360, 1065, 300},
                  .Caption = "Tus Puntos",
                  .Font = trebuchet,
                  .ForeColor = kWhite,
                  .Align = Alignment::Center,
                  .AutoSize = true,
                  .MaxWidth = 1215},
                 {.Control = puntajeP1Lbl, .At = {120, 840, 975, 375}, .Font = points, .ForeColor = kYellow},
                 {.Control = puntajeP2Lbl, .At = {1440, 840, 975, 375}, .Font = points, .ForeColor = kYellow},
                 {.Control = SumandoLbl,
                  .At = {1560, 2160, 270, 360},
                  .Font = {"Terminal", 18, true},
                  .ForeColor = kLightYellow,
                  .BackColor = kTableGreen,
                  .AutoSize = true},
                 {.Control = cartellbl,
                  .At = {8640, 1560, 3015, 495},
                  .Font = {"MS Sans Serif", 13.5},
                  .ForeColor = SystemColor(Palette::HighlightText),
                  .BackColor = kTableGreen,
                  .Align = Alignment::Center,
                  .WordWrap = true},
                 {.Control = namelbl,
                  .At = {8400, 6120, 0, 360},
                  .Font = {"MS Sans Serif", 13.5, true},
                  .ForeColor = kWhite,
                  .AutoSize = true,
                  .MaxWidth = 3400},
                 {.Control = Label3,
                  .At = {11160, 8040, 640, 195},
                  .Caption = kNameAndVersion,
                  .Align = Alignment::Right,
                  .AutoSize = true}});
    DesignSlots();
    Draw(*this, {{LevantarBtn, {2160, 6480, 1095, 615}, "&Tomar Cartas"}});
    DesignCommands();
}

void Playing::DesignSlots() {
    for (std::size_t i = 0; i < kLugaresMesa; ++i) {
        const Slot& slot = SlotsMesa()[i];
        DrawCard(Frame1, slot.Imagen, InRow(kTableRow, slot, i), kTableTips.at(i));
    }
    for (std::size_t i = 0; i < kLugaresMano; ++i) {
        const Slot& cpu = SlotsMano(Jugador::Cpu)[i];
        DrawCard(*this, cpu.Imagen, InRow(kCpuRow, cpu, i), kCpuTips.at(i));

        Image& dorso = fondop1img[i];
        Place over = InRow(kCpuRow, cpu, i);
        over.Width = kBackWidth;
        DrawCard(*this, dorso, over, "");
        dorso.Picture = ":/dorso.jpg";
        dorso.Spoken = [i] { return Speech{"carta tapada, cpu " + std::to_string(i + 1), {}}; };
        cpu.Imagen.Cover = &dorso;

        const Slot& humano = SlotsMano(Jugador::Humano)[i];
        DrawCard(*this, humano.Imagen, InRow(kHumanRow, humano, i), kHumanTips.at(i));
        humano.Imagen.Draggable = true;
    }
    for (std::size_t i = 0; i < kLugaresMesa; ++i)
        DrawFlag(Frame1, SlotsMesa()[i], kTableFlags.at(i), kTableFlagTop);
    for (std::size_t i = 0; i < kLugaresMano; ++i) {
        DrawFlag(*this, SlotsMano(Jugador::Cpu)[i], kCpuFlags.at(i), kCpuFlagTop);
        DrawFlag(*this, SlotsMano(Jugador::Humano)[i], kHumanFlags.at(i), kHumanFlagTop);
    }
    for (const Slot& slot : Slots()) {
        slot.Imagen.Spoken = [this, &slot] {
            return Speech{NombreDe(slot), slot.Imagen.Click ? std::optional(slot.Elegido()) : std::nullopt};
        };
    }
}

void Playing::DesignCommands() {
    Draw(*this, Toolbar1, {9120, 120, 2595, 1110});
    Toolbar1.Tag = "Click Here";
    Toolbar1.ButtonWidth = 825;
    Toolbar1.ButtonHeight = 1020;
    Toolbar1.Buttons = {{"Nuevo", "Nuevo", "Nuevo Juego", ":/nuevo.png"},
                        {"Run", "Run", "", ":/run.png"},
                        {"Salir", "Salir", "Salir del Juego", ":/salir.png"}};

    using Content = StatusBar::Content;
    Draw(*this, StatusBar1, {0, 0, 0, 255});
    StatusBar1.Visible = false;
    StatusBar1.Panels = {{Content::Text, "ZARPEL GAME", 2440},
                         {Content::Text, "", 4440},
                         {Content::Text, "", 1440},
                         {Content::Date, "", 2440},
                         {Content::Time, "", 1440}};

    Menus = {&Archivomnu, &ayudafrm};
    Archivomnu.Entries = {&Nuevomnu, &abrirmnu, &guardarmnu, &nombremnu, &preferenciasmnu, &salir};
    ayudafrm.Entries = {&contenidosmnu, &acercamnu};
}

}  // namespace zarpel
