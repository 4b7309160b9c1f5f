// The referee of random play: knows the rules by itself, and from each input works out all that the player
// must see until the game waits again. It calls nothing of the game.
//
// A game writes its log first: a moment for each pause, box and window, and one when the input has been dealt
// with. Then the referee is told of the input and compares moment by moment. Only what chance decides, the
// cards dealt and the first dealer, it takes from the log, after it has seen that the cards lay in the stock.
#pragma once

#include <algorithm>
#include <deque>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "tools/play/installation.h"
#include "tools/play/seen.h"

namespace zarpel {

struct Moment {
    std::vector<std::string> Told;  // since the last moment: captions, boxes with all they say, calls
    Seen Looks;
    bool Yes = true;  // the answer to a box that asks
};

// How often chance chose what: it must be fair over many matches.
struct Draws {
    int Dealers[2]{};
    int Cards[kPlaces][41]{};  // by place and card index, in first distributions
};

// A text with at most one "ñ", as the game's files hold it.
inline std::string InFile(const std::string& text) {
    const std::size_t at = text.find("ñ");
    return at == std::string::npos ? text : text.substr(0, at) + '\xF1' + text.substr(at + 2);
}

class Referee {
  public:
    // `name`: the nickname of the preferences.
    Referee(std::deque<Moment>& log, Draws& draws, const std::string& name)
        : log_(log), draws_(draws), preferred_(name) {}

    const Seen& Now() const { return now_; }
    // True: the player wants no other match, and the program has ended.
    bool Over() const { return over_; }

    // The places of a capture of the player, the card of the hand first; none when there is none.
    std::vector<int> Capture() const {
        for (int i = kHumanHand; i < kPlaces; ++i) {
            std::vector<int> places = {i};
            if (now_.Cards[i].Shown && Completes(places, 15 - NumberAt(i))) return places;
        }
        return {};
    }

    // --- The inputs. A fault of the game ends each with an exception that says what was expected ---

    void Starts() {
        Match();
        Waits();
    }
    void Key(int code, int shift) {
        static const std::string kKeys = "ASDFGHJK...123";  // by place
        const std::size_t place = code == '.' ? kKeys.npos : kKeys.find(static_cast<char>(code));
        if (code == 'L') return Takes();
        if (code == 112) told_.push_back("help C:\\Zarpel\\ayuda.chm");  // F1
        if (place == kKeys.npos) return Waits();
        if (place >= kHumanHand && shift == 1) return Drops(static_cast<int>(place));
        Clicks(static_cast<int>(place));
    }
    void Clicks(int place) {
        if (now_.Cards[place].Shown && (place < kCpuHand || place >= kHumanHand)) Touch(place);
        Waits();
    }
    void Takes() {
        Take(1);
        Waits();
    }
    void Drops(int handPlace) {
        Lay(handPlace);
        Waits();
    }
    void Moves(int y) {
        now_.BarShown = y >= 8055;
        Waits();
    }
    // `file`: what the game has written.
    void Saves(const std::string& file) {
        told_.push_back("write partida");
        Waits();
        if (file != File()) throw std::runtime_error("saved:\n" + file + "expected:\n" + File());
    }
    // With another nickname in the preferences. Beneath what is read, a fresh match begins; what the file
    // does not hold is that match's. A back may lie where no card is.
    void Reopens(const std::string& name) {
        Referee fresh(log_, draws_, name);
        preferred_ = name;
        fresh.Match();
        fresh.now_.Backs = Next().Looks.Backs;
        fresh.Expect("read partida");
        now_.Backs = Next().Looks.Backs;
        for (int i = 0; i < 3; ++i) now_.Backs[i] = now_.Backs[i] || now_.Cards[kCpuHand + i].Shown;
        for (Seen::Card& card : now_.Cards) card.Chosen = card.Raised = false;
        now_.Sum = 0;
        now_.Caption = fresh.now_.Caption;
        now_.SumShown = fresh.now_.SumShown;
        now_.ButtonOn = fresh.now_.ButtonOn;
        now_.BarShown = false;
        passes_ = fresh.passes_;
        Waits();
    }

