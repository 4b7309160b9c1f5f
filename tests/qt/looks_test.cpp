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

TEST(PictureFiles, AreReadOnceAndScaledCrisply) {
    const QTemporaryDir folder;
    const auto path = [&folder](const char* name) { return folder.path().toStdString() + "\\" + name; };
    WritePicture(folder.filePath("good.png"), Qt::red);
    ASSERT_TRUE(ReplaceFile(path("damaged.png"), "\x89PNG\r\n\x1a\n and no more"));
    ASSERT_EQ(mkfifo(folder.filePath("pipe.png").toLocal8Bit(), 0600), 0);

    PictureStore pictures;
    for (const char* const name : {"missing.png", "damaged.png", "pipe.png", ""}) {
        EXPECT_FALSE(pictures.Load(path(name))) << name;
    }
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
