// The desktop on Qt Widgets.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/draws.h"
#include "platform/event_gate.h"
#include "qt/form_window.h"
#include "qt/game_paths.h"
#include "qt/pictures.h"
#include "qt/scale.h"
#include "qt/scaled_style.h"
#include "qt/stray_input.h"

namespace zarpel {

class HelpWindow;

class QtDesktop : public Desktop {
  public:
    // `folder` is the application folder, in the system's own bytes, `title` the application's title. Needs a
    // QApplication, which it gives the game's look.
    QtDesktop(const std::string& folder, std::string title);
    ~QtDesktop() override;

    // Runs a handler of the form as one of its events: alone, after those before it.
    void Pass(Form& form, std::function<void()> handler) { GateOf(form).Pass(std::move(handler)); }

    // What the game is to call a file of the system's.
    std::string PathForTheGame(const QString& file) const { return paths_.ForTheGame(file); }

    std::string Title() const override { return title_; }
    std::string Folder() const override { return paths_.Folder(); }
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void Unload(Form& form) override;
    Place Screen() const override;
    void Announce(const std::string& text) override;
    Answer Show(const Message& message) override;
    std::string InputBox(const std::string& prompt, const std::string& title, const std::string& proposed,
                         const Label& shownBy) override;
    bool ShowOpen(ChooserState& dialog) override;
    bool ShowSave(ChooserState& dialog) override;
    bool ShowColor(ChooserState& dialog) override;
    std::string ShownPath(const std::string& path, FileUse use) const override {
        return paths_.ShownPath(path, use);
    }
    bool LoadPicture(const std::string& path) override { return pictures_.Load(path); }
    std::optional<std::string> ReadFile(const std::string& path, std::size_t limit) override;
    bool WriteFile(const std::string& path, const std::string& bytes) override;
    void Pause(int milliseconds) override;
    void Randomize() override { draws_.Randomize(); }
    double Rnd() override { return draws_.Next(); }
    void OpenHelp(const std::string& path) override;
    void Run(const std::string& commandLine) override;

    // The window that shows the form, or null.
    FormWindow* WindowOf(const Form& form) const;

  protected:
    [[noreturn]] void Leave(int status) override;

  private:
    // A form that is shown, with what belongs to its window.
    struct Opened {
        Form* Shown;
        std::unique_ptr<FormWindow> Window;
        std::function<void()> Unloaded;
    };

    EventGate& GateOf(const Form& form) { return gates_[&form]; }
    FormWindow& Open(Form& form, std::function<void()> unloaded);
    // Destroys the form's window and what belongs to it.
    void Forget(const Form& form);
    void ShowMaximised(FormWindow& window);
    void Fit(FormWindow& window);
    // The scale at which a form of this size fits into a client area of that.
    void UseScale(const QSize& form, const QSize& client);
    // Gives the toolkit's own parts the game's look.
    void UseLook();
    FormWindow* TopWindow() const;
    // Where boxes stand now, and choosers, which are larger.
    Site BoxSite() const;
    Site ChooserSite() const;
    // Says what was announced, in the window above all others.
    void TellNews();

    GamePaths paths_;
    std::string title_;
    ScaledStyle* style_;  // the application's, which owns it
    StrayInput stray_;
    TableScale scale_;
    PictureStore pictures_{paths_};
    std::map<const Form*, EventGate> gates_;
    std::vector<Opened> opened_;        // the lowest first
    QString news_;                      // announced, and not told yet
    std::unique_ptr<HelpWindow> help_;  // made when the player first asks for it
    Draws draws_;
};

}  // namespace zarpel
