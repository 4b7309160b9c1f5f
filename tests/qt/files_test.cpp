// Reading and writing real files. Whatever goes wrong, the old file or the new one is there, whole.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <csignal>
#include <functional>

#include "platform/qt/files.h"

namespace zarpel {
namespace {

constexpr std::size_t kLimit = 1'000'000;
const std::string kOld(2'000, 'o');
const std::string kNew(2'500, 'n');
const std::string kLong(200'000, 'l');

// Runs `job` in a process of its own, killed after so many microseconds, and gives its exit status, or -1
// when it was killed.
int InChild(const std::function<int()>& job, int killedAfter = 0) {
    const pid_t child = fork();
    if (child == 0) _exit(job());
    if (killedAfter != 0) {
        usleep(static_cast<useconds_t>(killedAfter));
        kill(child, SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class Files : public testing::Test {
  protected:
    // As the game writes a path: the folder, "\" and the name.
    std::string In(const std::string& name) const { return folder_.path().toStdString() + "\\" + name; }
    QStringList Names() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden); }

    QTemporaryDir folder_;
};

TEST_F(Files, AreReplacedWholeAndReadUpToALimit) {
    const std::string path = In("Año 1.zrp");
    EXPECT_EQ(ReadWholeFile(path, kLimit), std::nullopt);
    ASSERT_TRUE(ReplaceFile(path, kLong));
    ASSERT_TRUE(ReplaceFile(path, kNew));
    EXPECT_EQ(ReadWholeFile(path, kLimit), kNew);
    EXPECT_EQ(ReadWholeFile(path, 10), kNew.substr(0, 10));
    EXPECT_EQ(Names(), QStringList{QStringLiteral("Año 1.zrp")});
}

TEST_F(Files, WhereNoneCanBeAreRefused) {
    ASSERT_TRUE(ReplaceFile(In("fichero"), kOld));
    QDir(folder_.path()).mkdir(QStringLiteral("carpeta"));
    const std::string paths[] = {In("fichero\\dentro.zrp"), In("falta\\dentro.zrp"), In("carpeta"),
                                 In(std::string(300, 'x') + ".zrp"), ""};
    for (const std::string& path : paths) {
        EXPECT_FALSE(ReplaceFile(path, kNew)) << path;
        EXPECT_EQ(ReadWholeFile(path, kLimit), std::nullopt) << path;
    }
    EXPECT_EQ(ReadWholeFile(In("fichero"), kLimit), kOld);
    EXPECT_EQ(Names(), QStringList{QStringLiteral("fichero")});
}

TEST_F(Files, OnAFullOrReadOnlyDiskStayAsTheyWere) {
    enum { kFine, kNotAllowed, kNotSetUp, kWritten, kOldLost };
    const QByteArray disk = folder_.path().toLocal8Bit();
    const std::string path = In("partida.zrp");
    const auto job = [&]() -> int {
        // A small disk that only this process sees.
        if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount("tmpfs", disk, "tmpfs", 0, "size=16k") != 0) {
            return kNotAllowed;
        }
        if (!ReplaceFile(path, kOld)) return kNotSetUp;
        if (ReplaceFile(path, kLong)) return kWritten;
        if (ReadWholeFile(path, kLimit) != kOld || Names().size() != 1) return kOldLost;
        for (int i = 0; ReplaceFile(In("relleno" + std::to_string(i)), kNew); ++i) continue;
        if (ReplaceFile(path, kNew)) return kWritten;
        if (mount(nullptr, disk, nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0) return kNotSetUp;
        if (ReplaceFile(path, "")) return kWritten;
        return ReadWholeFile(path, kLimit) == kOld ? kFine : kOldLost;
    };
    const int result = InChild(job);
    if (result == kNotAllowed) GTEST_SKIP() << "needs the right to mount a disk of its own";
    EXPECT_EQ(result, kFine);
}

TEST_F(Files, SurviveTheProgramBeingKilled) {
    constexpr int kRounds = 25, kSaves = 200;
    const std::string path = In("partida.zrp");
    int killed = 0;
    const auto save = [&path] {
        for (int i = 0; i < kSaves; ++i) ReplaceFile(path, i % 2 == 0 ? kLong : kOld);
        return 0;
    };
    for (int round = 0; round < kRounds; ++round) {
        ASSERT_TRUE(ReplaceFile(path, kOld));
        killed += InChild(save, 700 * round + 1) == -1;
        const auto bytes = ReadWholeFile(path, kLimit);
        EXPECT_TRUE(bytes == kOld || bytes == kLong) << "round " << round;
    }
    EXPECT_GT(killed, kRounds / 2);
}

}  // namespace
}  // namespace zarpel
