#include "tests/play/random_match.h"

#include <deque>
#include <random>

#include "tests/support/table.h"

namespace zarpel {
namespace {

constexpr int kMostEvents = 20000;  // far more than the longest match needs
constexpr std::size_t kEventsRemembered = 12;
constexpr int kUnchosen = -1;

struct Capture {
    int Hand = kUnchosen;
    unsigned Table = 0;  // bit i: table slot i
};

class RandomMatch {
  public:
    RandomMatch(unsigned seed, Tally& tally) : random_(seed), tally_(tally), table_(seed, seed % 2 == 0) {
        sense_ = Chance(50) ? 100 : Below(5) * 25;
        desktop_.OnPause = [this] { CheckCards(); };
        desktop_.OnBox = [this](const Message& box) { Notice(box); };
    }

    void Play() {
        CheckWaiting();
        for (int i = 0; !over_; ++i) {
            Require(i < kMostEvents, "the match does not end");
            try {
                Chance(60) ? ActSensibly() : ActAnyhow();
            } catch (const ScriptedDesktop::Ended&) {
                Require(over_, "the program ended in the middle of a match");
                break;
            }
            CheckWaiting();
            ++tally_[kEvents];
        }
        ++tally_[kMatches];
        tally_[kMatchesWithAPass] += passed_;
    }

  private:
    // --- The player ---

    int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
    bool Chance(int percent) { return Below(100) < percent; }

    void Remember(const std::string& event) {
        events_.push_back(event);
        if (events_.size() > kEventsRemembered) events_.pop_front();
    }
    void Press(int key, int shift) {
        Remember("key " + std::to_string(key) + " shift " + std::to_string(shift));
        window_.Form_KeyDown(key, shift);
    }
    void Click(const Slot& slot, const std::string& name) {
        Remember("click " + name);
        if (slot.Imagen.Click) slot.Imagen.Click();
    }
    void Drop(int i) {
        Remember("drop " + std::to_string(i));
        window_.Frame1.DragDrop(window_.SlotHumano(i).Imagen);
    }
    void PressButton() {
        Remember("button");
        if (window_.LevantarBtn.Enabled) window_.LevantarBtn.Click();
    }

    void ActAnyhow() {
        switch (Below(8)) {
            case 0:
                return Press(Below(256), Below(8));
            case 1:
                return Press("123ASDFGHJKL"[Below(12)], Chance(70) ? 0 : Below(8));
            case 2:
                return Click(window_.SlotMesa(Below(kLugaresMesa)), "table");
            case 3:
                return Click(window_.SlotHumano(Below(kLugaresMano)), "hand");
            case 4:
                return Click(window_.SlotCpu(Below(kLugaresMano)), "computer");
            case 5:
                return Chance(20) ? Drop(Below(kLugaresMano)) : PressButton();
            case 6:
                return window_.Form_MouseMove(Below(12000), Below(9000));
            default:
                Remember("toolbar Nuevo, then No");
                desktop_.Answers = {Answer::No};
                return window_.Toolbar1_ButtonClick("Nuevo");
        }
    }

    // Takes what there is to take, or lays a card. A player with less sense often lays without looking.
    void ActSensibly() {
        const Capture capture = FindCapture();
        if (capture.Hand == kUnchosen || (!Chance(sense_) && !window_.MesaLlena())) {
            const int i = Below(kLugaresMano);
            return Chance(50) ? Drop(i) : Press('1' + i, kShift);
        }
        for (int i = 0; i < kLugaresMesa; ++i) {
            if (window_.SlotMesa(i).Elegido() != ((capture.Table >> i & 1) != 0)) Press("ASDFGHJK"[i], 0);
        }
        for (int i = 0; i < kLugaresMano; ++i) {
            if (i != capture.Hand && window_.SlotHumano(i).Elegido()) Press('1' + i, 0);
        }
        if (!window_.SlotHumano(capture.Hand).Elegido()) Press('1' + capture.Hand, 0);
        Chance(50) ? PressButton() : Press('L', 0);
    }

    // By trying every set of table cards, unlike the game.
    Capture FindCapture() {
        for (unsigned set = 1; set < 1U << kLugaresMesa; ++set) {
            int sum = 0;
            bool shown = true;
            for (int i = 0; i < kLugaresMesa && shown; ++i) {
                if ((set >> i & 1) == 0) continue;
                shown = window_.SlotMesa(i).Ocupado();
                sum += window_.SlotMesa(i).Numero();
            }
            for (int i = 0; i < kLugaresMano && shown; ++i) {
                const Slot hand = window_.SlotHumano(i);
                if (hand.Ocupado() && sum + hand.Numero() == kSumaDeLevante) return {i, set};
            }
        }
        return {};
    }

    // --- What must hold ---

    void Require(bool holds, const std::string& what) const {
        if (holds) return;
        std::string text = what + "; the last events:";
        for (const std::string& event : events_) text += "\n  " + event;
        throw std::runtime_error(text);
    }

