#include "ui/resultadosfrm.h"

#include "engine/zarpelfunc.h"
#include "ui/design.h"

namespace zarpel {
namespace {

constexpr ColorCode kDarkBlue = Rgb(0, 0, 128);

const FontSpec kHeading = {"Lucida Bright", 12, true};

LabelDesign RowHeading(Label& label, int top, const char* caption) {
    return {.Control = label,
            .At = {0, top, 975, 255},
            .Caption = caption,
            .Font = {"MS Sans Serif", 9.75, true},
            .ForeColor = SystemColor(Palette::HighlightText),
            .BackColor = SystemColor(Palette::GrayText)};
}

LabelDesign Figure(Label& label, int left, int top) {
    return {.Control = label,
            .At = {left, top, 750, 375},
            .Caption = "Label3",
            .Font = {"Palatino Linotype", 11.25, true},
            .Align = Alignment::Center,
            .Border = true};
}

}  // namespace

Resultadosfrm::Resultadosfrm(Desktop& desktop) : desktop_(desktop) {
    Caption = "Resultados";
    Border = FormBorder::FixedDialog;
    BackColor = kGrey;
    Width = 6330;
    Height = 3945;
    Draw(*this, {{.Control = Picture1, .At = {240, 120, 5655, 3015}, .Border = false}});
    Draw(Picture1,
         {{Line1, 1200, 0, 1200, 3000}, {Line3, 3120, 0, 3120, 3000}, {Line2, 5520, 0, 5520, 3000}});
    Draw(Picture1, {{.Control = Label1,
                     .At = {1560, 120, 1065, 540},
                     .Caption = "PLAYER CPU",
                     .Font = kHeading,
                     .ForeColor = kDarkBlue,
                     .Align = Alignment::Center,
                     .WordWrap = true},
                    {.Control = Label2,
                     .At = {3960, 120, 810, 270},
                     .Caption = "Label1",
                     .Font = kHeading,
                     .ForeColor = kDarkBlue,
                     .Align = Alignment::Center,
                     .AutoSize = true,
                     .MaxWidth = 2280},
                    RowHeading(Label13, 720, "CARTAS"),
                    RowHeading(Label14, 1080, "OROS"),
                    RowHeading(Label15, 1440, "SIETES"),
                    RowHeading(Label16, 1800, "VELO"),
                    RowHeading(Label17, 2160, "ZARPEL"),
                    Figure(cartasp1lbl, 1665, 720),
                    Figure(orosp1lbl, 1665, 1080),
                    Figure(sietesp1lbl, 1665, 1440),
                    Figure(velop1lbl, 1665, 1800),
                    Figure(zarpelp1lbl, 1665, 2160),
                    Figure(cartasp2lbl, 3945, 720),
                    Figure(orosp2lbl, 3945, 1080),
                    Figure(sietesp2lbl, 3945, 1440),
                    Figure(velop2lbl, 3945, 1800),
                    Figure(zarpelp2lbl, 3945, 2160)});
    Draw(*this, {{Command1, {4680, 3360, 1335, 375}, "ACEPTAR"}});
    Command1.Default = true;
    Command1.Cancel = true;
    Command1.Click = [this] { Command1_Click(); };
}

void Resultadosfrm::Resultados(const Matriz& matriz) {
    Label2.Caption = Naipes->Nombrejugador();
    const struct {
        Label &Cpu, &Humano;
        int Cuenta::*Cual;
    } figures[] = {{cartasp1lbl, cartasp2lbl, &Cuenta::Cartas},
                   {orosp1lbl, orosp2lbl, &Cuenta::Oros},
                   {sietesp1lbl, sietesp2lbl, &Cuenta::Sietes},
                   {velop1lbl, velop2lbl, &Cuenta::Velo},
                   {zarpelp1lbl, zarpelp2lbl, &Cuenta::Zarpels}};
    for (const auto& [cpu, humano, cual] : figures) {
        cpu.Caption = std::to_string(matriz.Cpu.*cual);
        humano.Caption = std::to_string(matriz.Humano.*cual);
    }
}

}  // namespace zarpel