  private:
    // --- What the game must do ---

    void Match() {
        now_.Name = preferred_;
        now_.Dealer = Next().Looks.Dealer;
        ++draws_.Dealers[now_.Dealer];
        for (const int who : {0, 1}) {
            now_.Score[who] = 0;
            now_.Points[who] = std::to_string(0);
        }
        Deal();
    }

    void Deal() {
        now_.First = true;
        now_.Dealt = now_.Zarpels[0] = now_.Zarpels[1] = 0;
        std::fill(now_.Owners.begin() + 1, now_.Owners.end(), "ninguno");
        for (int i = kCpuHand; i < kPlaces; ++i) now_.Cards[i].Shown = false;
        Turn();
    }

    void Turn() {
        Tidy();
        if (now_.First) {
            now_.Turn = now_.Dealer;
            Say(now_.Dealer == 0 ? "Reparte Cpu - Juega " + now_.Name
                                 : "Reparte " + now_.Name + " - Juega Cpu");
        }
        if (!Any(kCpuHand, kPlaces, &Seen::Card::Shown)) {
            if (now_.Dealt == 40) return Count();
            Distribution();
        }
        now_.Turn == 0 ? Human() : Computer();
    }

    void Tidy() {
        for (Seen::Card& card : now_.Cards) card.Chosen = card.Raised = false;
        for (int i = 0; i < 3; ++i) now_.Backs[i] = now_.Backs[i] && now_.Cards[kCpuHand + i].Shown;
        now_.Sum = 0;
        now_.SumText.clear();
    }

    void Distribution() {
        for (int i = now_.First ? 0 : kCpuHand; i < kPlaces; ++i) {
            now_.Cards[i].Shown = i < 4 || i >= kCpuHand;
            if (now_.Cards[i].Shown) Draw(i);
        }
        now_.Backs = {true, true, true};
        now_.First = false;
        passes_ = 0;
    }

    void Draw(int place) {
        const int index = Next().Looks.Cards[place].Index;
        if (index < 1 || now_.Owners[index] != "ninguno")
            throw std::runtime_error("dealt from where no stock is");
        now_.Cards[place].Index = index;
        Owner(place) = place < kCpuHand ? "lamesa" : kOwners[place >= kHumanHand];
        ++now_.Dealt;
        draws_.Cards[place][index] += now_.First;
    }

    void Human() {
        Say("Juega " + now_.Name);
        now_.Turn = 1;
        if (!Any(kHumanHand, kPlaces, &Seen::Card::Shown)) return Pass();
        if (!TableFull() || !Capture().empty()) return;
        Expect("box La mesa está llena y ninguna de sus cartas suma 15: pasa el turno, icon 4");
        Pass();
    }

    void Computer() {
        Say("Juega Cpu");
        now_.Turn = 0;
        if (!Any(kCpuHand, kHumanHand, &Seen::Card::Shown)) return Pass();
        const int place = Search();
        if (now_.Sum == 15) {
            Say("Me llevo estas cartas");
            now_.Backs[place - kCpuHand] = false;
            Expect("pause 1500");
            return Take(0);
        }
        const bool passes = TableFull();
        Say(passes ? "Paso" : "He Jugado una carta");
        Expect("pause 1500");
        passes ? Pass() : Lay(place);
    }

    // Chooses the first cards of the computer's walk that make 15. Gives the place in its hand.
    int Search() {
        int last = 0;
        for (int i = kCpuHand; i < kHumanHand; ++i) {
            Tidy();
            if (!now_.Cards[i].Shown) continue;
            last = i;
            for (int anchor = 0; anchor < kCpuHand; ++anchor) {
                Tidy();
                Touch(i);
                for (int k = now_.Cards[anchor].Shown ? anchor : kCpuHand; k < kCpuHand && now_.Sum < 15;
                     ++k) {
                    if (now_.Cards[k].Shown) Touch(k);
                }
                if (now_.Sum == 15) return i;
            }
        }
        return last;
    }

