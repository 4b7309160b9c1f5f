// All that the game asks of the desktop it runs on. This is the contract of a front end: whoever implements
// it, and draws the controls of controls.h and form.h, can run the game; nothing else of the game knows which
// desktop it has.
//
// How a front end starts: it makes its Desktop and one `Playing`, and calls `Playing::Load()` through the
// event gate of that window (event_gate.h), for the start is an event like any other. Only one `Playing` may
// live at a time: the records of the match are the program's own. Load() shows the window by Show(Form&),
// after all its controls and events are set; opening a saved match calls Load() again on the same, shown
// form, which then puts every control back to its design state. A front end that reads its input only when no
// handler runs, as from a terminal, has no need of a gate.
//
// Everything happens on one thread, and one event of a form at a time: the next is handed over when the
// handler has returned. Calls marked "blocks" return when the player has answered or the time is
// over; meanwhile windows keep painting. Texts are UTF-8. Paths are those of paths.h, and it is the
// implementation that finds the files.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>

#include "platform/form.h"

namespace zarpel {

enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxButtons { Ok, YesNo };
enum class Answer { Ok, Yes, No };
enum class FileUse { Reading, Writing };

struct Message {
    std::string Text;
    BoxIcon Icon = BoxIcon::None;
    std::string Title = {};  // empty: the application's title
    BoxButtons Buttons = BoxButtons::Ok;
    Answer Preselected = Answer::Yes;  // of a Yes/No box: the button that Enter presses

    bool operator==(const Message&) const = default;
};

class Desktop {
  public:
    virtual ~Desktop() = default;

    // --- The application ---

    // "Zarpel".
    virtual std::string Title() const = 0;
    // The folder that holds the executable, without a separator at its end. Never fails.
    virtual std::string Folder() const = 0;
    // The path of a file of the game's, by its name: the application folder, "\" and the name.
    std::string PathOf(const std::string& name) const { return Folder() + "\\" + name; }
    // Ends the program at once with this exit status: no handler goes on, no window is asked. Does not
    // return.
    [[noreturn]] void End(int status) {
        Leave(status);
        std::abort();
    }

    // --- Windows ---

    // Draws the form from now on and shows it; does nothing for one that is shown. When the first form shown
    // so is unloaded, the program ends as soon as its handler has returned.
    virtual void Show(Form& form) = 0;
    // Shows the form above all others, which take no input meanwhile. Blocks until the form is unloaded.
    virtual void ShowModal(Form& form) = 0;
    // Closes a shown form; the form object stays as it is. Does nothing for one that is not shown.
    virtual void Unload(Form& form) = 0;
    // Width and height of the screen in twips, for centring.
    virtual Place Screen() const = 0;

    // Tells what has happened to a player who cannot see it, once the event is over, and those that waited
    // for it, or when a modal form is shown meanwhile. Several texts are told as one.
    virtual void Announce(const std::string& text) = 0;

    // --- Boxes and choosers (all block) ---

    // Shows a box and gives the button pressed. Closing it otherwise counts as Ok, or as No where No is
    // preselected; where Yes is, only a button closes it. Keys and clicks that waited for the end of a pause
    // are dropped: they were meant for a table without the box's news.
    virtual Answer Show(const Message& message) = 0;
    // Asks for a line of text, which is `proposed` to begin with; gives the text typed, or an empty one when
    // cancelled. It takes no more letters than the label `shownBy` can show whole when its window is at its
    // smallest: only the desktop knows how wide they are.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& proposed, const Label& shownBy) = 0;
    // Ask for a file to open or to write (asking before one is replaced). True: the player chose one, and
    // `dialog.FileName` is its full path, as PathForTheGame (paths.h) writes it. False: cancelled, and
    // `dialog` is unchanged.
    virtual bool ShowOpen(ChooserState& dialog) = 0;
    virtual bool ShowSave(ChooserState& dialog) = 0;
    // Asks for a colour, beginning with `dialog.Color`. True: chosen, and stored there. False: cancelled.
    virtual bool ShowColor(ChooserState& dialog) = 0;

    // --- Files ---

    // For messages: where the file of this path is read, or written, as the system writes its paths.
    virtual std::string ShownPath(const std::string& path, FileUse use) const = 0;
    // Reads the picture file at `path` (BMP, JPEG, PNG), so that controls can show it under that path. False:
    // it is missing, unreadable or no picture. A file is decoded once; asking again costs nothing.
    virtual bool LoadPicture(const std::string& path) = 0;
    // The file's bytes, at most the first `limit`. Nothing: it does not exist, is not a regular file, or
    // cannot be read.
    virtual std::optional<std::string> ReadFile(const std::string& path, std::size_t limit) = 0;
    // Makes `bytes` the whole content of the file, or leaves everything as it was and gives false. At no
    // moment does a half-written file stand under that path, not even if the program is killed. False, too,
    // where something stands that is no file: a folder, a pipe, a device.
    virtual bool WriteFile(const std::string& path, const std::string& bytes) = 0;

    // --- Time and chance ---

    // Blocks for so many milliseconds. The player's input waits and arrives afterwards, in order.
    virtual void Pause(int milliseconds) = 0;
    // Seeds the random draws from the clock; called again within one clock tick it does not repeat draws.
    virtual void Randomize() = 0;
    // The next draw, uniform in [0, 1).
    virtual double Rnd() = 0;

    // --- Other programs ---

    // Opens the help file in a window that does not hold the game up. A missing or damaged file is that
    // window's affair.
    virtual void OpenHelp(const std::string& path) = 0;
    // Starts a program from a command line and does not wait for it. Errors are ignored.
    virtual void Run(const std::string& commandLine) = 0;

  protected:
    // What End does. It must not return; an implementation for tests may leave by an exception.
    virtual void Leave(int status) = 0;
};

}  // namespace zarpel
