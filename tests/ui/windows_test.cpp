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

template <class... Part>
std::string Text(const Part&... parts) {
    std::ostringstream text;
    (text << ... << parts);
    return text.str();
}
std::string Quoted(const std::string& text) { return " \"" + text + "\""; }
std::string If(bool holds, const std::string& text) { return holds ? text : ""; }
std::string Color(ColorCode code) { return Text(std::hex, code); }
std::string At(const Control& c) { return Text(" ", c.Left, " ", c.Top, " ", c.Width, " ", c.Height); }

class Description : public ControlVisitor {
  public:
    explicit Description(Form& form) {
        Add("Form", form,
            Text(Quoted(form.Caption), " on ", Color(form.BackColor),
                 If(form.Border == FormBorder::FixedDialog, " dialog"), If(form.CenterOnScreen, " centred"),
                 If(form.BoxArea.Height > 0, Text(" boxes in ", form.BoxArea.Left, " ", form.BoxArea.Top, " ",
                                                  form.BoxArea.Width, " ", form.BoxArea.Height))));
        Inside(form);
        for (const Menu* const menu : form.Menus) {
            text_ += "Menu" + Quoted(menu->Caption);
            for (const Menu* const entry : menu->Entries) text_ += Quoted(entry->Caption);
            text_ += "\n";
        }
    }
    std::string All() const { return text_; }

    void Visit(Image& c) override {
        const Speech speech = c.Visible && c.Spoken ? c.Spoken() : Speech{};
        Add("Image", c,
            Text(If(c.Visible, Quoted(c.Picture)), " corner ", c.Corner, If(c.Draggable, " draggable"),
                 If(c.Cover != nullptr, " covered"), Quoted(speech.Name),
                 If(speech.Selected.has_value(), " can be selected"),
                 If(speech.Selected.value_or(false), ", and is")));
    }
    void Visit(CheckBox& c) override { Add("CheckBox", c, Text(" ", c.Value)); }
    void Visit(Label& c) override {
        const FontSpec& font = c.Font;
        const char* const sides[] = {"", " right", " centre"};
        Add("Label", c,
            Text(Quoted(c.Caption), " ", font.Family, " ", font.Points, If(font.Bold, " bold"), ", ",
                 Color(c.ForeColor), If(c.Opaque, " on " + Color(c.BackColor)),
                 sides[static_cast<int>(c.Align.get())], If(c.WordWrap, " wraps"), If(c.Border, " framed"),
                 If(c.IsPath, " a path"), If(c.AutoSize, Text(" grows to ", c.MaxWidth)),
                 If(!c.SpokenAs.empty(), " called" + Quoted(c.SpokenAs))));
    }
    void Visit(Button& c) override {
        Add("Button", c, Quoted(c.Caption) + If(c.Default, " Enter") + If(c.Cancel, " Escape"));
    }
    void Visit(Frame& c) override {
        Add("Frame", c,
            Text(Quoted(c.Caption), " on ", Color(c.BackColor), If(c.Border, " framed"), " holds"));
        Inside(c);
    }
    void Visit(Line& c) override {
        Add("Line", c, Text(" ", c.X1, " ", c.Y1, " ", c.X2, " ", c.Y2, ", ", Color(c.BorderColor)));
    }
    void Visit(ToolBar& c) override {
        std::string buttons = Text(" buttons ", c.ButtonWidth, " ", c.ButtonHeight);
        for (const ToolButton& button : c.Buttons) {
            buttons +=
                ", " + button.Key + Quoted(button.Caption) + Quoted(button.ToolTip) + Quoted(button.Picture);
        }
        Add("ToolBar", c, buttons);
    }
    void Visit(StatusBar& c) override {
        std::string panels;
        for (const auto& panel : c.Panels) {
            panels += Text(", ", panel.Width, Quoted(panel.Text), " ", static_cast<int>(panel.Holds));
        }
        Add("StatusBar", c, panels);
    }
    void Visit(TabStrip& c) override {
        for (const TabStrip::Tab& tab : c.Tabs) Add("TabStrip", c, Quoted(tab.Caption) + Quoted(tab.ToolTip));
    }

  private:
    void Inside(Container& container) {
        indent_ += "  ";
        for (Control* const child : container.Children) child->Accept(*this);
        indent_.resize(indent_.size() - 2);
    }
    void Add(const char* kind, const Control& c, const std::string& rest) {
        text_ += indent_ + kind + If(c.Width > 0 || c.Height > 0, At(c)) + rest +
                 If(!c.ToolTip.get().empty(), " tip" + Quoted(c.ToolTip)) + If(!c.Visible, " hidden") +
                 If(!c.Enabled, " disabled") + "\n";
    }

    std::string text_, indent_;
};

void ExpectAsInTable(const char* name, Form& form) {
    const std::string path = std::string(WINDOW_TABLES) + "/" + name + ".txt", text = Description(form).All();
    std::ifstream file(path);
    const std::string table{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(table, text) << "when that is meant, take the new table from the folder where the test ran";
    if (table != text) std::ofstream(std::string(name) + ".txt") << text;
}

TEST(Windows, HoldWhatTheirTablesSay) {
    Table table;
    table.Window.Load();  // as for a match that is opened
    table.Lay({3, 15, 0, 0, 0, 0, 0, 40}, {0, 27}, {20});
    table.Window.CheckMesa[7].Value = 1;
    ExpectAsInTable("playing", table.Window);
    EXPECT_EQ(table.Window.Frame1.DropPlace(), &table.Window.mesaimg[2]) << "the first that is free";
    EXPECT_EQ(table.Window.CommonDialog.DefaultExt, "zrp");
    Resultadosfrm resultados(table.Desktop);
    ExpectAsInTable("resultados", resultados);
    preferenciasfrm opciones(table.Desktop, table.Window);
    ExpectAsInTable("opciones", opciones);
    Aboutboxfrm acerca(table.Desktop);
    ExpectAsInTable("acerca", acerca);
}

}  // namespace
}  // namespace zarpel
