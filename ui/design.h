// The pieces from which a window states what it holds: rows of plain data, one a control, that a designer can
// edit.
#pragma once

#include <initializer_list>
#include <optional>

#include "platform/form.h"

namespace zarpel {

inline constexpr ColorCode kBlack = Rgb(0, 0, 0);
inline constexpr ColorCode kGrey = Rgb(128, 128, 128);
inline constexpr ColorCode kWhite = Rgb(255, 255, 255);
inline constexpr ColorCode kTableGreen = Rgb(0, 128, 0);

struct LabelDesign {
    Label& Control;
    Place At;
    const char* Caption = "";
    FontSpec Font = {};
    ColorCode ForeColor = SystemColor(Palette::WindowText);
    std::optional<ColorCode> BackColor = std::nullopt;  // nothing: transparent
    Alignment Align = Alignment::Left;
    bool AutoSize = false;
    int MaxWidth = 0;
    bool WordWrap = false;
    bool Border = false;
};

struct ButtonDesign {
    Button& Control;
    Place At;
    const char* Caption;
};

struct FrameDesign {
    Frame& Control;
    Place At;
    const char* Caption = "";
    bool Border = true;
};

struct LineDesign {
    Line& Control;
    int X1, Y1, X2, Y2;
    ColorCode Color = SystemColor(Palette::WindowText);
};

// Each puts its controls into the state of the design, whatever they were before, and adds them to
// `container` above what it holds.
void Draw(Container& container, std::initializer_list<LabelDesign> designs);
void Draw(Container& container, std::initializer_list<ButtonDesign> designs);
void Draw(Container& container, std::initializer_list<FrameDesign> designs);
void Draw(Container& container, std::initializer_list<LineDesign> designs);

// Shown, enabled, without tag and tooltip, in its place; and in the container.
void Draw(Container& container, Control& control, const Place& at);

}  // namespace zarpel
