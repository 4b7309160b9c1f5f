// The desktop on Qt Widgets.
#pragma once

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/event_gate.h"
#include "qt/form_window.h"
#include "qt/pictures.h"
#include "qt/scale.h"
#include "qt/scaled_style.h"

namespace zarpel {

class HelpWindow;

class QtDesktop : public Desktop {
  public:
    // `folder` is the application folder, `title` the application's. Needs a QApplication, which it gives the
    // game's look.
    QtDesktop(std::string folder, std::string title);
    ~QtDesktop() override;

    // Runs a handler of the form as one of its events: alone, after those before it.
    void Pass(Form& form, std::function<void()> handler) { GateOf(form).Pass(std::move(handler)); }

    std::string Title() const override { return title_; }
    std::string Folder() const override { return folder_; }
    void Show(Form& form) override;
    void ShowModal(Form& form) override;
    void Unload(Form& form) override;
    Place Screen() const override;
    Answer Show(const Message& message) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& proposed) override;
    bool ShowOpen(ChooserState& dialog) override;
    bool ShowSave(ChooserState& dialog) override;
    bool ShowColor(ChooserState& dialog) override;
    bool LoadPicture(const std::string& path) override { return pictures_.Load(path); }
    std::optional<std::string> ReadFile(const std::string& path, std::size_t limit) override;
    bool WriteFile(const std::string& path, const std::string& bytes) override;
    void Pause(int milliseconds) override;
    void Randomize() override;
    double Rnd() override;
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
    QWidget* TopWindow() const;

    std::string folder_, title_;
    ScaledStyle* style_;  // the application's, which owns it
    TableScale scale_;
    PictureStore pictures_;
    std::map<const Form*, EventGate> gates_;
    std::vector<Opened> opened_;        // the lowest first
    std::unique_ptr<HelpWindow> help_;  // made when the player first asks for it
    std::mt19937_64 generator_;
};

}  // namespace zarpel
