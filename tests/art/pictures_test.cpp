// The pictures that the build drew from the sources in data/: of the right size, the same each time, and with
// what a player needs to see: cards that cannot be mistaken for one another, and the frame's breaks that tell
// the suit.
#include "tools/art/pictures.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QDirIterator>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numeric>
#include <span>

#include "tools/art/deck.h"

namespace zarpel {
namespace {

// The 40 cards, in the order of the card index.
const QList<QImage>& Cards() {
    static const QList<QImage> cards = [] {
        const Deck deck(ZARPEL_DATA_DIR);
        QList<QImage> read;
        for (int i = 1; i <= kCards; ++i) {
            const QImage card(ZARPEL_PICTURES_DIR "/app/" + deck.FileName(i));
            read << card.convertToFormat(QImage::Format_ARGB32);
        }
        return read;
    }();
    return cards;
}

std::span<const QRgb> PixelsOf(const QImage& picture) {
    return {reinterpret_cast<const QRgb*>(picture.constBits()),
            static_cast<std::size_t>(picture.width() * picture.height())};
}

// In how many places the pixels of two pictures differ.
int CountDifferent(const QImage& a, const QImage& b, bool (*differ)(QRgb, QRgb)) {
    const auto one = PixelsOf(a), other = PixelsOf(b);
    return std::inner_product(one.begin(), one.end(), other.begin(), 0, std::plus(), differ);
}

TEST(Pictures, HaveTheirSizesAndAreTheSameBytesEachTime) {
    const QTemporaryDir again;
    DrawAll(ZARPEL_DATA_DIR, again.path());
    const QDir built(ZARPEL_PICTURES_DIR), drawn(again.path());
    QDirIterator it(drawn.path(), {"*.png", "*.jpg"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const auto path = it.next(), name = drawn.relativeFilePath(path);
        QSize size = name == "builtin/dorso.jpg" ? QSize(95, 150) : kCardPixels;
        const int side = name.section('-', 1).section('.', 0, 0).toInt();  // an icon's name ends in it
        if (side != 0) size = {side, side};
        EXPECT_EQ(QImage(path).size(), size) << name.toStdString();
        EXPECT_EQ(ReadAll(path), ReadAll(built.filePath(name))) << name.toStdString();
    }
}

TEST(Pictures, CardsDifferClearlyFromOneAnotherOnTheTable) {
    QList<QImage> small;
    for (const auto& card : Cards()) {
        small << card.scaled(80, 125, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                     .convertToFormat(QImage::Format_ARGB32);
    }
    // Nobody would call them the same colour.
    const auto differ = [](QRgb a, QRgb b) {
        return std::abs(qRed(a) - qRed(b)) > 60 || std::abs(qGreen(a) - qGreen(b)) > 60 ||
               std::abs(qBlue(a) - qBlue(b)) > 60;
    };
    for (int a = 0; a < kCards; ++a) {
        for (int b = a + 1; b < kCards; ++b) {
            EXPECT_GT(CountDifferent(small[a], small[b], differ), 80 * 125 / 10)
                << "cards " << a + 1 << " and " << b + 1;
        }
    }
}

using Light = std::array<double, 3>;  // linear red, green and blue

// The mean of a suit's signs on its pip cards: of what is neither pale as the stock nor dark as the lines.
Light SignsOf(int suit) {
    Light mean{};
    double count = 0;
    for (int i = suit * 10 + 1; i <= suit * 10 + 6; ++i) {
        for (const QRgb pixel : PixelsOf(Cards()[i])) {
            const QColor colour(pixel);
            if (colour.hsvSaturation() < 90 || colour.value() < 70) continue;
            const float rgb[] = {colour.redF(), colour.greenF(), colour.blueF()};
            for (std::size_t c = 0; c < 3; ++c) mean[c] += std::pow(rgb[c], 2.2);
            ++count;
        }
    }
    for (double& channel : mean) channel /= count;
    return mean;
}

TEST(Pictures, SuitsKeepTheirColoursApartAlsoForTheColourBlind) {
    // Linear RGB as seen without the red, and without the green cones (Machado, Oliveira and Fernandes,
    // 2009).
    constexpr Light kSights[][3] = {
        {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
        {{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}},
        {{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}};
    const Light suits[] = {SignsOf(0), SignsOf(1), SignsOf(2), SignsOf(3)};
    for (const auto& sight : kSights) {
        const auto shown = [](const Light& light, const Light& cone) {
            const double part = std::inner_product(light.begin(), light.end(), cone.begin(), 0.0);
            return 255 * std::pow(std::clamp(part, 0.0, 1.0), 1 / 2.2);
        };
        for (const Light& a : suits) {
            for (const Light* b = &a + 1; b != std::end(suits); ++b) {
                double square = 0;
                for (const Light& cone : sight) square += std::pow(shown(a, cone) - shown(*b, cone), 2);
                EXPECT_GT(std::sqrt(square), 40)
                    << "suits " << &a - suits << " and " << b - suits << ", sight " << &sight - kSights;
            }
        }
    }
}

TEST(Pictures, TheFramesBreaksTellTheSuitAndCardsEndAtTheirRoundedEdge) {
    const int breaks[] = {2, 3, 0, 1};
    const int width = kCardPixels.width(), height = kCardPixels.height();
    const int rule = 21 * height / kCardHeight;
    const QImage edge = Draw(
        "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 360 528'>"
        "<rect x='1' y='1' width='358' height='526' rx='22' stroke='#000' stroke-width='2'/></svg>",
        kCardPixels);
    // Which pixels are covered, but for what the limit to 256 colours blurs.
    const auto coverDiffers = [](QRgb a, QRgb b) { return std::abs(qAlpha(a) - qAlpha(b)) > 16; };
    for (int i = 0; i < kCards; ++i) {
        SCOPED_TRACE(i + 1);
        for (const int y : {rule, height - 1 - rule}) {
            // Between the corners, dark runs are the rule's pieces.
            int pieces = 0;
            bool dark = false;
            for (int x = width / 10; x < width * 9 / 10; ++x) {
                const bool now = qGray(Cards()[i].pixel(x, y)) < 128;
                pieces += now && !dark;
                dark = now;
            }
            EXPECT_EQ(pieces - 1, breaks[i / 10]) << "row " << y;
        }
        EXPECT_EQ(CountDifferent(Cards()[i], edge, coverDiffers), 0);
    }
}

}  // namespace
}  // namespace zarpel
