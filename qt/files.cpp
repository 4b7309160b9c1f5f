#include "qt/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

namespace zarpel {

QString SystemPath(const std::string& path) {
    QString name = QString::fromStdString(path);
    if (QDir::separator() == '/') name.replace('\\', '/');
    return name;
}

bool IsRegularFile(const QString& path) { return QFileInfo(path).isFile(); }

std::optional<std::string> ReadFile(const std::string& path, std::size_t limit) {
    const QString name = SystemPath(path);
    if (!IsRegularFile(name)) return std::nullopt;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray bytes = file.read(std::min(static_cast<qint64>(limit), file.size()));
    if (file.error() != QFileDevice::NoError) return std::nullopt;
    return bytes.toStdString();
}

// A QSaveFile writes beside the file, brings that to the disk, and renames it. What it fails to write from
// its buffer on the way it does not notice: on a full disk an empty file would take the old one's place.
bool WriteFile(const std::string& path, const std::string& bytes) {
    QSaveFile file(SystemPath(path));
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.flush() &&
           file.commit();
}

}  // namespace zarpel
