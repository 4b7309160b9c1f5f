// What the windows paint.
#include <sys/stat.h>

#include <QFontMetrics>

#include "qt/files.h"
#include "qt/fonts.h"
#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

using LooksTest = QtTable;

TEST_F(LooksTest, NoNicknameIsCutOff) {
    for (const char* const name : {"Maximiliano", "Hermenegildo Bustamante y Larreta-Uriarte"}) {
        Game.Label2.Caption = name;
        Game.namelbl.Caption = name;
        Game.cartellbl.Caption = std::string("Reparte ") + name + " - Juega Cpu";
        QCoreApplication::processEvents();
        for (Label* const label : {&Game.Label2, &Game.namelbl, &Game.cartellbl}) {
            const auto& view = ViewOf<LabelView>(*label);
            const QFontMetrics metrics(view.font());
            const int width = label->WordWrap
                                  ? metrics.boundingRect(view.rect(), Qt::TextWordWrap, view.text()).width()
                                  : metrics.horizontalAdvance(view.text());
            EXPECT_LE(width, view.width()) << view.text().toStdString();
            EXPECT_GT(metrics.capHeight(), 2);
        }
    }
    // Nobody can read two hundred letters in the width of a card; the tooltip has them all.
    const QString letters(200, 'm');
    Game.Label2.Caption = "<b>" + letters.toStdString();
    QCoreApplication::processEvents();
    const auto& view = ViewOf<LabelView>(Game.Label2);
    EXPECT_EQ(view.toolTip(), "<p>&lt;b&gt;" + letters + "</p>");
    const FittedText fitted = FitText(view.text(), view.font(), view.size(), false);
    EXPECT_TRUE(fitted.Text.startsWith("<b>mm") && fitted.Text.endsWith("…"));
    EXPECT_LE(QFontMetrics(fitted.Font).horizontalAdvance(fitted.Text), view.width());
}

TEST_F(LooksTest, PaintsTheCardsOnTheTable) {
    LayCards(Game, {Card(7, 'o')}, {}, {Card(3, 'b')});
    Game.Frame1.BackColor = Rgb(40, 50, 60);
    const QImage picture = Window().grab().toImage();
    const auto colorAt = [&picture](const QPoint& at) { return picture.pixelColor(at); };
    const QPoint corner = ViewOf<ImageView>(Game.mesaimg[0]).mapTo(&Window(), QPoint());
    EXPECT_EQ(colorAt(Middle(Game.mesaimg[0])), ColorOfCard(Card(7, 'o')));
    for (const QPoint& bare : {corner, Middle(Game.mesaimg[1])}) EXPECT_EQ(colorAt(bare), QColor(40, 50, 60));
    EXPECT_GT(colorAt(Middle(Game.fondop1img[0])).blue(), 240);  // of the JPEG picture
}

TEST(PictureFiles, AreReadByWhatTheyHoldOnceAndScaledCrisply) {
    const QTemporaryDir folder;
    const auto path = [&folder](const char* name) { return folder.path().toStdString() + "\\" + name; };
    const auto bytesAs = [](const char* format) {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        QImage(64, 64, QImage::Format_RGB32).save(&file, format);
        return file.data().toStdString();
    };
    const std::string bmp = bytesAs("bmp"), jpeg = bytesAs("jpeg"), png = bytesAs("png");
    const std::string huge = bmp.substr(0, 18) + std::string("\x30\x75\0\0\x30\x75\0\0", 8) + bmp.substr(26);
    const std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>)";
    const std::map<const char*, std::pair<std::string, bool>> files = {
        {"photo.txt", {jpeg, true}},      {"jpeg.bmp", {jpeg, true}},
        {"bmp.jpg", {bmp, true}},         {"cut.jpg", {jpeg.substr(0, jpeg.size() - 40), false}},
        {"svg.png", {svg, false}},        {"cut.bmp", {bmp.substr(0, bmp.size() / 2), false}},
        {"svg.jpg", {svg, false}},        {"cut.png", {png.substr(0, png.size() / 2), false}},
        {"svg.bmp", {svg, false}},        {"huge.bmp", {huge, false}},
        {"other.gif", {"GIF89a", false}},
    };
    for (const auto& [name, file] : files) ASSERT_TRUE(WriteFile(folder.filePath(name), file.first));
    ASSERT_EQ(mkfifo(folder.filePath("pipe.png").toLocal8Bit(), 0600), 0);
    ASSERT_TRUE(QFile::link("/dev/zero", folder.filePath("device.png")));
    ASSERT_TRUE(QFile::link(folder.filePath("pipe.png"), folder.filePath("link.png")));
    QFile sparse(folder.filePath("sparse.png"));
    ASSERT_TRUE(sparse.open(QIODevice::WriteOnly) && sparse.resize(qint64{3} << 30));

    const GamePaths paths(folder.path().toStdString());
    PictureStore pictures(paths);
    QElapsedTimer timer;
    const auto loads = [&](const char* name) {
        timer.start();
        const bool loaded = pictures.Load(path(name));
        EXPECT_LT(timer.elapsed(), 1000) << name;
        return loaded;
    };
    for (const auto& [name, file] : files) EXPECT_EQ(loads(name), file.second) << name;
    for (const char* const name : {"missing.png", "pipe.png", "link.png", "device.png", "sparse.png", ""}) {
        EXPECT_FALSE(loads(name)) << name;
    }
    WritePicture(folder.filePath("good.png"), Qt::red);
    ASSERT_TRUE(pictures.Load(path("good.png")));
    ASSERT_TRUE(QFile::remove(folder.filePath("good.png")));
    const Look look = {path("good.png"), 97, 134, 6, 2};
    const QPixmap crisp = pictures.Scaled(look);
    EXPECT_EQ(crisp.size(), QSize(194, 268));
    EXPECT_EQ(crisp.deviceIndependentSize(), QSizeF(97, 134));
    EXPECT_EQ(crisp.cacheKey(), pictures.Scaled(look).cacheKey());
}

}  // namespace
}  // namespace zarpel
