// The controls that the game's windows are made of, as plain objects that live without any toolkit. They hold
// the game's state while it plays (what lies where, what is selected, what the labels say), and a front end
// draws them.
//
// Places and sizes are in twips (1440 an inch, 15 a pixel at 96 dots an inch), relative to the container's
// top left corner. Events are functions that the window sets before it is shown, and that the front end
// calls, one at a time; one that is empty is an event that the control does not have.
//
// While a window is shown the game changes properties only (Property<...>), and the texts of Image::Spoken,
// with Refresh. Plain members (children, events, buttons, tabs, panels, lines, menus) are as they were when
// it was shown; a window that loads again sets them to the same values.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/color.h"
#include "platform/property.h"

namespace zarpel {

class Image;
class CheckBox;
class Label;
class Button;
class Frame;
class Line;
class ToolBar;
class StatusBar;
class TabStrip;

// What a front end does with each kind of control.
class ControlVisitor {
  public:
    virtual ~ControlVisitor() = default;
    virtual void Visit(Image&) = 0;
    virtual void Visit(CheckBox&) = 0;
    virtual void Visit(Label&) = 0;
    virtual void Visit(Button&) = 0;
    virtual void Visit(Frame&) = 0;
    virtual void Visit(Line&) = 0;
    virtual void Visit(ToolBar&) = 0;
    virtual void Visit(StatusBar&) = 0;
    virtual void Visit(TabStrip&) = 0;
};

struct Place {
    int Left = 0, Top = 0, Width = 0, Height = 0;
};

class Control : public Observed {
  public:
    virtual ~Control() = default;
    virtual void Accept(ControlVisitor& visitor) = 0;

    Property<int> Left{*this}, Top{*this}, Width{*this}, Height{*this};
    Property<bool> Visible{*this, true};
    Property<bool> Enabled{*this, true};
    Property<std::string> Tag{*this};  // free for the game; never drawn
    Property<std::string> ToolTip{*this};

    void Put(const Place& place) {
        Left = place.Left;
        Top = place.Top;
        Width = place.Width;
        Height = place.Height;
    }
};

// A control that holds others.
class Container : public Control {
  public:
    // In stacking order, the lowest first. The container does not own them. While it is not enabled, none of
    // them takes input.
    std::vector<Control*> Children;

    Property<std::string> Caption{*this};
    Property<ColorCode> BackColor{*this, SystemColor(Palette::ButtonFace)};
};

struct FontSpec {
    std::string Family;  // as the layouts name it; empty: the system's default. The front end maps it
    double Points = 8.25;
    bool Bold = false;

    bool operator==(const FontSpec&) const = default;
};

enum class Alignment { Left, Right, Center };

// Where the two players sit: the edges of the window.
enum class Side { None, Top, Bottom };

// What a screen reader says of a picture.
struct Speech {
    std::string Name;              // what it shows, and where it is
    std::optional<bool> Selected;  // nothing: it cannot be selected
};

// A picture, stretched to the size of its control.
class Image : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    // Path of the picture file, once Desktop::LoadPicture has taken it; a path that begins with ":/" is one
    // of the pictures built into the program. Empty: nothing is drawn.
    Property<std::string> Picture{*this};
    Property<int> Corner{*this};  // radius of the rounded corners
    // A drag starts when the pointer is pressed and moved on it. The game is never given another one dropped.
    Property<bool> Draggable{*this};
    // Hints for a front end that shows how things move: by which edge the picture that the control is given
    // comes in, and by which the one that it had goes off. They hold for the change at hand; the front end
    // takes them back once it has seen that.
    Side ComesFrom = Side::None, GoesTo = Side::None;
    const Image* Cover = nullptr;    // while both are shown, this picture hides the control wholly
    std::function<Speech()> Spoken;  // empty: decoration that a screen reader passes over
    std::function<void()> Click;
};

// A selection flag. It is kept, not drawn: the raised card is the mark that the player sees.
class CheckBox : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    Property<int> Value{*this};  // 1: selected
};

class Label : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    Property<std::string> Caption{*this};
    Property<FontSpec> Font{*this};
    Property<ColorCode> ForeColor{*this, SystemColor(Palette::WindowText)};
    Property<ColorCode> BackColor{*this, SystemColor(Palette::ButtonFace)};
    Property<bool> Opaque{*this};
    Property<bool> Border{*this};    // a single line around it
    Property<bool> AutoSize{*this};  // grows and shrinks with its text, up to MaxWidth
    Property<int> MaxWidth{*this};   // 0: up to the container's edge
    Property<bool> WordWrap{*this};
    Property<bool> IsPath{*this};  // one that is too long is shortened in the middle, not made smaller
    Property<Alignment> Align{*this};
    std::string SpokenAs;  // what a screen reader calls it; empty: its caption
    std::function<void()> Click;
};

class Button : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    Property<std::string> Caption{*this};  // "&" marks the access key
    bool Default = false;                  // Enter presses it
    bool Cancel = false;                   // Escape presses it
    std::function<void()> Click;
};

class Frame : public Container {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    bool Border = true;           // an etched border with the caption; without it the frame is a plain area
    std::function<void()> Click;  // on its bare area, not on a control in it
    // A draggable picture was dropped on the bare frame, not on a control in it.
    std::function<void(Image& source)> DragDrop;
    // The control that would show the picture if it were dropped now, so that the place can be marked; null:
    // none would.
    std::function<const Image*()> DropPlace;
};

// A straight line between two points; Left, Top, Width and Height are not used.
class Line : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    int X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    ColorCode BorderColor = SystemColor(Palette::WindowText);
};

struct ToolButton {
    std::string Key;  // tells the buttons apart
    std::string Caption;
    std::string ToolTip;
    std::string Picture;  // a built-in picture, 48 x 48 pixels at 96 dots an inch
};

class ToolBar : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    std::vector<ToolButton> Buttons;
    int ButtonWidth = 0, ButtonHeight = 0;
    std::function<void(const std::string& key)> ButtonClick;
};

// Docked along the bottom edge of its window; it keeps date and time by itself.
class StatusBar : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    enum class Content { Text, Date, Time };
    struct Panel {
        Content Holds = Content::Text;
        std::string Text;
        int Width = 0;
    };
    std::vector<Panel> Panels;
};

class TabStrip : public Control {
  public:
    void Accept(ControlVisitor& visitor) override { visitor.Visit(*this); }

    struct Tab {
        std::string Caption, ToolTip;
    };
    std::vector<Tab> Tabs;
    // The tab in front, from 1. The front end assigns it, then calls Click, when the player clicks or selects
    // a tab; assigned by the game it only moves the mark.
    Property<int> Selected{*this, 1};
    std::function<void()> Click;
};

// A menu entry, or a menu when it has entries.
struct Menu {
    std::string Caption;
    std::vector<Menu*> Entries = {};
    std::function<void()> Click = nullptr;
};

// The component behind a window's file and colour choosers. It remembers what was chosen through it.
struct ChooserState {
    std::string DefaultExt;  // added to a name typed without extension
    std::string Filter;      // pairs of description and patterns, all separated by "|"
    std::string FileName;    // the name last chosen; offered again
    ColorCode Color = 0;     // the colour last chosen

    // Shows the component's help file. The game sets none, so nothing is shown.
    void ShowHelp() const {}
};

}  // namespace zarpel
