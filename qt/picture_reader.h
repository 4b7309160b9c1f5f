// Reading picture files, those of the game and any that a player may choose or a file may name. A picture is
// BMP, JPEG or PNG by what the file holds; its name says nothing, and no other reader that the system has is
// ever asked. Whatever the file holds, the answer comes soon and takes a bounded amount of memory.
#pragma once

#include <QImage>
#include <QString>

namespace zarpel {

// No card on any screen is larger. A photograph chosen as card back is made smaller while it is decoded.
constexpr QSize kLargestPicture(1024, 1024);

// The picture in the file, upright, and no larger than `kLargestPicture`. A null image:
// there is no such file, it is no picture, it is cut off, or it is far larger than pictures are.
QImage ReadPicture(const QString& path);

}  // namespace zarpel
