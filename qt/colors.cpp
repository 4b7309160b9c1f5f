#include "qt/colors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zarpel {
namespace {

// By palette number, as 0xRRGGBB.
constexpr std::array<QRgb, kLastPaletteNumber + 1> kPalette = {
    0xC8C8C8,  // scroll bar
    0x3A6EA5,  // desktop
    0x99B4D1,  // active title bar
    0xBFCDDB,  // inactive title bar
    0xF0F0F0,  // menu
    0xFFFFFF,  // window
    0x646464,  // window frame
    0x000000,  // menu text
    0x000000,  // window text
    0x000000,  // title bar text
    0xB4B4B4,  // active border
    0xF4F7FC,  // inactive border
    0xABABAB,  // application workspace
    0x3078B4,  // highlight
    0xFFFFFF,  // highlighted text
    0xF0F0F0,  // button face
    0xA0A0A0,  // button shadow
    0x6D6D6D,  // grey text
    0x000000,  // button text
    0x434E54,  // inactive title bar text
    0xFFFFFF,  // button highlight
    0x696969,  // dark shadow
    0xE3E3E3,  // light
    0x000000,  // tooltip text
    0xFFFFE1,  // tooltip
};

double Luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

QColor ColorOf(ColorCode code) {
    if (!IsColorCode(code)) return Qt::black;
    if (IsSystemColor(code)) return QColor(kPalette.at(PaletteNumberOf(code)));
    return {code & 0xFF, code >> 8 & 0xFF, code >> 16 & 0xFF};
}

ColorCode CodeOf(const QColor& color) { return Rgb(color.red(), color.green(), color.blue()); }

QPalette ClassicPalette() {
    enum : std::size_t { kHighlight = 13, kHighlightText, kButtonFace, kLight = 22, kToolTipText, kToolTip };
    const auto color = [](std::size_t number) { return QColor(kPalette.at(number)); };
    QPalette palette(color(kButtonFace), color(kButtonFace));
    palette.setColor(QPalette::Highlight, color(kHighlight));
    palette.setColor(QPalette::HighlightedText, color(kHighlightText));
    palette.setColor(QPalette::ToolTipBase, color(kToolTip));
    palette.setColor(QPalette::ToolTipText, color(kToolTipText));
    palette.setColor(QPalette::AlternateBase, color(kLight));
    // A role that is not set would be the desktop's.
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int i = 0; i < QPalette::NColorRoles; ++i) {
            const auto role = static_cast<QPalette::ColorRole>(i);
            palette.setColor(group, role, palette.color(group, role));
        }
    }
    return palette;
}

double Contrast(const QColor& one, const QColor& other) {
    constexpr double kGlare = 0.05;
    const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
    return (lighter + kGlare) / (darker + kGlare);
}

}  // namespace zarpel
