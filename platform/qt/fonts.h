// Fonts, and texts that are never cut off.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

#include "platform/controls.h"
#include "platform/qt/scale.h"

namespace zarpel {

// The toolkit's font for one that a layout names, in a free family of close metrics.
QFont FontOf(const Font& font, const Scale& scale);

// The size that a text takes on one line, in pixels.
QSize NaturalSize(const QString& text, const QFont& font);

// `font`, or, when the text does not fit into `room` with it, that font condensed, then also made smaller
// until it fits. With `wrap` the text may take several lines.
QFont FitFont(const QString& text, QFont font, const QSize& room, bool wrap);

}  // namespace zarpel
