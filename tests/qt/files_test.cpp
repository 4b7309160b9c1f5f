// Reading and writing real files, by the paths of the game and those that a player chooses. Whatever goes
// wrong, the old file or the new one is there, whole.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <filesystem>
#include <map>

#include "qt/files.h"
#include "qt/game_paths.h"

namespace zarpel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLimit = 1'000'000;
const std::string kOld(2'000, 'o');
const std::string kNew(2'500, 'n');
const std::string kLong(200'000, 'l');

class Files : public testing::Test {
  protected:
    QString In(const QString& name) const { return folder_.filePath(name); }
    // All that is in the folder, and what it is.
    std::map<std::string, fs::file_type> Kinds() const {
        std::map<std::string, fs::file_type> kinds;
        for (const auto& entry : fs::directory_iterator(folder_.path().toStdString())) {
            kinds[entry.path().filename()] = entry.symlink_status().type();
        }
        return kinds;
    }

    QTemporaryDir folder_;
};

TEST_F(Files, AreReplacedWholeAndReadUpToALimit) {
    const QString path = In("Año 1.zrp"), link = In("enlace");
    ASSERT_TRUE(WriteFile(path, kLong));
    fs::create_symlink("Año 1.zrp", link.toStdString());
    ASSERT_TRUE(WriteFile(link, kNew));  // the link stays one
    ASSERT_EQ(mkfifo(In("tubo").toLocal8Bit(), 0600), 0);
    for (const char* const to : {"tubo", "/dev/null", "vuelta", "."}) {
        fs::create_symlink(to, In("a ").toStdString() + QString(to).replace('/', ' ').toStdString());
    }
    fs::create_symlink("a vuelta", In("vuelta").toStdString());
    const auto all = Kinds();
    for (const QString& none : {path + "/dentro.zrp", folder_.path(), In(QString(300, 'x')), QString(),
                                In("tubo"), In("a tubo"), In("a  dev null"), In("a vuelta"), In("a .")}) {
        EXPECT_FALSE(WriteFile(none, kOld)) << none.toStdString();
        EXPECT_EQ(ReadFile(none, kLimit), std::nullopt) << none.toStdString();
    }
    EXPECT_EQ(Kinds(), all);
    EXPECT_EQ(ReadFile(path, kLimit), kNew);
    EXPECT_EQ(ReadFile(link, 10), kNew.substr(0, 10));
}

TEST_F(Files, AreThoseNamedWhateverTheGamesFolderIsCalled) {
    for (const char* const name : {"zarpel", "mi\\zarpel", "\"el\" 'juego'", "Año", "\xFF\xFEraro\\"}) {
        const fs::path folder = fs::path(folder_.path().toStdString()) / name;
        fs::create_directory(folder);
        const GamePaths paths(folder.string());
        const auto writes = [&paths](const std::string& path, const std::string& bytes,
                                     const fs::path& file) {
            return WriteFile(paths.ToWrite(path), bytes) && fs::file_size(file) == bytes.size() &&
                   ReadFile(paths.ToRead(path), kLimit) == bytes;
        };
        const QString shown = QString::fromStdString(paths.Folder());
        EXPECT_TRUE(writes(paths.Folder() + "\\x.zrp", kNew, folder / "x.zrp")) << name;
        EXPECT_EQ(paths.ShownPath(paths.Folder() + "\\x.zrp", FileUse::Writing), paths.Folder() + "/x.zrp");
        if (shown.contains(QChar::ReplacementCharacter)) {
            fs::remove_all(folder);  // the toolkit cannot
            continue;
        }
        EXPECT_TRUE(writes(paths.ForTheGame(shown + "\\x.zrp"), kOld, folder.string() + "\\x.zrp")) << name;
        EXPECT_TRUE(writes(paths.ForTheGame(shown + "/d\\x.zrp"), kOld, folder / "d\\x.zrp")) << name;
        EXPECT_EQ(fs::file_size(folder / "x.zrp"), kNew.size()) << name;
    }
}

TEST_F(Files, OnAFullDiskStayAsTheyWere) {
    // A small disk that only this process sees.
    const QByteArray disk = folder_.path().toLocal8Bit();
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", disk, "tmpfs", 0, "size=16k") != 0) {
        GTEST_SKIP() << "needs the right to mount a disk of its own";
    }
    EXPECT_TRUE(WriteFile(In("partida.zrp"), kOld));
    std::size_t others = 0;
    while (others < 10 && WriteFile(In("relleno" + QString::number(others)), kNew)) ++others;
    EXPECT_FALSE(WriteFile(In("partida.zrp"), kNew));
    EXPECT_EQ(ReadFile(In("partida.zrp"), kLimit), kOld);
    EXPECT_EQ(Kinds().size(), others + 1) << "nothing half written is left";
    umount(disk);
}

}  // namespace
}  // namespace zarpel
