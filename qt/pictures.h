// The pictures of the game: each file is decoded once, scaled once per size, and kept. Scaling goes on beside
// the rest of the program, since a deal begins with ten cards at once.
#pragma once

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <future>
#include <map>
#include <string>
#include <tuple>

#include "qt/game_paths.h"

namespace zarpel {

// A built-in picture that was drawn in several sizes (":/nuevo.png" stands for all files
// ":/nuevo-<size>.png"): the smallest that has so many pixels across, or the largest there is. Null: there is
// no such picture.
QImage BuiltInPicture(const QString& picture, int pixels);

QIcon ProgramIcon();

// How a picture is shown: stretched to this size, with corners of this radius (logical pixels), on a screen
// of so many pixels to a logical pixel.
struct Look {
    std::string Path;
    int Width, Height, Corner;
    qreal Ratio;

    bool operator<(const Look& other) const {
        return std::tie(Path, Width, Height, Corner, Ratio) <
               std::tie(other.Path, other.Width, other.Height, other.Corner, other.Ratio);
    }
};

class PictureStore {
  public:
    // Keeps the reference.
    explicit PictureStore(const GamePaths& paths) : paths_(paths) {}

    // Reads the file, or the built-in picture of a path that begins with ":/". False: no picture there.
    bool Load(const std::string& path);

    // Begins what Scaled will be asked for.
    void Prepare(const Look& look);

    // Drops what was scaled so far: other sizes will be asked for.
    void ForgetSizes();

    // The picture as it is to look. A null pixmap when Load did not take the path.
    QPixmap Scaled(const Look& look);

  private:
    const GamePaths& paths_;
    std::map<std::string, QImage> decoded_;       // null: a file that is no picture
    std::map<Look, std::future<QImage>> coming_;  // until they are asked for
    std::map<Look, QPixmap> scaled_;
};

}  // namespace zarpel