    // Each card is in one place, and its owner tag says in which.
    void CheckCards() {
        std::array<char, classnaipe::kCartas + 1> row{};  // kind letter of the row that shows the card
        const auto look = [&](const Slot& slot) {
            if (!slot.Ocupado()) return;
            const int carta = slot.Carta();
            Require(carta != 0 && slot.Imagen.Tag == std::to_string(carta), "a shown card has no index");
            char& seen = row.at(static_cast<std::size_t>(carta));
            Require(seen == 0, "card " + std::to_string(carta) + " is in two places");
            Require(slot.Imagen.Picture.get() == Naipes->Mazo_Imagen(carta),
                    "a card shows another's picture");
            seen = slot.Clase;
        };
        for (int i = 0; i < kLugaresMesa; ++i) look(window_.SlotMesa(i));
        for (int i = 0; i < kLugaresMano; ++i) {
            look(window_.SlotHumano(i));
            look(window_.SlotCpu(i));
        }
        for (int carta = 1; carta <= classnaipe::kCartas; ++carta) {
            const std::string& owner = Naipes->Mazo_Duenio(carta);
            const char seen = row.at(static_cast<std::size_t>(carta));
            const bool agree = owner == duenios::kLaMesa    ? seen == clase::kMesa
                               : owner == duenios::kNinguno ? seen == 0
                               : owner == duenios::kCpu     ? seen == 0 || seen == clase::kCpu
                               : owner == duenios::kHumano  ? seen == 0 || seen == clase::kHumano
                                                            : false;
            Require(agree, "card " + std::to_string(carta) + " is not where its owner tag says: " + owner);
        }
    }

    // The human is to move: can, and sees a table that agrees with itself.
    void CheckWaiting() {
        CheckCards();
        int sum = 0, chosenOfHand = 0, inStock = 0;
        const auto look = [&](const Slot& slot) {
            const Altura altura = AlturaDe(slot.Clase);
            Require(slot.Imagen.Top == (slot.Elegido() ? altura.Levantada : altura.Reposo), "raised amiss");
            if (!slot.Elegido()) return 0;
            Require(slot.Ocupado(), "an empty place is selected");
            sum += slot.Numero();
            return 1;
        };
        for (int i = 0; i < kLugaresMesa; ++i) look(window_.SlotMesa(i));
        for (int i = 0; i < kLugaresMano; ++i) {
            chosenOfHand += look(window_.SlotHumano(i));
            Require(look(window_.SlotCpu(i)) == 0, "a card of the computer is selected");
            Require(
                window_.fondop1img.at(static_cast<std::size_t>(i)).Visible == window_.SlotCpu(i).Ocupado(),
                "a card of the computer has no back, or a back no card");
        }
        const std::string& shown = window_.SumandoLbl.Caption;
        Require(sum == window_.Suma() && (shown.empty() ? 0 : std::stoi(shown)) == sum, "wrong sum");
        Require(sum <= kSumaDeLevante && chosenOfHand <= 1, "too much is selected");
        for (int i = 1; i <= classnaipe::kCartas; ++i) inStock += Naipes->Mazo_Duenio(i) == duenios::kNinguno;
        Require(Naipes->Repartidas() + inStock == classnaipe::kCartas, "Repartidas does not count the cards");
        Require(Reparto->Turno() == 1 && window_.TieneCartas(clase::kHumano), "it is nobody's turn");
        Require(!window_.MesaLlena() || FindCapture().Hand != kUnchosen, "the human cannot move");
        desktop_.Calls.clear();
        desktop_.Boxes.clear();
        desktop_.Pauses.clear();
        CountPasses();
    }

    // --- What happened ---

    void CountPasses() {
        for (const std::string& caption : table_.TakeCaptions()) {
            if (caption == "Paso") Count(kPassesOfTheComputer);
            tally_[kDeals] += caption == "Esta es la ultima mano";
        }
    }
    void Count(Happening what) {
        ++tally_[what];
        passed_ |= what == kPassesOfTheHuman || what == kPassesOfTheComputer;
    }
    void Notice(const Message& box) {
        CheckCards();
        if (box.Text == "¡¡¡ZARPEL!!!") return Count(kZarpelsSeen);
        if (box.Text.starts_with("La mesa")) return Count(kPassesOfTheHuman);
        if (box.Text.starts_with("Ninguno")) return Count(kAnnulledDeals);
        if (box.Text == "JUEGO EMPATADO") return Count(kDraws);
        if (box.Text != "¿Jugar de nuevo?") return Count(kRefusals);
        over_ = true;
        desktop_.Answers = {Chance(50) ? Answer::Yes : Answer::No};
    }

    std::mt19937 random_;
    Tally& tally_;
    Table table_;
    ScriptedDesktop& desktop_ = table_.Desktop;
    Playing& window_ = table_.Window;
    std::deque<std::string> events_;
    int sense_ = 100;  // percent of the captures there that it takes
    bool passed_ = false;
    bool over_ = false;
};

}  // namespace

void PlayRandomMatch(unsigned seed, Tally& tally) { RandomMatch(seed, tally).Play(); }

}  // namespace zarpel
