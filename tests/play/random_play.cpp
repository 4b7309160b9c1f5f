// random_play [matches] [first seed]: plays that many whole matches at random, one a seed, and prints how
// often each text was shown. A fault is printed with its seed; "random_play 1 SEED" plays that match again.
//
// The player does anything that a hand can do at the table, sensible or not. After every event, and whenever
// the game pauses or shows a box, the table must make sense.
#include <cstdio>
#include <cstdlib>
#include <map>
#include <set>
#include <stdexcept>

#include "tools/play/random_player.h"
#include "tools/play/table.h"

using namespace zarpel;

namespace {

constexpr int kMostEvents = 20000;         // far more than the longest match needs
constexpr int kMatchesThatShowAll = 2000;  // so many must have shown everything that can happen
std::map<std::string, int> shown;          // captions and texts of boxes: how often

void Require(bool holds, const std::string& what) {
    if (!holds) throw std::runtime_error(what);
}

class RandomMatch {
  public:
    explicit RandomMatch(unsigned seed) : table_(seed, seed % 2 == 0), player_(table_.Window, seed) {
        table_.Desktop.OnPause = [this] { CheckCards(); };
        table_.Desktop.OnBox = [this](const Message& box) {
            CheckCards();
            ++shown[box.Text];
            over_ |= box.Text == "¿Jugar de nuevo?";
            table_.Desktop.Answers = {Chance(50) ? Answer::Yes : Answer::No};
        };
    }

    void Play() {
        CheckWaiting();
        for (int i = 0; !over_; ++i) {
            Require(i < kMostEvents, "the match does not end");
            try {
                Chance(60) ? ActSensibly() : player_.Act();
            } catch (const ScriptedDesktop::Ended&) {
                return Require(over_, "the program ended in the middle of a match");
            }
            CheckWaiting();
        }
    }

  private:
    bool Chance(int percent) { return player_.Below(100) < percent; }

    // Takes what there is to take, or lays a card. A player with less sense often lays without looking.
    void ActSensibly() {
        const std::vector<Slot> capture = FindCapture();
        if (capture.empty() || (!Chance(sense_) && !window_.MesaLlena())) {
            return window_.Form_KeyDown('1' + player_.Below(kLugaresMano), kShift);
        }
        window_.EmprolijaDesktop();
        for (const Slot& slot : capture) slot.Imagen.Click();
        table_.Press("L");
    }

    // A card of the hand and cards of the table that make 15, if there are any. Found by trying every set of
    // cards, unlike the game.
    std::vector<Slot> FindCapture() {
        for (int i = 0; i < kLugaresMano; ++i) {
            const Slot mano = window_.SlotsMano(Jugador::Humano)[i];
            std::vector<Slot> cards = {mano};
            if (mano.Ocupado() && Completes(cards, kSumaDeLevante - mano.Numero())) return cards;
        }
        return {};
    }

    // Adds cards of the table, from place `from` on, that make `rest`; none, when there are none.
    bool Completes(std::vector<Slot>& cards, int rest, int from = 0) {
        for (int i = from; i < kLugaresMesa && rest > 0; ++i) {
            const Slot mesa = window_.SlotsMesa()[i];
            if (!mesa.Ocupado()) continue;
            cards.push_back(mesa);
            if (Completes(cards, rest - mesa.Numero(), i + 1)) return true;
            cards.pop_back();
        }
        return rest == 0;
    }

    // Each card is in one place, and its owner tag says in which.
    void CheckCards() {
        std::set<int> seen;
        for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
            const Slot slot = window_.SlotDePosicion(codigo);
            if (!slot.Ocupado()) continue;
            const int carta = slot.Carta();
            Require(carta != 0 && slot.Imagen.Tag == std::to_string(carta), "a shown card has no index");
            Require(seen.insert(carta).second, "a card is in two places");
            Require(slot.Imagen.Picture == Naipes->Mazo_Imagen(carta), "a card shows another's picture");
            const std::string& duenio = slot.De ? kSignos[*slot.De].Duenio : duenios::kLaMesa;
            Require(Naipes->Mazo_Duenio(carta) == duenio, "a card is another's");
        }
        Require(CardsOf(duenios::kLaMesa) == std::ssize(table_.OnTable()),
                "a card of the table is not there");
    }

    static int CardsOf(const std::string& duenio) {
        int cards = 0;
        for (int i = 1; i <= classnaipe::kCartas; ++i) cards += Naipes->Mazo_Duenio(i) == duenio;
        return cards;
    }

    // The human is to move: can, and sees a table that agrees with itself.
    void CheckWaiting() {
        CheckCards();
        int sum = 0, chosenOfHand = 0;
        for (int codigo = 1; codigo <= kPosiciones; ++codigo) {
            const Slot slot = window_.SlotDePosicion(codigo);
            const Altura altura = slot.Alturas();
            Require(slot.Imagen.Top == (slot.Elegido() ? altura.Levantada : altura.Reposo), "raised amiss");
            Require(!slot.Imagen.Cover || slot.Imagen.Cover->Visible == slot.Ocupado(), "a back is amiss");
            if (!slot.Elegido()) continue;
            Require(slot.Ocupado() && slot.De != Jugador::Cpu, "what the human cannot select is selected");
            sum += slot.Numero();
            chosenOfHand += slot.De == Jugador::Humano;
        }
        const std::string& caption = window_.SumandoLbl.Caption;
        Require(sum == window_.Suma() && (caption.empty() ? 0 : std::stoi(caption)) == sum, "wrong sum");
        Require(sum <= kSumaDeLevante && chosenOfHand <= 1, "too much is selected");
        Require(Naipes->Repartidas() + CardsOf(duenios::kNinguno) == classnaipe::kCartas,
                "Repartidas does not count the cards");
        Require(Reparto->Turno() == 1 && window_.TieneCartas(Jugador::Humano), "it is nobody's turn");
        Require(!window_.MesaLlena() || !FindCapture().empty(), "the human cannot move");
        for (const std::string& text : table_.TakeCaptions()) ++shown[text];
    }

    Table table_;
    Playing& window_ = table_.Window;
    RandomPlayer player_;
    const int sense_ = Chance(50) ? 100 : player_.Below(5) * 25;  // percent of the captures that it takes
    bool over_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    const int matches = argc > 1 ? std::atoi(argv[1]) : 5000;
    const int first = argc > 2 ? std::atoi(argv[2]) : 1;
    for (int seed = first; seed < first + matches; ++seed) {
        try {
            RandomMatch(static_cast<unsigned>(seed)).Play();
        } catch (const std::exception& fault) {
            std::printf("seed %d: %s\nplay it again with: random_play 1 %d\n", seed, fault.what(), seed);
            return 1;
        }
    }
    for (const auto& [text, times] : shown) std::printf("%8d  %s\n", times, text.c_str());
    for (const char* text :
         {"Esta es la ultima mano", "¡¡¡ZARPEL!!!", "Paso", "JUEGO EMPATADO", "La suma es mayor que 15",
          "La mesa está llena y ninguna de sus cartas suma 15: pasa el turno",
          "Ninguno de los dos puede jugar: se reparte de nuevo"}) {
        if (matches < kMatchesThatShowAll || shown[text] > 0) continue;
        std::printf("never shown: %s\n", text);
        return 1;
    }
}
