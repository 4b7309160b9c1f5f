// A desktop for tests: answers are prepared beforehand, boxes and pauses are recorded instead of shown and
// waited, files live in memory, and the random draws repeat with their seed. The game cannot tell it from a
// real one.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "platform/desktop.h"

namespace zarpel {

class ScriptedDesktop : public Desktop {
  public:
    // What End throws here, to unwind to the test.
    struct Ended {
        int Status;
    };

    static constexpr const char* kFolder = "C:\\Zarpel";

    // With a full installation in `Files`: card list, card pictures, card back, both preference files.
    explicit ScriptedDesktop(unsigned seed = 1);

    // From here on the draws are those of this seed.
    void Seed(unsigned seed) { generator_.seed(seed); }

    // --- Prepared by the test ---
    std::map<std::string, std::string>
        Files;                       // by full path; a picture is any file whose name ends in .png or .jpg
    std::deque<Answer> Answers;      // for Yes/No boxes, in order; then Yes
    std::deque<std::string> Typed;   // for input boxes; then cancelled
    std::deque<std::string> Chosen;  // for file choosers, "" is a cancel; then cancelled
    std::deque<std::optional<ColorCode>> Colors;   // for colour choosers; then cancelled
    std::deque<std::function<void(Form&)>> Modal;  // what the player does in modal windows; then closes them
    std::deque<double> Draws;                      // the next random draws; then the generator's
    std::function<void()> OnPause = [] {};         // what happens during a pause
    std::function<void(const Message&)> OnBox = [](const Message&) {};  // while a box is open
    bool WritesFail = false;

    // --- Recorded ---
    std::vector<Message> Boxes;
    std::vector<int> Pauses;         // milliseconds
    std::vector<std::string> Calls;  // everything asked of the desktop that the player sees, in order
    std::vector<Form*> Shown;        // the lowest first
    int DrawCount = 0;

    // The texts of the boxes since the last call of this function.
    std::vector<std::string> TakeBoxTexts();
    std::vector<std::string> TakeCalls();

    std::string Title() const override { return "Zarpel"; }
    std::string Folder() const override { return kFolder; }
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void Unload(Form& form) override;
    Place Screen() const override { return {0, 0, 28800, 16200}; }
    Answer Show(const Message& message) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& proposed) override;
    bool ShowOpen(CommonDialog& dialog) override { return Choose("open", dialog); }
    bool ShowSave(CommonDialog& dialog) override { return Choose("save", dialog); }
    bool ShowColor(CommonDialog& dialog) override;
    bool LoadPicture(const std::string& path) override;
    std::optional<std::string> ReadFile(const std::string& path, std::size_t limit) override;
    bool WriteFile(const std::string& path, const std::string& bytes) override;
    void Pause(int milliseconds) override;
    void Randomize() override {}
    double Rnd() override;
    void OpenHelp(const std::string& path) override { Calls.push_back("help " + path); }
    void Run(const std::string& commandLine) override { Calls.push_back("run " + commandLine); }

  protected:
    void Leave(int status) override;

  private:
    bool Choose(const std::string& how, CommonDialog& dialog);
    bool IsShown(const Form& form) const;

    std::mt19937 generator_;
};

// The installation's files, as a new ScriptedDesktop has them.
std::string PathOf(const std::string& name);
std::string CardPicture(int carta);

}  // namespace zarpel
