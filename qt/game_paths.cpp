#include "qt/game_paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <filesystem>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#endif

#include "platform/paths.h"

namespace zarpel {
namespace {

// The toolkit writes every name in UTF-8. A folder whose name is not is reached by way of an open handle,
// which stays open as long as the program runs.
QString Reachable(const std::string& folder) {
    QString name = QString::fromStdString(folder);
#ifdef Q_OS_LINUX
    if (name.toStdString() != folder) {
        const int handle = open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
        if (handle >= 0) return QStringLiteral("/proc/self/fd/%1").arg(handle);
    }
#endif
    return name;
}

QString Within(const QString& folder, const std::string& name) {
    return folder + '/' + QString::fromStdString(name);
}

QString PlayersFolder() { return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation); }

}  // namespace

std::string ProgramFolder() {
    std::error_code otherSystem;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", otherSystem);
    return otherSystem ? QCoreApplication::applicationDirPath().toStdString()
                       : program.parent_path().string();
}

GamePaths::GamePaths(const std::string& folder)
    : folder_(QString::fromStdString(folder).toStdString()), place_(Reachable(folder)) {}

QString GamePaths::PlaceOf(const std::string& path, FileUse use, const QString& applicationFolder) const {
    const auto name = OwnName(folder_, path);
    if (!name) return QString::fromStdString(path);
    QString shared = Within(applicationFolder, *name);
    if (QFileInfo(place_).isWritable()) return shared;
    QString players = Within(PlayersFolder(), *name);
    return use == FileUse::Writing || QFileInfo::exists(players) ? players : shared;
}

QString GamePaths::ToWrite(const std::string& path) const {
    QString place = PlaceOf(path, FileUse::Writing, place_);
    if (QFileInfo(place).path() == PlayersFolder()) QDir().mkpath(PlayersFolder());
    return place;
}

std::string GamePaths::ShownPath(const std::string& path, FileUse use) const {
    return QDir::toNativeSeparators(PlaceOf(path, use, QString::fromStdString(folder_))).toStdString();
}

std::string GamePaths::ForTheGame(const QString& chosen) const {
    return PathForTheGame(folder_, QDir::toNativeSeparators(chosen).toStdString());
}

}  // namespace zarpel
