// random_play [matches] [first seed]: plays that many whole matches at random, one a seed, and prints what
// happened. A fault is printed with its seed; "random_play 1 SEED" plays that match again.
//
// The player does anything that a hand can do at the table, sensible or not. After every event, and whenever
// the game pauses or shows a box, the table must make sense.
#include <cstdio>
#include <cstdlib>
#include <map>
#include <stdexcept>

#include "tests/support/random_player.h"
#include "tests/support/table.h"

using namespace zarpel;

namespace {

constexpr int kMostEvents = 20000;          // far more than the longest match needs
constexpr int kMatchesThatShowAll = 2000;   // so many must have shown everything that can happen
std::map<std::string, long long> happened;  // how often

void Require(bool holds, const std::string& what) {
    if (!holds) throw std::runtime_error(what);
}

class RandomMatch {
  public:
    explicit RandomMatch(unsigned seed) : table_(seed, seed % 2 == 0), player_(table_.Window, seed) {
        sense_ = Chance(50) ? 100 : player_.Below(5) * 25;
        table_.Desktop.OnPause = [this] { CheckCards(); };
        table_.Desktop.OnBox = [this](const Message& box) { Notice(box); };
    }

    void Play() {
        CheckWaiting();
        for (int i = 0; !over_; ++i) {
            Require(i < kMostEvents, "the match does not end");
            try {
                Chance(60) ? ActSensibly() : player_.Act();
            } catch (const ScriptedDesktop::Ended&) {
                Require(over_, "the program ended in the middle of a match");
                break;
            }
            CheckWaiting();
            ++happened["events"];
        }
        ++happened["matches"];
        happened["matches with a pass"] += passed_;
    }

  private:
    bool Chance(int percent) { return player_.Below(100) < percent; }

    // Takes what there is to take, or lays a card. A player with less sense often lays without looking.
    void ActSensibly() {
        const auto [hand, set] = FindCapture();
        if (set == 0 || (!Chance(sense_) && !window_.MesaLlena())) {
            const int i = player_.Below(kLugaresMano);
            return Chance(50) ? window_.Frame1.DragDrop(window_.SlotHumano(i).Imagen)
                              : window_.Form_KeyDown('1' + i, kShift);
        }
        for (int i = 0; i < kLugaresMesa; ++i) {
            if (window_.SlotMesa(i).Elegido() != ((set >> i & 1) != 0)) table_.Press({"ASDFGHJK"[i]});
        }
        for (int i = 0; i < kLugaresMano; ++i) {
            if (window_.SlotHumano(i).Elegido() != (i == hand)) window_.SlotHumano(i).Imagen.Click();
        }
        table_.Press("L");
    }

    // A place of the hand, and the set of table places (a bit each) that it takes; none: an empty set. Found
    // by trying every set, unlike the game.
    std::pair<int, unsigned> FindCapture() {
        for (unsigned set = 1; set < 1U << kLugaresMesa; ++set) {
            int sum = 0;
            for (int i = 0; i < kLugaresMesa; ++i) {
                const Slot mesa = window_.SlotMesa(i);
                if ((set >> i & 1) != 0) sum += mesa.Ocupado() ? mesa.Numero() : kSumaDeLevante;
            }
            for (int i = 0; i < kLugaresMano; ++i) {
                const Slot mano = window_.SlotHumano(i);
                if (mano.Ocupado() && sum + mano.Numero() == kSumaDeLevante) return {i, set};
            }
        }
        return {};
    }

    // Each card is in one place, and its owner tag says in which.
    void CheckCards() {
        std::array<char, classnaipe::kCartas + 1> row{};  // kind letter of the row that shows the card
        for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
            const Slot slot = window_.SlotDePosicion(codigo);
            if (!slot.Ocupado()) continue;
            const int carta = slot.Carta();
            Require(carta != 0 && slot.Imagen.Tag == std::to_string(carta), "a shown card has no index");
            char& seen = row.at(static_cast<std::size_t>(carta));
            Require(seen == 0, "card " + std::to_string(carta) + " is in two places");
            Require(slot.Imagen.Picture == Naipes->Mazo_Imagen(carta), "a card shows another's picture");
            seen = slot.Clase;
        }
        // The rows where an owner's cards can be; those won are in none.
        static const std::map<std::string, std::string> rows = {{duenios::kLaMesa, {clase::kMesa}},
                                                                {duenios::kNinguno, {0}},
                                                                {duenios::kCpu, {0, clase::kCpu}},
                                                                {duenios::kHumano, {0, clase::kHumano}}};
        for (int carta = 1; carta <= classnaipe::kCartas; ++carta) {
            const std::string& owner = Naipes->Mazo_Duenio(carta);
            Require(rows.at(owner).find(row.at(static_cast<std::size_t>(carta))) != std::string::npos,
                    "card " + std::to_string(carta) + " is not where its owner tag says: " + owner);
        }
    }

