// What each window holds and where it stands: one table a window, in tests/ui/*.txt, a control a line.
//
//   Kind  left top width height (or x1 y1 x2 y2)  what it says  how it looks
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tools/play/table.h"
#include "ui/aboutboxfrm.h"
#include "ui/preferenciasfrm.h"
#include "ui/resultadosfrm.h"

namespace zarpel {
namespace {

class Description : public ControlVisitor {
  public:
    explicit Description(Form& form) {
        text_ << "Form " << Where(form) << Quoted(form.Caption) << Color(" on ", form.BackColor)
              << Word(" dialog", form.Border == FormBorder::FixedDialog)
              << Word(" centred", form.CenterOnScreen) << "\n";
        Inside(form);
        for (const Menu* const menu : form.Menus) {
            text_ << "Menu" << Quoted(menu->Caption);
            for (const Menu* const entry : menu->Entries) text_ << Quoted(entry->Caption);
            text_ << "\n";
        }
    }
    std::string Text() const { return text_.str(); }

    void Visit(Image& image) override {
        Begin("Image", image) << Quoted(image.Visible ? image.Picture.get() : "") << " corner "
                              << image.Corner << Word(" draggable", image.Draggable)
                              << Word(" covered", image.Cover != nullptr);
        const Speech speech = image.Visible && image.Spoken ? image.Spoken() : Speech{};
        End(image) << Quoted(speech.Name) << Quoted(speech.Description) << "\n";
    }
    void Visit(CheckBox& flag) override {
        Begin("CheckBox", flag) << " " << flag.Value;
        End(flag) << "\n";
    }
    void Visit(Label& label) override {
        const char* const sides[] = {"", " right", " centre"};
        Begin("Label", label) << Quoted(label.Caption) << " " << label.Font.get().Family << " "
                              << label.Font.get().Points << Word(" bold", label.Font.get().Bold)
                              << Color(", ", label.ForeColor)
                              << (label.Opaque ? Color(" on ", label.BackColor) : "")
                              << sides[static_cast<int>(label.Align.get())] << Word(" wraps", label.WordWrap)
                              << Word(" framed", label.Border)
                              << Word(" grows to " + std::to_string(label.MaxWidth), label.AutoSize)
                              << Word(" told", label.Announced);
        End(label) << Word(" called" + Quoted(label.SpokenAs), !label.SpokenAs.empty()) << "\n";
    }
    void Visit(Button& button) override {
        Begin("Button", button) << Quoted(button.Caption) << Word(" Enter", button.Default)
                                << Word(" Escape", button.Cancel);
        End(button) << "\n";
    }
    void Visit(Frame& frame) override {
        Begin("Frame", frame) << Quoted(frame.Caption) << Color(" on ", frame.BackColor)
                              << Word(" framed", frame.Border);
        End(frame) << " holds\n";
        Inside(frame);
    }
    void Visit(Line& line) override {
        Begin("Line", line) << " " << line.X1 << " " << line.Y1 << " " << line.X2 << " " << line.Y2
                            << Color(", ", line.BorderColor) << "\n";
    }
    void Visit(ToolBar& bar) override {
        Begin("ToolBar", bar) << " buttons " << bar.ButtonWidth << " " << bar.ButtonHeight;
        for (const ToolButton& button : bar.Buttons) {
            text_ << ", " << button.Key << Quoted(button.Caption) << Quoted(button.ToolTip)
                  << Quoted(button.Picture);
        }
        End(bar) << "\n";
    }
    void Visit(StatusBar& bar) override {
        const char* const contents[] = {"", " date", " time"};
        Begin("StatusBar", bar);
        for (const StatusBar::Panel& panel : bar.Panels) {
            text_ << ", " << panel.Width << Quoted(panel.Text) << contents[static_cast<int>(panel.Holds)];
        }
        End(bar) << "\n";
    }
    void Visit(TabStrip& tabs) override {
        Begin("TabStrip", tabs);
        for (const TabStrip::Tab& tab : tabs.Tabs) text_ << Quoted(tab.Caption) << Quoted(tab.ToolTip);
        End(tabs) << "\n";
    }

  private:
    static std::string Quoted(const std::string& text) { return " \"" + text + "\""; }
    static std::string Word(const std::string& word, bool holds) { return holds ? word : ""; }
    static std::string Color(const std::string& before, ColorCode code) {
        std::ostringstream text;
        text << before << std::hex << code;
        return text.str();
    }
    static std::string Where(const Control& at) {
        std::ostringstream text;
        text << at.Left << " " << at.Top << " " << at.Width << " " << at.Height;
        return text.str();
    }

    void Inside(Container& container) {
        indent_ += "  ";
        for (Control* const child : container.Children) child->Accept(*this);
        indent_.resize(indent_.size() - 2);
    }
    std::ostream& Begin(const char* kind, const Control& control) {
        text_ << indent_ << kind;
        if (control.Width > 0 || control.Height > 0) text_ << " " << Where(control);
        return text_;
    }
    std::ostream& End(const Control& control) {
        if (!control.ToolTip.get().empty()) text_ << " tip" << Quoted(control.ToolTip);
        return text_ << Word(" hidden", !control.Visible) << Word(" disabled", !control.Enabled);
    }

    std::ostringstream text_;
    std::string indent_;
};

void ExpectAsInTable(const char* name, Form& form) {
    const std::string path = std::string(WINDOW_TABLES) + "/" + name + ".txt",
                      text = Description(form).Text();
    std::ifstream file(path);
    const std::string table{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(table, text) << "when that is meant, take the new table from the folder where the test ran";
    if (table != text) std::ofstream(std::string(name) + ".txt") << text;
}

TEST(Windows, HoldWhatTheirTablesSay) {
    Table table;
    table.Lay({3, 15, 0, 0, 0, 0, 0, 40}, {0, 27}, {20});
    table.Window.CheckMesa[7].Value = 1;
    ExpectAsInTable("playing", table.Window);
    Resultadosfrm resultados(table.Desktop);
    ExpectAsInTable("resultados", resultados);
    preferenciasfrm opciones(table.Desktop, table.Window);
    ExpectAsInTable("opciones", opciones);
    Aboutboxfrm acerca(table.Desktop);
    ExpectAsInTable("acerca", acerca);
}

}  // namespace
}  // namespace zarpel
