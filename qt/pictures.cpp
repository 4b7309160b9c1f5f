#include "qt/pictures.h"

#include <QBrush>
#include <QDir>
#include <QPainter>
#include <QThreadPool>
#include <map>
#include <memory>

#include "qt/files.h"
#include "qt/picture_reader.h"

namespace zarpel {
namespace {

// All sizes of the icon go to the window manager at once, and none shows a larger one.
constexpr int kLargestIcon = 256;

// The files of a built-in picture that comes in several sizes, by size.
std::map<int, QString> SizesOf(const QString& picture) {
    std::map<int, QString> files;
    const QStringList names =
        QDir(QStringLiteral(":/"))
            .entryList({QFileInfo(picture).baseName() + QStringLiteral("-*.png")}, QDir::Files);
    for (const QString& name : names) {
        files[QFileInfo(name).baseName().section('-', -1).toInt()] = QStringLiteral(":/") + name;
    }
    return files;
}

QImage Stretch(const QImage& picture, const QSize& pixels, qreal corner) {
    // Smooth scaling is several times faster in this format than in the compact one that pictures are kept
    // in.
    QImage stretched = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                           .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // A picture with see-through places has its own outline.
    if (corner <= 0 || picture.hasAlphaChannel()) return stretched;
    QImage rounded(pixels, QImage::Format_ARGB32_Premultiplied);
    rounded.fill(Qt::transparent);
    QPainter painter(&rounded);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QBrush(stretched));
    painter.drawRoundedRect(QRectF(QPointF(), QSizeF(pixels)), corner, corner);
    painter.end();
    return rounded;
}

}  // namespace

QImage BuiltInPicture(const QString& picture, int pixels) {
    const std::map<int, QString> files = SizesOf(picture);
    if (files.empty()) return {};
    const auto enough = files.lower_bound(pixels);
    return ReadPicture(enough == files.end() ? files.rbegin()->second : enough->second);
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const auto& [size, file] : SizesOf(QStringLiteral(":/zarpel.png"))) {
        if (size <= kLargestIcon) icon.addFile(file);
    }
    return icon;
}

bool PictureStore::Load(const std::string& path) {
    if (const auto known = decoded_.find(path); known != decoded_.end()) return !known->second.isNull();
    const QString name = paths_.ToRead(path);
    QImage picture = ReadPicture(name);
    if (picture.isNull() && name.startsWith(QStringLiteral(":/")))
        picture = BuiltInPicture(name, kLargestPicture.width());
    // What cannot be decoded may have taken long; a file that is missing may yet come.
    if (picture.isNull() && !IsRegularFile(name)) return false;
    decoded_[path] = picture;
    return !picture.isNull();
}

void PictureStore::Prepare(const Look& look) {
    const QSize size(look.Width, look.Height);
    if (look.Path.empty() || size.isEmpty() || coming_.contains(look) || scaled_.contains(look)) return;
    if (!Load(look.Path)) return;
    const auto task = std::make_shared<std::packaged_task<QImage()>>(
        [picture = decoded_.at(look.Path), pixels = (QSizeF(size) * look.Ratio).toSize(),
         radius = look.Corner * look.Ratio] { return Stretch(picture, pixels, radius); });
    coming_[look] = task->get_future();
    QThreadPool::globalInstance()->start([task] { (*task)(); });
}

void PictureStore::ForgetSizes() {
    coming_.clear();
    scaled_.clear();
}

QPixmap PictureStore::Scaled(const Look& look) {
    Prepare(look);
    if (const auto coming = coming_.find(look); coming != coming_.end()) {
        QPixmap pixmap = QPixmap::fromImage(coming->second.get());
        pixmap.setDevicePixelRatio(look.Ratio);
        scaled_[look] = pixmap;
        coming_.erase(coming);
    }
    const auto found = scaled_.find(look);
    return found == scaled_.end() ? QPixmap() : found->second;
}

}  // namespace zarpel
