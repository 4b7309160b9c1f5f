// random_play [matches] [first seed]: plays that many whole matches at random, one a seed, before a referee,
// and prints how often each caption and box was shown. A fault is printed with its seed; "random_play 1 SEED"
// plays that match again.
//
// The player does anything that a hand can do at the table, sensible or not, and now and then saves the match
// and opens it again.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>
#include <stdexcept>
#include <utility>

#include "tests/play/referee.h"
#include "tools/play/installation.h"

namespace zarpel {
namespace {

constexpr int kMostEvents = 200000;        // far more than the longest row of matches needs
constexpr int kMatchesThatShowAll = 1000;  // so many must have shown everything that can happen

const std::string kMatch = "partida";  // file of the saved match
const std::string kName = "Añil";      // nickname of the preferences

std::map<std::string, int> shown;  // what was told: how often
Draws draws;

std::string Describe(const Message& box) {
    std::string text = box.Text + ", icon " + std::to_string(static_cast<int>(box.Icon));
    if (!box.Title.empty()) text += ", " + box.Title;
    if (box.Buttons == BoxButtons::YesNo)
        text += box.Preselected == Answer::Yes ? ", Yes or No" : ", No or Yes";
    return text;
}

// The texts of a window as they are read: row by row, from left to right.
std::string TextsOf(Container& container) {
    std::map<std::pair<int, int>, std::string> texts;
    for (Control* const child : container.Children) {
        if (auto* const area = dynamic_cast<Frame*>(child)) return TextsOf(*area);
        const auto* const label = dynamic_cast<Label*>(child);
        if (label != nullptr && label->Visible) texts[{label->Top, label->Left}] = label->Caption;
    }
    std::string all;
    for (const auto& [place, text] : texts) all += (all.empty() ? ": " : ", ") + text;
    return all;
}

// Stops to look before a saved match is read: what lies beneath it by then is gone afterwards.
class Installation : public InstalledDesktop {
  public:
    using InstalledDesktop::InstalledDesktop;
    std::optional<std::string> ReadFile(const std::string& path, std::size_t limit) override {
        if (path == kMatch) {
            Calls.push_back("read " + path);
            OnPause();
        }
        return InstalledDesktop::ReadFile(path, limit);
    }
};

class RandomMatch {
  public:
    explicit RandomMatch(unsigned seed) : desktop_(seed), random_(seed) {
        Prefer(kName);
        desktop_.OnPause = [this] { Note(); };
        desktop_.OnBox = [this](const Message& box) {
            desktop_.Calls.back() = "box " + Describe(box);
            Note();
            log_.back().Yes = Chance(50);
            desktop_.Answers = {log_.back().Yes ? Answer::Yes : Answer::No};
        };
        window_.cartellbl.Changed = [this] {
            const std::string& caption = window_.cartellbl.Caption;
            if (!caption.empty() && caption != caption_) desktop_.Calls.push_back(caption);
            caption_ = caption;
        };
    }

    void Play() {
        Do([this] { window_.Load(); }, &Referee::Starts);
        for (int i = 0; !ended_; ++i) {
            if (i == kMostEvents) throw std::runtime_error("the match does not end");
            if (Chance(1)) SaveAndReopen();
            const std::vector<int> capture = referee_.Capture();
            if (!Chance(60)) {
                ActAtRandom();
            } else if (!capture.empty() && Chance(sense_)) {
                for (int place = 0; place < kPlaces; ++place) {
                    if (referee_.Now().Cards.at(place).Chosen) Click(place);
                }
                for (const int place : capture) Click(place);
                Press('L', 0);
            } else {
                Press('1' + Below(3), 1);
            }
        }
        if (ended_ != referee_.Over()) throw std::runtime_error("the program ended in the middle of a match");
    }

  private:
    int Below(int n) { return static_cast<int>(random_() % static_cast<unsigned>(n)); }
    bool Chance(int percent) { return Below(100) < percent; }

    void Note() {
        log_.push_back({desktop_.TakeCalls(), See(window_, desktop_.Shown.contains(&window_))});
        for (const std::string& told : log_.back().Told) ++shown[told];
    }

