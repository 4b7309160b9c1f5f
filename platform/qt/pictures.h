// The pictures of the game: each file is decoded once, scaled once per size, and kept. Scaling goes on beside
// the rest of the program, since the first sight of the table waits for ten cards.
#pragma once

#include <QHash>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <future>
#include <map>
#include <string>

namespace zarpel {

// A built-in picture that was drawn in several sizes (":/nuevo.png" stands for all files
// ":/nuevo-<size>.png"): the smallest that has so many pixels across, or the largest there is. Null: there is
// no such picture.
QImage BuiltInPicture(const QString& picture, int pixels);

QIcon ProgramIcon();

class Pictures {
  public:
    // Reads the file, or the built-in picture of a path that begins with ":/". False: no picture there.
    bool Load(const std::string& path);

    // Begins what Scaled will be asked for.
    void Prepare(const std::string& path, const QSize& size, int corner, qreal ratio);

    // The picture stretched to `size` (logical pixels) with corners of this radius, for a screen of so many
    // pixels to a logical pixel. A null pixmap when Load did not take the path.
    QPixmap Scaled(const std::string& path, const QSize& size, int corner, qreal ratio);

  private:
    QHash<QString, QImage> decoded_;
    std::map<QString, std::future<QImage>> coming_;  // by the same key as scaled_, until they are asked for
    QHash<QString, QPixmap> scaled_;
};

}  // namespace zarpel
