// Draws every picture of the game from its vector sources and writes them below one folder:
//
// app/      what lies beside the executable: the 40 cards, "dibujo.jpg" (the card back) and "naipe.dat"
// builtin/  what is compiled into the game: "dorso.jpg" (the back it starts with), the pictures of the
//           toolbar, the boxes and the About window, and the program's icon
// tipos/    the icons of the kinds of files that are the game's
// ayuda/    the back with see-through corners: the help shows it, and the cards of app/
#pragma once

#include <QImage>
#include <QString>

namespace zarpel {

// Pixels of a card picture: a hand card of a 3840 x 2160 table is 364 x 503, a table card 300 x 469.
constexpr QSize kCardPixels{364, 534};
constexpr QSize kBuiltinBackPixels{95, 150};

// Writes all of it; folders are made as needed. Throws std::runtime_error when a source or a file fails.
void DrawAll(const QString& dataFolder, const QString& outFolder);

// An SVG document drawn over the whole of a transparent picture.
QImage Draw(const QByteArray& svg, QSize pixels);

// The same picture with at most 256 colours: a quarter of the bytes, and nobody sees the difference.
QImage WithPalette(const QImage& picture);

// The card list file: 40 records of 16 bytes, a 2-byte little-endian length, the name, zeros.
QByteArray CardList(const QStringList& names);

}  // namespace zarpel