    // Lets the game have an input, and the referee judge what came of it.
    template <class Input, class... Takes, class... Values>
    void Do(Input input, void (Referee::*judge)(Takes...), Values... values) {
        desktop_.Modal = {[this](Form& form) {
            desktop_.Calls.back() += TextsOf(form);
            Note();
            for (Control* const child : form.Children) {
                if (auto* const button = dynamic_cast<Button*>(child)) button->Click();
            }
            if (desktop_.Shown.contains(&form))
                throw std::runtime_error("the button does not close the window");
        }};
        try {
            input();
        } catch (const ScriptedDesktop::Ended&) {
            ended_ = true;
        }
        Note();
        (referee_.*judge)(values...);
    }

    void Press(int key, int shift) {
        Do([&] { window_.Form_KeyDown(key, shift); }, &Referee::Key, key, shift);
    }
    void Click(int place) {
        const int i = place;
        Image& image = place < kCpuHand     ? window_.mesaimg[i]
                       : place < kHumanHand ? window_.cartap1img[i - kCpuHand]
                                            : window_.cartap2img[i - kHumanHand];
        Do([&] { image.Click ? image.Click() : void(); }, &Referee::Clicks, place);
    }

    void ActAtRandom() {
        const int hand = Below(3), y = Below(9000);
        switch (Below(10)) {
            case 0:
                return Press(Below(256), Below(8));
            case 1:
                return Do([&] { window_.Form_MouseMove(0, y); }, &Referee::Moves, y);
            case 2:
                return Do([&] { window_.Frame1.DragDrop(window_.cartap2img.at(hand)); }, &Referee::Drops,
                          kHumanHand + hand);
            case 3:
                return Do([&] { window_.LevantarBtn.Click(); }, &Referee::Takes);
            case 4:
                return Click(Below(kPlaces));
            default:
                return Press("123ASDFGHJKL"[Below(12)], Below(8));
        }
    }

    void SaveAndReopen() {
        window_.GuardaJuego(kMatch);
        Note();
        referee_.Saves(desktop_.Files[kMatch]);
        if (Chance(50)) return;
        const std::string other = "Luz";
        Prefer(other);
        Do([&] { window_.CargarJuego(kMatch); }, &Referee::Reopens, other);
    }

    void Prefer(const std::string& name) {
        std::string& preferences = desktop_.Files[PathOf("lastprop.dat")];
        preferences.replace(0, preferences.find('\r'), '"' + InFile(name) + '"');
    }

    Installation desktop_;
    Playing window_{desktop_};
    std::mt19937 random_;
    std::string caption_;
    std::deque<Moment> log_;
    Referee referee_{log_, draws, kName};
    const int sense_ = Chance(50) ? 100 : Below(5) * 25;  // percent of the captures that it takes
    bool ended_ = false;
};

// Chance is fair when no count is further from its mean than five times its spread.
bool Fair(int count, int all, double share) {
    return std::abs(count - all * share) <= 5 * std::sqrt(all * share * (1 - share));
}

void RequireFairDraws() {
    const int matches = draws.Dealers[0] + draws.Dealers[1];
    bool fair = Fair(draws.Dealers[0], matches, 0.5);
    for (const auto& counts : draws.Cards) {
        int all = 0;
        for (const int count : counts) all += count;
        for (int i = 1; i <= 40; ++i) fair &= Fair(counts[i], all, 1 / 40.0);
    }
    if (!fair) throw std::runtime_error("the draws are not fair");
}

void RequireShown(const char* text) {
    for (const auto& [told, times] : shown) {
        if (told.find(text) != std::string::npos) return;
    }
    throw std::runtime_error(std::string("never shown: ") + text);
}

}  // namespace
}  // namespace zarpel

int main(int argc, char** argv) {
    using namespace zarpel;
    const int matches = argc > 1 ? std::atoi(argv[1]) : 1000;
    const int first = argc > 2 ? std::atoi(argv[2]) : 1;
    int seed = first;
    try {
        for (; seed < first + matches; ++seed) RandomMatch(static_cast<unsigned>(seed)).Play();
        RequireFairDraws();
        for (const auto& [told, times] : shown) std::printf("%8d  %s\n", times, told.c_str());
        for (const char* text : {"ZARPEL!!!", "Paso", "JUEGO EMPATADO", "La mesa está llena", "Ninguno de"}) {
            if (matches >= kMatchesThatShowAll) RequireShown(text);
        }
    } catch (const std::exception& fault) {
        std::printf("seed %d: %s\nplay it again with: random_play 1 %d\n", seed, fault.what(), seed);
        return 1;
    }
}
