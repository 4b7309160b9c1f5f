// What the windows paint, and what a screen reader finds in them and is told.
#include <sys/stat.h>

#include <QAccessible>
#include <QFontMetrics>
#include <algorithm>
#include <iterator>

#include "qt/files.h"
#include "qt/fonts.h"
#include "tests/qt/qt_table.h"

namespace zarpel {
namespace {

using LooksTest = QtTable;
using Names = std::vector<std::string>;

// The names of the cards at and below `node`; "*" marks a selected one.
Names CardsOf(QAccessibleInterface* node) {
    const std::string name = node->text(QAccessible::Name).toStdString();
    if (node->role() == QAccessible::CheckBox) return {(node->state().checked ? "* " : "") + name};
    if (node->role() == QAccessible::Graphic) return {name};
    Names names;
    for (int i = 0; i < node->childCount(); ++i) {
        EXPECT_EQ(node->indexOfChild(node->child(i)), i);
        std::ranges::copy(CardsOf(node->child(i)), std::back_inserter(names));
    }
    return names;
}

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
    for (int pixels = 5; pixels < 60; ++pixels) {
        QFont font(Window().font());
        font.setPixelSize(pixels);
        const QString path = QStringLiteral("Click Here");
        EXPECT_EQ(ShortenPath(path, font, NaturalSize(path, font).width()).Text, path) << pixels;
    }
}

TEST_F(LooksTest, TheTreeHoldsTheShownCardsAndNoHiddenOne) {
    LayCards(Game, {Card(7, 'o'), 0, Card(1, 'c')}, {0, Card(10, 'e')}, {Card(3, 'b'), 0, Card(4, 'b')});
    // Between its move and the next one the computer's card is gone and its back is still there.
    Game.cartap1img[0].Visible = false;
    const auto accessible = [](Image& image) {
        return QAccessible::queryAccessibleInterface(&ViewOf<ImageView>(image));
    };
    accessible(Game.mesaimg[0])->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    const auto shown = [this] {
        QCoreApplication::processEvents();
        return CardsOf(QAccessible::queryAccessibleInterface(&Window()));
    };
    EXPECT_EQ(shown(), (Names{"* 7 de oro, mesa 1", "1 de copa, mesa 3", "carta tapada, cpu 1",
                              "10 de espada, mano 2", "carta tapada, cpu 3"}));
    // A name is told when it is set, so a card gets it when the computer turns it up.
    EXPECT_EQ(ViewOf<ImageView>(Game.cartap1img[2]).accessibleName().indexOf("4 de basto"), -1);
    Game.fondop1img[2].Visible = false;
    EXPECT_EQ(shown().back(), "4 de basto, cpu 3");
    EXPECT_TRUE(accessible(Game.fondop1img[0])->actionInterface()->actionNames().isEmpty());
}

// A screen reader is told what stands when the event is over, not what was tried meanwhile.
TEST_F(LooksTest, ACaptionIsToldOnceTheEventIsOver) {
    const auto& view = ViewOf<LabelView>(Game.SumandoLbl);
    const QString before = view.text();
    Game.SumandoLbl.Caption = "15";
    EXPECT_EQ(view.text(), before);
    QTRY_COMPARE(view.text(), "15");
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
        {"other.gif", {"GIF89a", false}}, {"cut.png", {png.substr(0, png.size() / 2), false}},
        {"huge.bmp", {huge, false}},
    };
    for (const auto& [name, file] : files) ASSERT_TRUE(WriteFile(folder.filePath(name), file.first));
    ASSERT_EQ(mkfifo(folder.filePath("pipe.png").toLocal8Bit(), 0600), 0);
    ASSERT_TRUE(QFile::link("/dev/zero", folder.filePath("device.png")));
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
    for (const char* const name : {"missing.png", "pipe.png", "device.png", "sparse.png", ""}) {
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
