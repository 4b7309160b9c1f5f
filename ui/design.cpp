#include "ui/design.h"

namespace zarpel {

void Draw(Container& container, Control& control, const Place& at) {
    control.Put(at);
    control.Visible = true;
    control.Enabled = true;
    control.Tag = "";
    control.ToolTip = "";
    container.Children.push_back(&control);
}

void Draw(Container& container, std::initializer_list<LabelDesign> designs) {
    for (const LabelDesign& design : designs) {
        Label& label = design.Control;
        Draw(container, label, design.At);
        label.Caption = design.Caption;
        label.Font = design.Font;
        label.ForeColor = design.ForeColor;
        label.Opaque = design.BackColor.has_value();
        label.BackColor = design.BackColor.value_or(SystemColor(Palette::ButtonFace));
        label.Align = design.Align;
        label.AutoSize = design.AutoSize;
        label.MaxWidth = design.MaxWidth;
        label.WordWrap = design.WordWrap;
        label.Border = design.Border;
    }
}

void Draw(Container& container, std::initializer_list<ButtonDesign> designs) {
    for (const ButtonDesign& design : designs) {
        Draw(container, design.Control, design.At);
        design.Control.Caption = design.Caption;
    }
}

void Draw(Container& container, std::initializer_list<FrameDesign> designs) {
    for (const FrameDesign& design : designs) {
        Draw(container, design.Control, design.At);
        design.Control.Children.clear();
        design.Control.Caption = design.Caption;
        design.Control.Border = design.Border;
    }
}

void Draw(Container& container, std::initializer_list<LineDesign> designs) {
    for (const LineDesign& design : designs) {
        Line& line = design.Control;
        Draw(container, line, {});
        line.X1 = design.X1;
        line.Y1 = design.Y1;
        line.X2 = design.X2;
        line.Y2 = design.Y2;
        line.BorderColor = design.Color;
    }
}

}  // namespace zarpel
