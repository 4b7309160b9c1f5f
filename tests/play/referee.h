// The referee of random play: knows the rules by itself, and from each input works out all that the player
// must see until the game waits again. It calls nothing of the game.
//
// A game writes its log first: a moment for each pause, box and window, and one when the input has been dealt
// with. Then the referee is told of the input and compares moment by moment. Only what chance decides, the
// cards dealt and the first dealer, it takes from the log, after it has seen that the cards lay in the stock.
#pragma once

#include <array>
#include <deque>
#include <string>
#include <vector>

#include "tests/play/seen.h"

namespace zarpel {

struct Moment {
    std::vector<std::string> Told;  // since the last moment: captions, boxes with all they say, calls
    Seen Looks;
    bool Yes = true;  // the answer to a box that asks
};

// How often chance chose what: it must be fair over many matches.
struct Draws {
    std::array<int, 2> Dealers{};
    std::array<std::array<int, 41>, kPlaces> Cards{};  // by place and card index, in first distributions
};

// A text with at most one "ñ", as the game's files hold it.
std::string InFile(const std::string& text);

class Referee {
  public:
    // `name`: the nickname of the preferences.
    Referee(std::deque<Moment>& log, Draws& draws, const std::string& name);

    // The inputs. A fault of the game ends each with an exception that says what was expected.
    void Starts();
    void Key(int code, int shift);
    void Clicks(int place);
    void Takes();  // the button
    void Drops(int handPlace);
    void Moves(int y);
    void Saves(const std::string& file);    // with what the game has written
    void Reopens(const std::string& name);  // with this nickname in the preferences

    const Seen& Now() const { return now_; }
    // The places of a capture of the player, the card of the hand first; none when there is none.
    std::vector<int> Capture() const;
    // True: the player wants no other match, and the program has ended.
    bool Over() const { return over_; }

  private:
    static int Number(int index) { return (index - 1) % 10 + 1; }
    int NumberAt(int place) const { return Number(At(place).Index); }
    Seen::Card& At(int place) { return now_.Cards.at(static_cast<std::size_t>(place)); }
    const Seen::Card& At(int place) const { return now_.Cards.at(static_cast<std::size_t>(place)); }
    std::string& Owner(int place) { return now_.Owners.at(static_cast<std::size_t>(At(place).Index)); }
    bool Any(int from, int to, bool Seen::Card::*is) const;
    bool TableFull() const;

    void Say(const std::string& caption);
    Moment Expect(const std::string& what = {});
    void Waits();
    void Match();
    void Deal();
    void Distribution();
    void Draw(int place);
    void Turn();
    void Tidy();
    void Touch(int place);
    void Lay(int handPlace);
    void Take(int who);
    void Pass();
    void Human();
    void Computer();
    int Search();
    void Count();
    void Winner();
    std::string File() const;

    std::deque<Moment>& log_;
    Draws& draws_;
    Seen now_;
    std::string preferred_;
    std::vector<std::string> told_;
    int passes_ = 0;
    bool over_ = false;
};

}  // namespace zarpel