    // The human is to move: can, and sees a table that agrees with itself.
    void CheckWaiting() {
        CheckCards();
        int sum = 0, chosenOfHand = 0, inStock = 0;
        for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
            const Slot slot = window_.SlotDePosicion(codigo);
            const Altura altura = AlturaDe(slot.Clase);
            Require(slot.Imagen.Top == (slot.Elegido() ? altura.Levantada : altura.Reposo), "raised amiss");
            if (!slot.Elegido()) continue;
            Require(slot.Ocupado() && slot.Clase != clase::kCpu, "what the human cannot select is selected");
            sum += slot.Numero();
            chosenOfHand += slot.Clase == clase::kHumano;
        }
        for (int i = 0; i < kLugaresMano; ++i) {
            const Image& back = window_.fondop1img.at(static_cast<std::size_t>(i));
            Require(back.Visible == window_.SlotCpu(i).Ocupado(), "a back is missing, or has no card");
        }
        const std::string& shown = window_.SumandoLbl.Caption;
        Require(sum == window_.Suma() && (shown.empty() ? 0 : std::stoi(shown)) == sum, "wrong sum");
        Require(sum <= kSumaDeLevante && chosenOfHand <= 1, "too much is selected");
        for (int i = 1; i <= classnaipe::kCartas; ++i) inStock += Naipes->Mazo_Duenio(i) == duenios::kNinguno;
        Require(Naipes->Repartidas() + inStock == classnaipe::kCartas, "Repartidas does not count the cards");
        Require(Reparto->Turno() == 1 && window_.TieneCartas(clase::kHumano), "it is nobody's turn");
        Require(!window_.MesaLlena() || FindCapture().second != 0, "the human cannot move");
        for (const std::string& caption : table_.TakeCaptions()) {
            if (caption == "Paso") Count("passes of the computer");
            happened["deals"] += caption == "Esta es la ultima mano";
        }
    }

    void Count(const std::string& what) {
        ++happened[what];
        passed_ |= what.starts_with("passes");
    }
    void Notice(const Message& box) {
        CheckCards();
        if (box.Text == "¡¡¡ZARPEL!!!") return Count("zarpels");
        if (box.Text.starts_with("La mesa")) return Count("passes of the human");
        if (box.Text.starts_with("Ninguno")) return Count("annulled deals");
        if (box.Text == "JUEGO EMPATADO") return Count("drawn matches");
        if (box.Text != "¿Jugar de nuevo?") return Count("refusals");
        over_ = true;
        table_.Desktop.Answers = {Chance(50) ? Answer::Yes : Answer::No};
    }

    Table table_;
    Playing& window_ = table_.Window;
    RandomPlayer player_;
    int sense_ = 100;  // percent of the captures there that it takes
    bool passed_ = false;
    bool over_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    const int matches = argc > 1 ? std::atoi(argv[1]) : 5000;
    const unsigned first = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1;
    for (unsigned seed = first; seed - first < static_cast<unsigned>(matches); ++seed) {
        try {
            RandomMatch(seed).Play();
        } catch (const std::exception& fault) {
            std::printf("seed %u: %s\nplay it again with: random_play 1 %u\n", seed, fault.what(), seed);
            return 1;
        }
    }
    bool all = true;
    for (const char* what :
         {"matches", "events", "deals", "zarpels", "passes of the human", "passes of the computer",
          "matches with a pass", "annulled deals", "drawn matches", "refusals"}) {
        std::printf("%s: %lld\n", what, happened[what]);
        all = all && happened[what] > 0;
    }
    if (all || matches < kMatchesThatShowAll) return 0;
    std::puts("something that can happen never did");
    return 1;
}
