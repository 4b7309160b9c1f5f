// The seal of a help file: a line of text after its last byte with the checksum of all that comes before.
//
// The library that takes help files apart trusts their compressed part blindly: one wrong bit there can make
// it read and write outside its memory. So the build seals the file it makes, and the viewer opens no file
// whose seal does not fit. Programs that read help files find everything by its position from the start and
// take no notice of what follows the end.
#pragma once

#include <QByteArray>

namespace zarpel {

// The help file `content` (as the help compiler wrote it) with its seal at the end.
QByteArray Sealed(const QByteArray& content);

// True when `file` ends in the seal that belongs to the bytes before it.
bool IsSealed(const QByteArray& file);

}  // namespace zarpel
