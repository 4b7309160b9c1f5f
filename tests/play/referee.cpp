#include "tests/play/referee.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "tools/play/installation.h"

namespace zarpel {
namespace {

using Card = Seen::Card;

const std::string kOwners[] = {"player1", "player2"};
const std::string kKeys =
    "ASDFGHJK..."
    "123";

// Adds places of shown table cards, from `from` on, that make `rest`.
bool Completes(const Seen& seen, std::vector<int>& places, int rest, int from = 0) {
    for (int i = from; i < kCpuHand && rest > 0; ++i) {
        const Card& card = seen.Cards.at(static_cast<std::size_t>(i));
        if (!card.Shown) continue;
        places.push_back(i);
        if (Completes(seen, places, rest - (card.Index - 1) % 10 - 1, i + 1)) return true;
        places.pop_back();
    }
    return rest == 0;
}

std::string Report(const std::vector<std::string>& told, const Seen& looks) {
    std::ostringstream report;
    for (const std::string& text : told) report << "  " << text << "\n";
    report << looks;
    return report.str();
}

}  // namespace

std::string InFile(const std::string& text) {
    const std::string letter = "ñ";
    const std::size_t at = text.find(letter);
    return at == std::string::npos ? text : text.substr(0, at) + '\xF1' + text.substr(at + letter.size());
}

Referee::Referee(std::deque<Moment>& log, Draws& draws, const std::string& name)
    : log_(log), draws_(draws), preferred_(name) {}

// --- What the player does ---

void Referee::Starts() {
    Match();
    Waits();
}

void Referee::Key(int code, int shift) {
    const std::size_t place = kKeys.find(static_cast<char>(code));
    if (code == 'L') return Takes();
    if (code == 112) told_.push_back("help C:\\Zarpel\\ayuda.chm");  // F1
    if (code == '.' || place == std::string::npos) return Waits();
    if (place >= kHumanHand && shift == 1) return Drops(static_cast<int>(place));
    Clicks(static_cast<int>(place));
}

void Referee::Clicks(int place) {
    if (At(place).Shown && (place < kCpuHand || place >= kHumanHand)) Touch(place);
    Waits();
}

void Referee::Takes() {
    Take(1);
    Waits();
}

void Referee::Drops(int handPlace) {
    Lay(handPlace);
    Waits();
}

void Referee::Moves(int y) {
    now_.BarShown = y >= 8055;
    Waits();
}

// --- What the game must do ---

void Referee::Match() {
    if (log_.empty()) throw std::runtime_error("no match begins");
    now_.Name = preferred_;
    now_.Dealer = log_.front().Looks.Dealer;
    ++draws_.Dealers.at(static_cast<std::size_t>(now_.Dealer));
    for (const int who : {0, 1}) {
        now_.Score[who] = 0;
        now_.Points[who] = std::to_string(0);
    }
    Deal();
}

void Referee::Deal() {
    now_.First = true;
    now_.Dealt = now_.Zarpels[0] = now_.Zarpels[1] = 0;
    std::fill(now_.Owners.begin() + 1, now_.Owners.end(), "ninguno");
    for (int i = kCpuHand; i < kPlaces; ++i) At(i).Shown = false;
    Turn();
}

void Referee::Turn() {
    Tidy();
    if (now_.First) {
        now_.Turn = now_.Dealer;
        Say(now_.Dealer == 0 ? "Reparte Cpu - Juega " + now_.Name : "Reparte " + now_.Name + " - Juega Cpu");
    }
    if (!Any(kCpuHand, kPlaces, &Card::Shown)) {
        if (now_.Dealt == 40) return Count();
        Distribution();
    }
    now_.Turn == 0 ? Human() : Computer();
}

void Referee::Tidy() {
    for (Card& card : now_.Cards) card.Chosen = card.Raised = false;
    for (std::size_t i = 0; i < 3; ++i) now_.Backs[i] = now_.Backs[i] && now_.Cards[kCpuHand + i].Shown;
    now_.Sum = 0;
    now_.SumText.clear();
}

void Referee::Distribution() {
    for (int i = now_.First ? 0 : kCpuHand; i < kPlaces; ++i) {
        At(i).Shown = i < 4 || i >= kCpuHand;
        if (At(i).Shown) Draw(i);
    }
    now_.Backs = {true, true, true};
    now_.First = false;
    passes_ = 0;
}

void Referee::Draw(int place) {
    if (log_.empty()) throw std::runtime_error("no cards are dealt");
    const int index = log_.front().Looks.Cards.at(static_cast<std::size_t>(place)).Index;
    if (index < 1 || now_.Owners.at(static_cast<std::size_t>(index)) != "ninguno") {
        throw std::runtime_error("dealt from where no stock is: " + std::to_string(index));
    }
    At(place).Index = index;
    Owner(place) = place < kCpuHand ? "lamesa" : kOwners[place >= kHumanHand];
    ++now_.Dealt;
    if (now_.First) ++draws_.Cards.at(static_cast<std::size_t>(place)).at(static_cast<std::size_t>(index));
}

void Referee::Human() {
    Say("Juega " + now_.Name);
    now_.Turn = 1;
    if (!Any(kHumanHand, kPlaces, &Card::Shown)) return Pass();
    if (!TableFull() || !Capture().empty()) return;
    Expect("box La mesa está llena y ninguna de sus cartas suma 15: pasa el turno, icon 4");
    Pass();
}

void Referee::Computer() {
    Say("Juega Cpu");
    now_.Turn = 0;
    if (!Any(kCpuHand, kHumanHand, &Card::Shown)) return Pass();
    const int place = Search();
    if (now_.Sum == 15) {
        Say("Me llevo estas cartas");
        now_.Backs.at(static_cast<std::size_t>(place - kCpuHand)) = false;
        Expect("pause 1500");
        return Take(0);
    }
    const bool passes = TableFull();
    Say(passes ? "Paso" : "He Jugado una carta");
    Expect("pause 1500");
    passes ? Pass() : Lay(place);
}

// Chooses the first cards of the computer's walk that make 15. Gives the place in its hand.
int Referee::Search() {
    int last = 0;
    for (int i = kCpuHand; i < kHumanHand; ++i) {
        Tidy();
        if (!At(i).Shown) continue;
        last = i;
        for (int anchor = 0; anchor < kCpuHand; ++anchor) {
            Tidy();
            Touch(i);
            for (int k = At(anchor).Shown ? anchor : kCpuHand; k < kCpuHand && now_.Sum < 15; ++k) {
                if (At(k).Shown) Touch(k);
            }
            if (now_.Sum == 15) return i;
        }
    }
    return last;
}

void Referee::Touch(int place) {
    Card& card = At(place);
    const bool ofHand = place >= kHumanHand;
    now_.SumShown = true;
    if (card.Chosen) {
        now_.Sum -= NumberAt(place);
        card.Chosen = card.Raised = false;
    } else if (ofHand && Any(kHumanHand, kPlaces, &Card::Chosen)) {
        Expect("box SELECCIONE SOLO UNA DE SUS CARTAS, icon 3");
    } else if (now_.Sum + NumberAt(place) <= 15) {
        now_.Sum += NumberAt(place);
        card.Chosen = true;
        card.Raised = place < kCpuHand || ofHand;
        now_.ButtonOn = true;
    } else if (now_.Turn == 1) {
        card.Raised = true;
        Expect("box La suma es mayor que 15, icon 4");
        card.Raised = false;
    }
    now_.SumText = std::to_string(now_.Sum);
}

void Referee::Lay(int handPlace) {
    if (!At(handPlace).Shown || TableFull()) return;
    int place = 0;
    while (At(place).Shown) ++place;
    At(place) = {At(handPlace).Index, true};
    At(handPlace).Shown = false;
    Owner(place) = "lamesa";
    passes_ = 0;
    Turn();
}

void Referee::Take(int who) {
    if (now_.Sum != 15) return void(Expect("box Para Levantar debes sumar 15, icon 4"));
    if (who == 1 && !Any(kHumanHand, kPlaces, &Card::Chosen)) {
        return void(Expect("box Debes seleccionar una de tus cartas, icon 0"));
    }
    for (int i = 0; i < kPlaces; ++i) {
        if (!At(i).Chosen) continue;
        At(i).Shown = false;
        Owner(i) = kOwners[who];
    }
    if (!Any(0, kCpuHand, &Card::Shown)) {
        Expect("box ¡¡¡ZARPEL!!!, icon 3");
        ++now_.Zarpels[who];
    }
    now_.Last = kOwners[who];
    now_.ButtonOn = now_.SumShown = false;
    passes_ = 0;
    Turn();
}

void Referee::Pass() {
    if (++passes_ < 2) return Turn();
    Expect("box Ninguno de los dos puede jugar: se reparte de nuevo, icon 4");
    Deal();
}

void Referee::Count() {
    now_.Dealt = 0;
    now_.Dealer = 1 - now_.Dealer;
    Say("Esta es la ultima mano");
    Expect("pause 1500");
    for (int i = 0; i < kCpuHand; ++i) {
        if (At(i).Shown) Owner(i) = now_.Last;
        At(i).Shown = false;
    }
    int count[4][2] = {};  // cards, oros, sevens, velo
    for (int i = 1; i <= 40; ++i) {
        const int who = now_.Owners.at(static_cast<std::size_t>(i)) == kOwners[0] ? 0 : 1;
        const bool oro = i > 20 && i <= 30, seven = Number(i) == 7;
        for (const auto& [row, counts] : {std::pair{0, true}, {1, oro}, {2, seven}, {3, oro && seven}}) {
            count[row][who] += counts;
        }
    }
    std::ostringstream window;
    window << "modal Resultados: PLAYER CPU, " << now_.Name;
    const char* const headings[] = {"CARTAS", "OROS", "SIETES", "VELO"};
    for (int row = 0; row < 4; ++row) {
        window << ", " << headings[row] << ", " << count[row][0] << ", " << count[row][1];
    }
    window << ", ZARPEL, " << now_.Zarpels[0] << ", " << now_.Zarpels[1];
    Expect(window.str());
    for (const int who : {0, 1}) {
        for (const auto& row : count) now_.Score[who] += row[who] > row[1 - who];
        now_.Score[who] += now_.Zarpels[who];
        now_.Points[who] = std::to_string(now_.Score[who]);
    }
    std::max(now_.Score[0], now_.Score[1]) >= 15 ? Winner() : Deal();
}

void Referee::Winner() {
    const int ahead = now_.Score[0] - now_.Score[1];
    const std::string winner = ahead > 0 ? "CPU" : now_.Name;
    Expect(ahead == 0 ? "box JUEGO EMPATADO, icon 3" : "box GANADOR " + winner + ", icon 3, Final");
    if (Expect("box ¿Jugar de nuevo?, icon 2, Fin de Juego, Yes or No").Yes) return Match();
    over_ = true;
    told_.push_back("end 0");
}

std::vector<int> Referee::Capture() const {
    for (int i = kHumanHand; i < kPlaces; ++i) {
        std::vector<int> places = {i};
        if (At(i).Shown && Completes(now_, places, 15 - NumberAt(i))) return places;
    }
    return {};
}

bool Referee::Any(int from, int to, bool Card::*is) const {
    return std::any_of(now_.Cards.begin() + from, now_.Cards.begin() + to,
                       [is](const Card& card) { return card.*is; });
}

bool Referee::TableFull() const {
    return std::all_of(now_.Cards.begin(), now_.Cards.begin() + kCpuHand,
                       [](const Card& card) { return card.Shown; });
}

// --- Saved matches ---

void Referee::Saves(const std::string& file) {
    told_.push_back("write partida");
    Waits();
    if (file != File()) throw std::runtime_error("saved:\n" + file + "expected:\n" + File());
}

// Beneath what is read, a fresh match begins; what the file does not hold is that match's. A back may lie
// where no card is.
void Referee::Reopens(const std::string& name) {
    Referee fresh(log_, draws_, name);
    preferred_ = name;
    fresh.Match();
    if (!log_.empty()) fresh.now_.Backs = log_.front().Looks.Backs;
    fresh.Expect("read partida");
    if (!log_.empty()) now_.Backs = log_.front().Looks.Backs;
    for (Card& card : now_.Cards) card.Chosen = card.Raised = false;
    now_.Sum = 0;
    now_.Caption = fresh.now_.Caption;
    now_.SumShown = fresh.now_.SumShown;
    now_.ButtonOn = fresh.now_.ButtonOn;
    now_.BarShown = false;
    passes_ = fresh.passes_;
    for (std::size_t i = 0; i < 3; ++i) now_.Backs[i] = now_.Backs[i] || now_.Cards[kCpuHand + i].Shown;
    Waits();
}

std::string Referee::File() const {
    std::ostringstream file;
    const auto text = [&](const std::string& value) { file << '"' << value << "\"\r\n"; };
    const auto flag = [&](bool value) { file << (value ? "#TRUE#\r\n" : "#FALSE#\r\n"); };
    const auto card = [&](const Card& at) { text(at.Index == 0 ? "" : std::to_string(at.Index)); };
    for (const std::string& caption : {now_.Points[0], now_.Points[1], now_.SumText}) text(caption);
    for (int i = 0; i < kCpuHand; ++i) {
        if (i < 3) {
            card(At(kCpuHand + i));
            card(At(kHumanHand + i));
            flag(At(kCpuHand + i).Shown);
            flag(At(kHumanHand + i).Shown);
        }
        card(At(i));
        flag(At(i).Shown);
    }
    text(InFile(now_.Name));
    text(now_.Last);
    for (const int value :
         {now_.Dealt, now_.Zarpels[0], now_.Zarpels[1], now_.Dealer, now_.Score[0], now_.Score[1]}) {
        file << value << "\r\n";
    }
    file << "#FALSE#\r\n" << now_.Turn << "\r\n";
    for (int i = 1; i <= 40; ++i) {
        const char* const suits[] = {"espada", "basto", "oro", "copa"};
        text(now_.Owners.at(static_cast<std::size_t>(i)));
        text(CardPicture(i));
        file << Number(i) << "\r\n";
        text(suits[(i - 1) / 10]);
    }
    return file.str();
}

// --- The log ---

void Referee::Say(const std::string& caption) {
    if (now_.Caption != caption) told_.push_back(caption);
    now_.Caption = caption;
}

Moment Referee::Expect(const std::string& what) {
    if (!what.empty()) told_.push_back(what);
    const std::vector<std::string> told = std::exchange(told_, {});
    if (log_.empty())
        throw std::runtime_error("nothing more happens, but there must be\n" + Report(told, now_));
    const Moment moment = std::move(log_.front());
    log_.pop_front();
    if (moment.Told == told && moment.Looks == now_) return moment;
    throw std::runtime_error("there must be\n" + Report(told, now_) + "but there is\n" +
                             Report(moment.Told, moment.Looks));
}

// The input has been dealt with, and nothing else happened.
void Referee::Waits() {
    Expect();
    if (!log_.empty()) throw std::runtime_error("more happens than the rules say");
}

}  // namespace zarpel
