// Colour codes of the game as colours of the toolkit.
#pragma once

#include <QColor>
#include <QPalette>

#include "platform/color.h"

namespace zarpel {

// Palette colours are the classic ones on every desktop, so that the game's combinations of them stay legible
// under a dark or coloured theme. A code that is no colour (IsColorCode) gives black.
QColor ColorOf(ColorCode code);

// The code of an opaque colour.
ColorCode CodeOf(const QColor& color);

// What the toolkit's own parts are drawn in: the classic colours, none of them the desktop's.
QPalette ClassicPalette();

// How well two colours can be told apart, from 1 (not at all) to 21, as the WCAG reckon it.
double Contrast(const QColor& one, const QColor& other);

}  // namespace zarpel
