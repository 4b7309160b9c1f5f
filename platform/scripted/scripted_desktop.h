// A desktop without a screen, on which tests, random play and fuzzing run: answers are prepared beforehand,
// boxes and pauses are recorded instead of shown and waited, files live in memory, and the random draws
// repeat with their seed. The game cannot tell it from a real one.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/desktop.h"

namespace zarpel {

class ScriptedDesktop : public Desktop {
  public:
    // What End throws here, to unwind to whoever drives the game.
    struct Ended {};

    // `seed` begins the random draws. There are no files.
    explicit ScriptedDesktop(unsigned seed = 1) : generator_(seed) {}

    // From here on the draws are those of this seed.
    void Seed(unsigned seed) { generator_.seed(seed); }

    // --- Prepared beforehand ---
    std::map<std::string, std::string> Files;      // by full path; .png and .jpg are pictures
    std::deque<Answer> Answers;                    // for Yes/No boxes, in order; then Yes
    std::deque<std::string> Typed;                 // for input boxes; then cancelled
    std::deque<std::string> Chosen;                // for file choosers, "" is a cancel; then cancelled
    std::deque<std::optional<ColorCode>> Colors;   // for colour choosers; then cancelled
    std::deque<std::function<void(Form&)>> Modal;  // what the player does in modal windows; then closes them
    std::deque<double> Draws;                      // the next random draws; then the generator's
    std::function<void()> OnPause = [] {};         // what happens during a pause
    std::function<void(const Message&)> OnBox = [](const Message&) {};  // while a box is open
    bool WritesFail = false;

    // --- Recorded ---
    std::vector<Message> Boxes;
    std::vector<std::string> Calls;  // everything asked of the desktop that the player sees, in order
    std::vector<std::string> Announced;
    std::set<Form*> Shown;

    // The texts of the boxes since the last call of this function.
    std::vector<std::string> TakeBoxTexts() {
        std::vector<std::string> texts;
        for (const Message& message : std::exchange(Boxes, {})) texts.push_back(message.Text);
        return texts;
    }
    std::vector<std::string> TakeCalls() { return std::exchange(Calls, {}); }

    std::string Title() const override { return "Zarpel"; }
    std::string Folder() const override { return "C:\\Zarpel"; }
    Place Screen() const override { return {0, 0, 28800, 16200}; }
    void Show(Form& form) override { Shown.insert(&form); }
    void ShowModal(Form& form) override {
        Calls.push_back("modal " + form.Caption.get());
        Show(form);
        Take(Modal, [](Form&) {})(form);
        if (Shown.contains(&form)) form.Form_QueryClose();
    }
    void Unload(Form& form) override { Shown.erase(&form); }
    void Announce(const std::string& text) override { Announced.push_back(text); }
    Answer Show(const Message& message) override {
        Calls.push_back("box " + message.Text);
        Boxes.push_back(message);
        OnBox(message);
        return message.Buttons == BoxButtons::Ok ? Answer::Ok : Take(Answers, Answer::Yes);
    }
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& proposed,
                         const Label& shownBy) override {
        Calls.push_back("input " + prompt + "|" + title + "|" + proposed + "|" +
                        std::to_string(shownBy.MaxWidth));
        return Take(Typed, {});
    }
    bool ShowOpen(ChooserState& dialog) override { return Choose("open", dialog); }
    bool ShowSave(ChooserState& dialog) override { return Choose("save", dialog); }
    bool ShowColor(ChooserState& dialog) override {
        Calls.push_back("color " + std::to_string(dialog.Color));
        const auto color = Take(Colors, {});
        dialog.Color = color.value_or(dialog.Color);
        return color.has_value();
    }
    std::string ShownPath(const std::string& path, FileUse /*use*/) const override { return path; }
    bool LoadPicture(const std::string& path) override {
        return Files.contains(path) && (path.ends_with(".png") || path.ends_with(".jpg"));
    }
    std::optional<std::string> ReadFile(const std::string& path, std::size_t limit) override {
        if (!Files.contains(path)) return std::nullopt;
        return Files[path].substr(0, limit);
    }
    bool WriteFile(const std::string& path, const std::string& bytes) override {
        Calls.push_back("write " + path);
        if (!WritesFail) Files[path] = bytes;
        return !WritesFail;
    }
    void Pause(int milliseconds) override {
        Calls.push_back("pause " + std::to_string(milliseconds));
        OnPause();
    }
    void Randomize() override {}
    double Rnd() override {
        if (!Draws.empty()) return Take(Draws, 0.0);
        return std::uniform_real_distribution(0.0, 1.0)(generator_);
    }
    void OpenHelp(const std::string& path) override { Calls.push_back("help " + path); }
    void Run(const std::string& commandLine) override { Calls.push_back("run " + commandLine); }

  protected:
    void Leave(int status) override {
        Calls.push_back("end " + std::to_string(status));
        throw Ended();
    }

  private:
    // The next prepared answer, or `otherwise` when none is left.
    template <class T>
    static T Take(std::deque<T>& prepared, std::type_identity_t<T> otherwise) {
        if (prepared.empty()) return otherwise;
        T next = std::move(prepared.front());
        prepared.pop_front();
        return next;
    }
    bool Choose(const std::string& how, ChooserState& dialog) {
        Calls.push_back(how + " " + dialog.Filter + " " + dialog.FileName);
        const std::string name = Take(Chosen, {});
        if (!name.empty()) dialog.FileName = name;
        return !name.empty();
    }

    std::mt19937 generator_;
};

}  // namespace zarpel