    void Touch(int place) {
        Seen::Card& card = now_.Cards[place];
        const bool ofHand = place >= kHumanHand;
        now_.SumShown = true;
        if (card.Chosen) {
            now_.Sum -= NumberAt(place);
            card.Chosen = card.Raised = false;
        } else if (ofHand && Any(kHumanHand, kPlaces, &Seen::Card::Chosen)) {
            Expect("box SELECCIONE SOLO UNA DE SUS CARTAS, icon 3");
        } else if (now_.Sum + NumberAt(place) <= 15) {
            now_.Sum += NumberAt(place);
            card.Chosen = now_.ButtonOn = true;
            card.Raised = place < kCpuHand || ofHand;
        } else if (now_.Turn == 1) {
            card.Raised = true;
            Expect("box La suma es mayor que 15, icon 4");
            card.Raised = false;
        }
        now_.SumText = std::to_string(now_.Sum);
    }

    void Lay(int handPlace) {
        if (!now_.Cards[handPlace].Shown || TableFull()) return;
        int place = 0;
        while (now_.Cards[place].Shown) ++place;
        now_.Cards[place] = {now_.Cards[handPlace].Index, true};
        now_.Cards[handPlace].Shown = false;
        Owner(place) = "lamesa";
        passes_ = 0;
        Turn();
    }

    void Take(int who) {
        if (now_.Sum != 15) return void(Expect("box Para Levantar debes sumar 15, icon 4"));
        if (who == 1 && !Any(kHumanHand, kPlaces, &Seen::Card::Chosen)) {
            return void(Expect("box Debes seleccionar una de tus cartas, icon 0"));
        }
        for (int i = 0; i < kPlaces; ++i) {
            if (!now_.Cards[i].Chosen) continue;
            now_.Cards[i].Shown = false;
            Owner(i) = kOwners[who];
        }
        if (!Any(0, kCpuHand, &Seen::Card::Shown)) {
            Expect("box ¡¡¡ZARPEL!!!, icon 3");
            ++now_.Zarpels[who];
        }
        now_.Last = kOwners[who];
        now_.ButtonOn = now_.SumShown = false;
        passes_ = 0;
        Turn();
    }

    void Pass() {
        if (++passes_ < 2) return Turn();
        Expect("box Ninguno de los dos puede jugar: se reparte de nuevo, icon 4");
        Deal();
    }

    void Count() {
        now_.Dealt = 0;
        now_.Dealer = 1 - now_.Dealer;
        Say("Esta es la ultima mano");
        Expect("pause 1500");
        for (int i = 0; i < kCpuHand; ++i) {
            if (now_.Cards[i].Shown) Owner(i) = now_.Last;
            now_.Cards[i].Shown = false;
        }
        int count[4][2] = {};  // cards, oros, sevens, velo
        for (int i = 1; i <= 40; ++i) {
            const int who = now_.Owners[i] == kOwners[0] ? 0 : 1;
            const bool oro = i > 20 && i <= 30, seven = Number(i) == 7;
            const bool counts[] = {true, oro, seven, oro && seven};
            for (int row = 0; row < 4; ++row) count[row][who] += counts[row];
        }
        std::ostringstream window;
        window << "modal Resultados: PLAYER CPU, " << now_.Name;
        const char* const headings[] = {"CARTAS", "OROS", "SIETES", "VELO"};
        for (int i = 0; i < 4; ++i)
            window << ", " << headings[i] << ", " << count[i][0] << ", " << count[i][1];
        window << ", ZARPEL, " << now_.Zarpels[0] << ", " << now_.Zarpels[1];
        Expect(window.str());
        for (const int who : {0, 1}) {
            for (const auto& row : count) now_.Score[who] += row[who] > row[1 - who];
            now_.Score[who] += now_.Zarpels[who];
            now_.Points[who] = std::to_string(now_.Score[who]);
        }
        std::max(now_.Score[0], now_.Score[1]) >= 15 ? Winner() : Deal();
    }

