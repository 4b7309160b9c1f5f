#include "ui/preferenciasfrm.h"

#include "ui/design.h"
#include "ui/playing.h"

namespace zarpel {
namespace {

constexpr int kPageLeft = 210;  // of the page that is shown
constexpr int kOutOfSight = -20000;

// A frame of its own around it: the colour may be that of the dialog itself.
LabelDesign Swatch(Label& label, int top) {
    return {.Control = label, .At = {1200, top, 1215, 255}, .BackColor = kBlack, .Border = true};
}

}  // namespace

preferenciasfrm::preferenciasfrm(Desktop& desktop, Playing& playing) : desktop_(desktop), playing_(playing) {
    Design();
    ConnectEvents();
    Form_Load();
}

void preferenciasfrm::Design() {
    Caption = "Opciones";
    Border = FormBorder::FixedDialog;
    CenterOnScreen = true;
    Width = 6150;
    Height = 4920;
    Frame& pagina = picOptions[0];
    Draw(*this, tbsOptions, {105, 120, 5895, 4245});
    tbsOptions.Tabs = {{"Escritorio", "Opciones de escritorio"}};
    Draw(*this, {{.Control = pagina, .At = {240, 480, 5685, 3780}, .Border = false}});
    Draw(pagina, {{Frame1, {120, 120, 2655, 2145}, "Color"},
                  {Frame2, {2880, 120, 2655, 2145}, "Carta"},
                  {Frame3, {60, 2400, 5415, 615}, "Aplicacion de fondo"}});
    Draw(Frame1, {{Label2, {240, 480, 450, 195}, "Fondo"},
                  Swatch(Label1, 480),
                  {Label7, {240, 1320, 885, 195}, "Fondo Rect."},
                  Swatch(Label6, 1320)});
    Draw(
        Frame2,
        {{Label9, {960, 600, 600, 195}, "Reverso"},
         {.Control = Label8, .At = {120, 960, 2415, 255}, .BackColor = SystemColor(Palette::HighlightText)}});
    Draw(Frame3, {{.Control = Label5, .At = {120, 240, 690, 195}, .AutoSize = true, .MaxWidth = 5175}});
    Label1.SpokenAs = "Fondo";
    Label6.SpokenAs = "Fondo Rect.";
    Label8.SpokenAs = "Reverso";
    Label5.SpokenAs = "Aplicacion de fondo";
    Draw(pagina, {{Command1, {60, 3120, 1215, 495}, "Default"}});
    Draw(*this,
         {{cmdOK, {3690, 4455, 1095, 375}, "Aceptar"}, {cmdCancel, {4920, 4455, 1095, 375}, "Cancelar"}});
    cmdCancel.Cancel = true;
    Label5.IsPath = true;
    Label8.IsPath = true;
    Label1.ToolTip = "Elegir el color de la mesa";
    Label6.ToolTip = "Elegir el color del rectángulo de las cartas";
    Label8.ToolTip = "Elegir la imagen del reverso de las cartas";
    Label5.ToolTip = "Elegir el programa que abre el botón Run";
    Frame3.ToolTip = Label5.ToolTip;
}

void preferenciasfrm::ConnectEvents() {
    Label1.Click = [this] { Label1_Click(); };
    Label6.Click = [this] { Label6_Click(); };
    Label5.Click = [this] { Label5_Click(); };
    Frame3.Click = [this] { Frame3_Click(); };
    Label8.Click = [this] { Label8_Click(); };
    Command1.Click = [this] { Command1_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    tbsOptions.Click = [this] { tbsOptions_Click(); };
}

void preferenciasfrm::Form_Load() {
    const Place screen = desktop_.Screen();
    Left = (screen.Width - Width) / 2;
    Top = (screen.Height - Height) / 2;
    ValoresActuales();
    tbsOptions_Click();  // the page stands where the click on a tab puts it
}

template <class Action>
void preferenciasfrm::CadaPreferencia(Action action) {
    action(Label1.BackColor, playing_.BackColor);
    action(Label6.BackColor, playing_.Frame1.BackColor);
    action(Label5.Caption, playing_.Toolbar1.Tag);
    action(Label8.Caption, playing_.fondop1img[0].Tag);
}

void preferenciasfrm::ValoresActuales() {
    CadaPreferencia([](auto& aqui, const auto& enLaMesa) { aqui = enLaMesa; });
}

// A cancelled chooser still holds a colour, and the swatch takes it.
void preferenciasfrm::EligeColor(Label& muestra) {
    desktop_.ShowColor(playing_.CommonDialog);
    muestra.BackColor = playing_.CommonDialog.Color;
}

bool preferenciasfrm::EligeArchivo(const std::string& filtro) {
    CdPref.Filter = filtro;
    return desktop_.ShowOpen(CdPref);
}

// A cancelled chooser still holds a name, and the program becomes that.
void preferenciasfrm::Label5_Click() {
    EligeArchivo("(*.exe)|*.exe|(*.bat)|*.bat|(*.com)|*.com|Todos(*.*)|*.*");
    Label5.Caption = CdPref.FileName;
}

void preferenciasfrm::Label8_Click() {
    if (!EligeArchivo("Imagenes(*.jpg ;*.bmp)|*.jpg;*.bmp")) return;
    Label8.Caption = CdPref.FileName;
    desktop_.Show({.Text = "Este cambio tendra efecto cuando reinicie el juego"});
}

void preferenciasfrm::Command1_Click() {
    playing_.LoadProperty(desktop_.PathOf("pordefecto.dat"));
    ValoresActuales();
}

void preferenciasfrm::cmdOK_Click() {
    CadaPreferencia([](const auto& aqui, auto& enLaMesa) { enLaMesa = aqui; });
    playing_.SaveProperty();
    desktop_.Unload(*this);
}

void preferenciasfrm::Form_KeyDown(int keycode, int shift) {
    if (keycode != kKeyTab || shift != kCtrl) return;
    const auto tabs = static_cast<int>(tbsOptions.Tabs.size());
    tbsOptions.Selected = tbsOptions.Selected == tabs ? 1 : tbsOptions.Selected + 1;
    tbsOptions_Click();
}

void preferenciasfrm::tbsOptions_Click() {
    const auto selected = static_cast<std::size_t>(tbsOptions.Selected - 1);
    for (std::size_t i = 0; i < picOptions.size(); ++i) {
        picOptions[i].Left = i == selected ? kPageLeft : kOutOfSight;
        picOptions[i].Enabled = i == selected;
    }
}

}  // namespace zarpel
