#include "qt/colors.h"

#include <array>

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

}  // namespace

QColor ColorOf(ColorCode code) {
    if (!IsColorCode(code)) return Qt::black;
    if (IsSystemColor(code)) return QColor(kPalette.at(PaletteNumberOf(code)));
    return {code & 0xFF, code >> 8 & 0xFF, code >> 16 & 0xFF};
}

ColorCode CodeOf(const QColor& color) { return Rgb(color.red(), color.green(), color.blue()); }

}  // namespace zarpel
