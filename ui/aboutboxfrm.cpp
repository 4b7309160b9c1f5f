#include "ui/aboutboxfrm.h"

#include "ui/design.h"
#include "ui/version.h"

namespace zarpel {
namespace {

constexpr ColorCode kBrick = Rgb(192, 64, 0);
constexpr ColorCode kCream = Rgb(255, 255, 192);

}  // namespace

Aboutboxfrm::Aboutboxfrm(Desktop& desktop) : desktop_(desktop) {
    Design();
    cmdOK.Click = [this] { cmdOK_Click(); };
    Form_Load();
}

void Aboutboxfrm::Design() {
    Border = FormBorder::FixedDialog;
    BackColor = kBrick;
    Width = 5940;
    Height = 3555;
    Draw(*this, picIcon, {360, 480, 780, 780});
    picIcon.Picture = ":/acerca.png";
    const FontSpec credit = {"", 12, true};
    Draw(*this,
         {{.Control = lblProductName,
           .At = {1320, 360, 4260, 765},
           .Caption = "Zarpel Game",
           .Font = {"Arial", 32.25, true},
           .AutoSize = true,
           .MaxWidth = 4500},
          {.Control = lblVersion,
           .At = {5175, 1200, 390, 300},
           .Caption = kVersion,
           .Font = credit,
           .BackColor = kCream},
          {.Control = lblDescription, .At = {2460, 1440, 1245, 300}, .Caption = "Hecho por", .Font = credit},
          {.Control = Label1,
           .At = {2640, 2160, 3045, 210},
           .Caption = "Los autores de Zarpel",
           .Font = {"", 9.75, true}},
          {.Control = lblDisclaimer,
           .At = {240, 2625, 3870, 705},
           .Caption = "Programa, dibujos y ayuda: Los autores de Zarpel",
           .WordWrap = true}});
    Draw(*this, {{Line1[1], 90, 2445, 5654, 2445, kGrey}, {Line1[0], 105, 2460, 5654, 2460, kWhite}});
    Draw(*this, {{cmdOK, {4320, 2760, 1500, 465}, "Aceptar"}});
    cmdOK.Default = true;
    cmdOK.Cancel = true;
}

void Aboutboxfrm::Form_Load() { Caption = "Acerca de " + desktop_.Title(); }

}  // namespace zarpel
