// Fonts, and texts that are never cut off.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

#include "platform/controls.h"
#include "qt/scale.h"

namespace zarpel {

// The toolkit's font for one that a layout names, in a free family of close metrics.
QFont FontOf(const FontSpec& font, const TableScale& scale);

// The size that a text takes on one line, in pixels.
QSize NaturalSize(const QString& text, const QFont& font);

struct FittedText {
    QFont Font;
    QString Text;
};

// The text with `font`, or, when it does not fit into `room` so, with that font condensed, then also made
// smaller until it fits. With `wrap` it may take several lines. A text that not even the smallest legible
// letters bring in is shortened to one line that ends in "…".
FittedText FitText(const QString& text, QFont font, const QSize& room, bool wrap);

// True when the label can show the text whole, with its window at its smallest.
bool FitsWhole(const QString& text, const Label& label);

// A path on one line of this width (pixels); one that is too long is shortened in the middle, so that one
// sees where it begins and what it names.
FittedText ShortenPath(const QString& path, const QFont& font, int width);

}  // namespace zarpel
