// Reading and writing real files. Whatever goes wrong, the old file or the new one is there, whole.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>

#include <QDir>
#include <QTemporaryDir>

#include "qt/files.h"

namespace zarpel {
namespace {

constexpr std::size_t kLimit = 1'000'000;
const std::string kOld(2'000, 'o');
const std::string kNew(2'500, 'n');
const std::string kLong(200'000, 'l');

class Files : public testing::Test {
  protected:
    // As the game writes a path: the folder, "\" and the name.
    std::string In(const std::string& name) const { return folder_.path().toStdString() + "\\" + name; }
    QStringList Names() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder_;
};

TEST_F(Files, AreReplacedWholeAndReadUpToALimit) {
    const std::string path = In("Año 1.zrp"), folder = folder_.path().toStdString();
    ASSERT_TRUE(WriteFile(path, kLong));
    ASSERT_TRUE(WriteFile(path, kNew));
    for (const auto& none : {path + "\\dentro.zrp", folder, In(std::string(300, 'x')), std::string()}) {
        EXPECT_FALSE(WriteFile(none, kOld)) << none;
        EXPECT_EQ(ReadFile(none, kLimit), std::nullopt) << none;
    }
    EXPECT_EQ(ReadFile(path, kLimit), kNew);
    EXPECT_EQ(ReadFile(path, 10), kNew.substr(0, 10));
    EXPECT_EQ(Names(), QStringList{"Año 1.zrp"});
}

TEST_F(Files, OnAFullOrReadOnlyDiskStayAsTheyWere) {
    // A small disk that only this process sees.
    const QByteArray disk = folder_.path().toLocal8Bit();
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", disk, "tmpfs", 0, "size=16k") != 0) {
        GTEST_SKIP() << "needs the right to mount a disk of its own";
    }
    const std::string path = In("partida.zrp");
    EXPECT_TRUE(WriteFile(path, kOld));
    int others = 0;
    while (others < 10 && WriteFile(In("relleno" + std::to_string(others)), kNew)) ++others;
    EXPECT_FALSE(WriteFile(path, kNew));
    EXPECT_EQ(Names().size(), others + 1) << "nothing half written is left";
    EXPECT_EQ(mount(nullptr, disk, nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
    EXPECT_FALSE(WriteFile(path, ""));
    EXPECT_EQ(ReadFile(path, kLimit), kOld);
    umount(disk);
}

}  // namespace
}  // namespace zarpel
