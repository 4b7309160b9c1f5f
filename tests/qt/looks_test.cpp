#include <sys/stat.h>

#include <QFontMetrics>

#include "platform/qt/colors.h"
#include "platform/qt/files.h"
#include "platform/qt/fonts.h"
#include "tests/qt/qt_table.h"
#include "ui/resultadosfrm.h"

namespace zarpel {
namespace {

using LooksTest = QtTable;

// The whole caption stands inside the label.
void ExpectWhole(const LabelView& view, bool wrap = false) {
    const QString& text = view.text();
    const QFontMetrics metrics(view.font());
    const int width = wrap ? metrics.boundingRect(view.rect(), Qt::TextWordWrap, text).width()
                           : metrics.horizontalAdvance(text);
    EXPECT_LE(width, view.width()) << text.toStdString();
    EXPECT_GT(metrics.capHeight(), 2);
}

TEST_F(LooksTest, NoNicknameIsCutOff) {
    ExpectWhole(ViewOf<LabelView>(Game.Label1));
    for (const char* const name : {"", "Ana", "Maximiliano", "Hermenegildo Bustamante y Larreta-Uriarte"}) {
        for (Label* const label : {&Game.Label2, &Game.namelbl}) {
            label->Caption = name;
            ExpectWhole(ViewOf<LabelView>(*label));
        }
        Game.cartellbl.Caption = std::string("Reparte ") + name + " - Juega Cpu";
        QCoreApplication::processEvents();
        ExpectWhole(ViewOf<LabelView>(Game.cartellbl), true);
        Naipes->aNombrejugador(name);
        Resultadosfrm results(Desktop);
        results.Resultados({});
        InBox([&](QWidget& window) {
            ExpectWhole(ViewOf<LabelView>(results.Label1), true);
            ExpectWhole(ViewOf<LabelView>(results.Label2));
            ExpectWhole(ViewOf<LabelView>(results.cartasp1lbl));
            window.close();
        });
        Desktop.ShowModal(results);
    }
    // Nobody can read two hundred letters in the width of a card; the tooltip has them all.
    Game.Label2.Caption = "<b>" + std::string(200, 'm');
    const auto& view = ViewOf<LabelView>(Game.Label2);
    EXPECT_EQ(view.toolTip(), QString::fromStdString("<p>&lt;b&gt;" + std::string(200, 'm') + "</p>"));
    const FittedText fitted = FitText(view.text(), view.font(), view.size(), false);
    EXPECT_TRUE(fitted.Text.startsWith("<b>mm") && fitted.Text.endsWith("…"));
    EXPECT_LE(QFontMetrics(fitted.Font).horizontalAdvance(fitted.Text), view.width());
    Game.Label2.Caption = "Ana";
    EXPECT_EQ(view.toolTip(), "");
}

TEST_F(LooksTest, PaintsTheColoursAndTheCards) {
    LayCards(Game, {Card(7, 'o')}, {Card(2, 'e')}, {Card(3, 'b')});
    Game.BackColor = Rgb(10, 20, 30);
    Game.Frame1.BackColor = Rgb(40, 50, 60);
    QCoreApplication::processEvents();
    const QImage picture = Window().grab().toImage();
    const auto cornerOf = [this](Image& image) {
        return ViewOf<ImageView>(image).mapTo(&Window(), QPoint());
    };
    const struct {
        const char* What;
        QPoint At;
        QColor Color;
    } cases[] = {{"background", {5, 400}, {10, 20, 30}},
                 {"table", BareTable(), {40, 50, 60}},
                 {"table card", Middle(Game.mesaimg[0]), ColorOfCard(Card(7, 'o'))},
                 {"its corner", cornerOf(Game.mesaimg[0]), {40, 50, 60}},
                 {"own card", Middle(Game.cartap2img[0]), ColorOfCard(Card(2, 'e'))},
                 {"its corner", cornerOf(Game.cartap2img[0]), {10, 20, 30}},
                 {"empty place", Middle(Game.mesaimg[1]), {40, 50, 60}}};
    for (const auto& c : cases) EXPECT_EQ(picture.pixelColor(c.At).name(), c.Color.name()) << c.What;
    const QColor back = picture.pixelColor(Middle(Game.fondop1img[0]));
    EXPECT_GT(back.blue(), 240);  // of the JPEG picture
}

TEST(PictureFiles, AreReadOnceAndScaledCrisply) {
    const QTemporaryDir folder;
    const auto path = [&folder](const char* name) { return folder.path().toStdString() + "\\" + name; };
    WritePicture(folder.filePath("good.png"), Qt::red, {40, 60});
    WritePicture(folder.filePath("photo.jpg"), Qt::red, {3000, 2000});
    ASSERT_TRUE(ReplaceFile(path("damaged.png"), "\x89PNG\r\n\x1a\n and no more"));
    ASSERT_EQ(mkfifo(folder.filePath("pipe.png").toLocal8Bit(), 0600), 0);

    Pictures pictures;
    for (const char* const name : {"missing.png", "damaged.png", "pipe.png", ""}) {
        EXPECT_FALSE(pictures.Load(path(name))) << name;
        EXPECT_EQ(ReadWholeFile(path(name), 100).has_value(), std::string(name) == "damaged.png") << name;
    }
    EXPECT_TRUE(pictures.Load(path("photo.jpg")));
    ASSERT_TRUE(pictures.Load(path("good.png")));
    ASSERT_TRUE(QFile::remove(folder.filePath("good.png")));
    const QPixmap crisp = pictures.Scaled(path("good.png"), {97, 134}, 6, 2);
    EXPECT_EQ(crisp.size(), QSize(194, 268));
    EXPECT_EQ(crisp.deviceIndependentSize(), QSizeF(97, 134));
    EXPECT_EQ(crisp.cacheKey(), pictures.Scaled(path("good.png"), {97, 134}, 6, 2).cacheKey());
    EXPECT_EQ(crisp.toImage().pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(crisp.toImage().pixelColor(97, 134), QColor(Qt::red));
}

}  // namespace
}  // namespace zarpel
