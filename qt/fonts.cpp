#include "qt/fonts.h"

#include <QFontMetrics>
#include <algorithm>
#include <array>

namespace zarpel {
namespace {

constexpr const char* kDefaultFamily = "Liberation Sans";

struct Substitute {
    const char* Named;
    const char* Family;
};
constexpr std::array kSubstitutes = {
    Substitute{"Terminal", "DejaVu Sans Mono"},
    Substitute{"Palatino Linotype", "P052"},
    Substitute{"Lucida Bright", "DejaVu Serif"},
};

constexpr int kMostCondensed = 70;  // per cent; narrower letters are harder to read than smaller ones
constexpr int kCondenseStep = 5;
constexpr int kSmallest = 5;  // pixels

bool Fits(const QString& text, const QFont& font, const QSize& room, bool wrap) {
    const QFontMetrics metrics(font);
    if (wrap) {
        const QRect bounds =
            metrics.boundingRect(QRect(0, 0, room.width(), room.height()), Qt::TextWordWrap, text);
        return bounds.width() <= room.width() && bounds.height() <= room.height();
    }
    // What counts below the line is the ink of this text: a line of digits needs no room for descenders.
    const int below = std::max(0, metrics.tightBoundingRect(text).bottom());
    return metrics.horizontalAdvance(text) <= room.width() && metrics.ascent() + below <= room.height();
}

}  // namespace

QFont FontOf(const FontSpec& font, const TableScale& scale) {
    const auto* const substitute =
        std::find_if(kSubstitutes.begin(), kSubstitutes.end(),
                     [&font](const Substitute& candidate) { return font.Family == candidate.Named; });
    QFont result(substitute == kSubstitutes.end() ? kDefaultFamily : substitute->Family);
    result.setBold(font.Bold);
    result.setPixelSize(std::max(1, scale.Pixels(font.Points * kTwipsPerPoint)));
    return result;
}

QSize NaturalSize(const QString& text, const QFont& font) {
    const QFontMetrics metrics(font);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

FittedText FitText(const QString& text, QFont font, const QSize& room, bool wrap) {
    if (text.isEmpty()) return {font, text};  // no need to load the font yet
    for (int stretch = 100; stretch >= kMostCondensed; stretch -= kCondenseStep) {
        font.setStretch(stretch);
        if (Fits(text, font, room, wrap)) return {font, text};
    }
    for (QFont smaller = font; smaller.pixelSize() > kSmallest;) {
        smaller.setPixelSize(smaller.pixelSize() - 1);
        if (Fits(text, smaller, room, wrap)) return {smaller, text};
    }
    return {font, QFontMetrics(font).elidedText(text, Qt::ElideRight, room.width())};
}

bool FitsWhole(const QString& text, const Label& label) {
    const TableScale smallest(kSmallestScale);
    const QFont font = FontOf(label.Font, smallest);
    const QSize room(smallest.Pixels(label.MaxWidth), QFontMetrics(font).height());
    return FitText(text, font, room, label.WordWrap).Text == text;
}

FittedText ShortenPath(const QString& path, const QFont& font, int width) {
    const QFontMetrics metrics(font);
    // The toolkit would shorten what sticks out by a part of a pixel.
    if (metrics.horizontalAdvance(path) <= width) return {font, path};
    return {font, metrics.elidedText(path, Qt::ElideMiddle, width)};
}

}  // namespace zarpel
