// Colour codes of the game as colours of the toolkit.
#pragma once

#include <QColor>

#include "platform/color.h"

namespace zarpel {

// Palette colours are the classic ones on every desktop, so that the game's combinations of them stay legible
// under a dark or coloured theme. A code that is no colour (IsColorCode) gives black.
QColor ColorOf(ColorCode code);

// The code of an opaque colour.
ColorCode CodeOf(const QColor& color);

}  // namespace zarpel