    void Winner() {
        const int ahead = now_.Score[0] - now_.Score[1];
        const std::string winner = ahead > 0 ? "CPU" : now_.Name;
        Expect(ahead == 0 ? "box JUEGO EMPATADO, icon 3" : "box GANADOR " + winner + ", icon 3, Final");
        if (Expect("box ¿Jugar de nuevo?, icon 2, Fin de Juego, Yes or No").Yes) return Match();
        over_ = true;
        told_.push_back("end 0");
    }

    // --- What lies where ---

    static int Number(int index) { return (index - 1) % 10 + 1; }
    int NumberAt(int place) const { return Number(now_.Cards[place].Index); }
    std::string& Owner(int place) { return now_.Owners[now_.Cards[place].Index]; }
    bool TableFull() const {
        return std::all_of(now_.Cards.begin(), now_.Cards.begin() + kCpuHand,
                           [](const Seen::Card& card) { return card.Shown; });
    }

    bool Any(int from, int to, bool Seen::Card::*is) const {
        return std::any_of(now_.Cards.begin() + from, now_.Cards.begin() + to,
                           [is](const Seen::Card& card) { return card.*is; });
    }

    // Adds places of table cards, from `from` on, that make `rest`.
    bool Completes(std::vector<int>& places, int rest, int from = 0) const {
        for (int i = from; i < kCpuHand && rest > 0; ++i) {
            if (!now_.Cards[i].Shown) continue;
            places.push_back(i);
            if (Completes(places, rest - NumberAt(i), i + 1)) return true;
            places.pop_back();
        }
        return rest == 0;
    }

    // The saved match.
    std::string File() const {
        std::ostringstream file;
        const auto text = [&](const std::string& value) { file << '"' << value << "\"\r\n"; };
        const auto flag = [&](bool value) { file << (value ? "#TRUE#\r\n" : "#FALSE#\r\n"); };
        const auto card = [&](int at) {
            text(now_.Cards[at].Index == 0 ? "" : std::to_string(now_.Cards[at].Index));
        };
        for (const std::string& caption : {now_.Points[0], now_.Points[1], now_.SumText}) text(caption);
        for (int i = 0; i < kCpuHand; ++i) {
            if (i < 3) {
                for (const int hand : {kCpuHand, kHumanHand}) card(hand + i);
                for (const int hand : {kCpuHand, kHumanHand}) flag(now_.Cards[hand + i].Shown);
            }
            card(i);
            flag(now_.Cards[i].Shown);
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
            text(now_.Owners[i]);
            text(CardPicture(i));
            file << Number(i) << "\r\n";
            text(suits[(i - 1) / 10]);
        }
        return file.str();
    }

    // --- The log ---

    const Moment& Next() const {
        if (log_.empty()) throw std::runtime_error("nothing more happens");
        return log_.front();
    }

    void Say(const std::string& caption) {
        if (now_.Caption != caption) told_.push_back(caption);
        now_.Caption = caption;
    }

    Moment Expect(const std::string& what = {}) {
        if (!what.empty()) told_.push_back(what);
        const Moment expected{std::exchange(told_, {}), now_};
        Moment moment = Next();
        log_.pop_front();
        if (moment.Told == expected.Told && moment.Looks == now_) return moment;
        std::ostringstream report;
        for (const Moment* const at : {&expected, &std::as_const(moment)}) {
            report << (at == &expected ? "there must be\n" : "but there is\n");
            for (const std::string& text : at->Told) report << "  " << text << "\n";
            report << at->Looks;
        }
        throw std::runtime_error(report.str());
    }

    // The input has been dealt with, and nothing else happened.
    void Waits() {
        Expect();
        if (!log_.empty()) throw std::runtime_error("more happens than the rules say");
    }

    static inline const std::string kOwners[] = {"player1", "player2"};

    std::deque<Moment>& log_;
    Draws& draws_;
    Seen now_;
    std::string preferred_;
    std::vector<std::string> told_;
    int passes_ = 0;
    bool over_ = false;
};

}  // namespace zarpel
