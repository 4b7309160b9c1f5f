// The pictures that the art program makes from the sources in data/: complete, of the right size, and with
// what a player needs to see: cards that cannot be mistaken for one another, and the frame's breaks that tell
// the suit.
#include "tools/art/pictures.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QDirIterator>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

#include "tools/art/deck.h"

namespace zarpel {
namespace {

class Pictures : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<QTemporaryDir>();
        drawAll(ZARPEL_DATA_DIR, folder_->path());
        const auto list = readAll(folder_->filePath("app/naipe.dat"));
        ASSERT_EQ(list.size(), 640);
        for (int record = 0; record < 640; record += 16) {
            const auto name = list.mid(record + 2, list[record] + 256 * list[record + 1]);
            names_ << name;
            cards_ << QImage(folder_->filePath("app/" + name)).convertToFormat(QImage::Format_ARGB32);
        }
    }
    static void TearDownTestSuite() { folder_.reset(); }

    static inline std::unique_ptr<QTemporaryDir> folder_;
    static inline QStringList names_;  // of the 40 cards, in the order of the card index
    static inline QList<QImage> cards_;
};

TEST_F(Pictures, AreAllThereInTheirSizesAndTheSameBytesEachTime) {
    QHash<QString, QSize> expected{{"app/naipe.dat", QImage().size()},
                                   {"app/dibujo.jpg", kCardPixels},
                                   {"builtin/dorso.jpg", {95, 150}},
                                   {"ayuda/dorso.png", kCardPixels}};
    for (const char* const name : {"nuevo", "run", "salir", "acerca"}) {
        for (const int size : {48, 96, 192}) {
            expected[QString("builtin/%1-%2.png").arg(name).arg(size)] = {size, size};
        }
    }
    for (const char* const name : {"informacion", "pregunta", "aviso", "error"}) {
        for (const int size : {32, 64, 128}) {
            expected[QString("builtin/%1-%2.png").arg(name).arg(size)] = {size, size};
        }
    }
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        expected[QString("builtin/zarpel-%1.png").arg(size)] = {size, size};
    }
    const char* suits[] = {"espada", "basto", "oro", "copa"};
    for (int i = 0; i < kCards; ++i) {
        const auto name = QString("%1%2.png").arg(suits[i / 10]).arg(i % 10 + 1, 2, 10, QChar('0'));
        EXPECT_EQ(names_[i], name);
        expected["app/" + name] = kCardPixels;
    }
    const QTemporaryDir again;
    drawAll(ZARPEL_DATA_DIR, again.path());
    const QDir folder(folder_->path());
    for (QDirIterator it(folder.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const auto path = it.next(), name = folder.relativeFilePath(path);
        EXPECT_EQ(QImage(path).size(), expected.take(name)) << name.toStdString();
        EXPECT_EQ(readAll(path), readAll(again.filePath(name))) << name.toStdString();
    }
    EXPECT_TRUE(expected.isEmpty());
}

TEST_F(Pictures, CardsDifferClearlyFromOneAnotherOnTheTable) {
    constexpr QSize kTable(80, 125);
    QList<QImage> small;
    for (const auto& card : cards_) {
        small << card.scaled(kTable, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    for (int a = 0; a < kCards; ++a) {
        for (int b = a + 1; b < kCards; ++b) {
            // Pixels that nobody would call the same colour.
            int different = 0;
            for (int i = 0; i < kTable.width() * kTable.height(); ++i) {
                const QPoint at(i % kTable.width(), i / kTable.width());
                const QColor one = small[a].pixelColor(at), other = small[b].pixelColor(at);
                different += std::abs(one.red() - other.red()) > 60 ||
                             std::abs(one.green() - other.green()) > 60 ||
                             std::abs(one.blue() - other.blue()) > 60;
            }
            EXPECT_GT(different, 80 * 125 / 10) << "cards " << a + 1 << " and " << b + 1;
        }
    }
}

TEST_F(Pictures, SuitsKeepTheirColoursApartAlsoForTheColourBlind) {
    // Linear RGB as seen without the red, and without the green cones (Machado, Oliveira and Fernandes,
    // 2009).
    constexpr double kSights[][9] = {
        {1, 0, 0, 0, 1, 0, 0, 0, 1},
        {0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998},
        {0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881}};
    // The signs of the pip cards, without stock and lines: what is neither pale nor nearly black.
    double means[4][3] = {};
    for (int suit = 0; suit < 4; ++suit) {
        double count = 0;
        for (int i = 0; i < 6 * kCardPixels.width() * kCardPixels.height(); ++i) {
            const int row = i / kCardPixels.width(), height = kCardPixels.height();
            const auto& card = cards_[suit * 10 + 1 + row / height];
            const QColor colour = card.pixelColor(i % kCardPixels.width(), row % height);
            if (colour.hsvSaturation() < 90 || colour.value() < 70) continue;
            const float rgb[] = {colour.redF(), colour.greenF(), colour.blueF()};
            for (int c = 0; c < 3; ++c) means[suit][c] += std::pow(rgb[c], 2.2);
            ++count;
        }
        for (double& channel : means[suit]) channel /= count;
    }
    for (const auto& sight : kSights) {
        const auto shown = [&](const double* light, int c) {
            const double part = std::inner_product(light, light + 3, std::next(sight, 3L * c), 0.0);
            return 255 * std::pow(std::clamp(part, 0.0, 1.0), 1 / 2.2);
        };
        for (int pair = 0; pair < 16; ++pair) {
            const int a = pair / 4, b = pair % 4;
            if (a >= b) continue;
            double square = 0;
            for (int c = 0; c < 3; ++c) square += std::pow(shown(means[a], c) - shown(means[b], c), 2);
            EXPECT_GT(std::sqrt(square), 40)
                << "suits " << a << " and " << b << ", sight " << &sight - kSights;
        }
    }
}

TEST_F(Pictures, TheFramesBreaksTellTheSuitAndCardsEndAtTheirRoundedEdge) {
    const int breaks[] = {2, 3, 0, 1};
    const double radius = 22.0 * kCardPixels.width() / kCardWidth;
    const int width = kCardPixels.width(), height = kCardPixels.height();
    for (int i = 0; i < kCards; ++i) {
        const int rule = 21 * height / kCardHeight;
        for (const int y : {rule, height - 1 - rule}) {
            // From the middle of the left side's corner to that of the right one, dark runs are the rule's
            // pieces.
            int pieces = 0;
            bool dark = false;
            for (int x = width / 10; x < width * 9 / 10; ++x) {
                const bool now = qGray(cards_[i].pixel(x, y)) < 128;
                pieces += now && !dark;
                dark = now;
            }
            EXPECT_EQ(pieces - 1, breaks[i / 10]) << names_[i].toStdString() << " row " << y;
        }
        int outside = 0, holes = 0;
        for (int at = 0; at < width * height; ++at) {
            // How far the pixel lies beyond the nearest corner's circle; 0 along the straight edges.
            const int column = at % width, row = at / width;
            const double x = column + 0.5, y = row + 0.5;
            const double dx = std::max({radius - x, x - (width - radius), 0.0});
            const double dy = std::max({radius - y, y - (height - radius), 0.0});
            const double beyond = std::hypot(dx, dy) - radius;
            const int alpha = qAlpha(cards_[i].pixel(column, row));
            outside += beyond > 1.5 && alpha != 0;
            holes += beyond < -3 && alpha != 255;
        }
        EXPECT_EQ(outside, 0) << names_[i].toStdString();
        EXPECT_EQ(holes, 0) << names_[i].toStdString();
    }
}

}  // namespace
}  // namespace zarpel
