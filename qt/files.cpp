#include "qt/files.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <filesystem>

namespace zarpel {
namespace {

// A regular file, followed through links, or nothing yet. A folder, pipe, device, or a link that leads round
// in a circle is no place for a file.
bool IsPlaceForFile(const QString& path) {
    using std::filesystem::file_type;
    std::error_code ignored;
    const file_type type = std::filesystem::status(QFileInfo(path).filesystemFilePath(), ignored).type();
    return type == file_type::regular || type == file_type::not_found;
}

}  // namespace

bool IsRegularFile(const QString& path) { return QFileInfo(path).isFile(); }

std::optional<std::string> ReadFile(const QString& path, std::size_t limit) {
    if (!IsRegularFile(path)) return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray bytes = file.read(std::min(static_cast<qint64>(limit), file.size()));
    if (file.error() != QFileDevice::NoError) return std::nullopt;
    return bytes.toStdString();
}

// A QSaveFile writes beside the file, brings that to the disk, and renames it. What it fails to write from
// its buffer on the way it does not notice: on a full disk an empty file would take the old one's place.
bool WriteFile(const QString& path, const std::string& bytes) {
    if (!IsPlaceForFile(path)) return false;
    QSaveFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.flush() &&
           file.commit();
}

}  // namespace zarpel
