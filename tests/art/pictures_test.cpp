// The pictures that the build drew from the sources in data/: of the right size, the same each time, and no
// two cards alike.
#include "tools/art/pictures.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QSet>
#include <QTemporaryDir>

#include "tools/art/deck.h"

namespace zarpel {
namespace {

TEST(Pictures, HaveTheirSizesAndAreTheSameBytesEachTimeAndNoTwoAreAlike) {
    const QTemporaryDir again;
    DrawAll(ZARPEL_DATA_DIR, again.path());
    const QDir built(ZARPEL_PICTURES_DIR), drawn(again.path());
    QDirIterator it(drawn.path(), {"*.png", "*.jpg"}, QDir::Files, QDirIterator::Subdirectories);
    QSet<QByteArray> all;
    while (it.hasNext()) {
        const auto path = it.next(), name = drawn.relativeFilePath(path);
        QSize size = name == "builtin/dorso.jpg" ? QSize(95, 150) : kCardPixels;
        const int side = name.section('-', 1).section('.', 0, 0).toInt();  // an icon's name ends in it
        if (side != 0) size = {side, side};
        EXPECT_EQ(QImage(path).size(), size) << name.toStdString();
        EXPECT_EQ(ReadAll(path), ReadAll(built.filePath(name))) << name.toStdString();
        EXPECT_FALSE(all.contains(ReadAll(path))) << name.toStdString();
        all.insert(ReadAll(path));
    }
    EXPECT_GT(all.size(), kCards);
}

}  // namespace
}  // namespace zarpel
