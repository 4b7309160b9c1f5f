#include "tools/play/seen.h"

#include "engine/zarpelfunc.h"
#include "tools/play/installation.h"

namespace zarpel {
namespace {

int NumberIn(const std::string& text) { return text.empty() ? 0 : std::stoi(text); }

int IndexOf(const Image& image) {
    const int index = NumberIn(image.Tag);
    return index == 0 || image.Picture == CardPicture(index) ? index : -index;
}

Seen::Card CardIn(const Image& image, const CheckBox& flag, int rest) {
    constexpr int kRise = 360;
    const bool inPlace = image.Top == rest || image.Top == rest - kRise;
    return {inPlace ? IndexOf(image) : -1, image.Visible, flag.Value == 1, image.Top != rest};
}

}  // namespace

// Where nothing is shown, the rest does not matter.
bool Seen::Card::operator==(const Card& other) const {
    return Index == other.Index && Shown == other.Shown &&
           (!Shown || (Chosen == other.Chosen && Raised == other.Raised));
}

Seen See(const Playing& window, bool open) {
    Seen seen;
    for (std::size_t i = 0; i < 8; ++i) seen.Cards[i] = CardIn(window.mesaimg[i], window.CheckMesa[i], 360);
    for (std::size_t i = 0; i < 3; ++i) {
        seen.Cards[kCpuHand + i] = CardIn(window.cartap1img[i], window.CheckCartap1[i], 360);
        seen.Cards[kHumanHand + i] = CardIn(window.cartap2img[i], window.CheckCartap2[i], 6360);
        seen.Backs[i] = window.fondop1img[i].Visible;
    }
    for (int i = 1; i <= 40; ++i) {
        const bool right = Naipes->Mazo_Numero(i) == (i - 1) % 10 + 1 && !Naipes->Mazo_Palo(i).empty();
        seen.Owners[static_cast<std::size_t>(i)] = right ? Naipes->Mazo_Duenio(i) : "of no card";
    }
    seen.Caption = window.cartellbl.Caption;
    seen.Points[0] = window.puntajeP1Lbl.Caption;
    seen.Points[1] = window.puntajeP2Lbl.Caption;
    seen.Name = window.namelbl.Caption == window.Label2.Caption ? window.namelbl.Caption.get() : "two names";
    seen.SumText = window.SumandoLbl.Caption;
    seen.Sum = NumberIn(window.SumandoLbl.Tag);
    seen.SumShown = window.SumandoLbl.Visible;
    seen.ButtonOn = window.LevantarBtn.Enabled;
    seen.BarShown = window.StatusBar1.Visible;
    seen.Open = open;
    seen.Dealer = Naipes->LaMano();
    seen.Dealt = Naipes->Repartidas();
    seen.Turn = Reparto->Turno();
    seen.Score[0] = Naipes->Puntajecpu();
    seen.Score[1] = Naipes->Puntajehumano();
    seen.Zarpels[0] = Reparto->ZarpelP1();
    seen.Zarpels[1] = Reparto->ZarpelP2();
    seen.First = Naipes->Primermano();
    seen.Last = Reparto->UltimoqLevanta();
    return seen;
}

std::ostream& operator<<(std::ostream& out, const Seen& seen) {
    out << "  cards ";
    for (const Seen::Card& card : seen.Cards) {
        out << (card.Shown ? "" : "no ") << card.Index << (card.Chosen ? "*" : "")
            << (card.Raised ? "^, " : ", ");
    }
    out << "\n  backs " << seen.Backs[0] << seen.Backs[1] << seen.Backs[2] << ", owners";
    for (const std::string& owner : seen.Owners) out << " " << owner;
    return out << "\n  \"" << seen.Caption << "\", points " << seen.Points[0] << "-" << seen.Points[1] << " ("
               << seen.Score[0] << "-" << seen.Score[1] << "), name " << seen.Name << ", sum \""
               << seen.SumText << "\" (" << seen.Sum << (seen.SumShown ? ", shown" : "") << "), button "
               << seen.ButtonOn << ", bar " << seen.BarShown << ", open " << seen.Open << "\n  dealer "
               << seen.Dealer << ", dealt " << seen.Dealt << ", turn " << seen.Turn << ", zarpels "
               << seen.Zarpels[0] << "-" << seen.Zarpels[1] << ", first " << seen.First << ", last "
               << seen.Last << "\n";
}

}  // namespace zarpel
