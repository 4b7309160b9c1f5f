#include "tools/art/pictures.h"

#include <QDir>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>
#include <algorithm>
#include <stdexcept>

#include "tools/art/deck.h"

namespace zarpel {

namespace {

void Write(const QString& path, const QImage& picture, const char* format, int quality) {
    QImageWriter writer(path, format);
    writer.setQuality(quality);
    if (!writer.write(picture)) throw std::runtime_error((path + ": " + writer.errorString()).toStdString());
}

void WritePng(const QString& path, const QImage& picture) { Write(path, picture, "png", 0); }

// JPEG has no transparency: what nothing covers is white.
void WriteJpeg(const QString& path, const QImage& picture) {
    QImage opaque(picture.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(0, 0, picture);
    Write(path, opaque, "jpg", 92);
}

// "medidas.txt" says of each icon the folder that it goes to, its source, its name, and its sizes in pixels.
void DrawIcons(const QString& from, const QDir& out) {
    const QString list = QString::fromUtf8(ReadAll(from + "/medidas.txt"));
    for (const QString& line : list.split('\n', Qt::SkipEmptyParts)) {
        QStringList words = line.split(' ', Qt::SkipEmptyParts);
        const QString folder = words.takeFirst(), source = words.takeFirst(), name = words.takeFirst();
        const QByteArray svg = ReadAll(QString("%1/%2.svg").arg(from, source));
        for (const QString& size : words) {
            const int pixels = size.toInt();
            WritePng(out.filePath(QString("%1/%2-%3.png").arg(folder, name, size)),
                     Draw(svg, {pixels, pixels}));
        }
    }
}

}  // namespace

QImage Draw(const QByteArray& svg, QSize pixels) {
    QSvgRenderer renderer(svg);
    if (!renderer.isValid()) throw std::runtime_error("a picture is not valid SVG");
    QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(QPointF(0, 0), pixels));
    return picture;
}

QImage WithPalette(const QImage& picture) {
    const auto source = picture.convertToFormat(QImage::Format_ARGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < source.width(); ++x) ++counts[source.pixel(x, y)];
    }

    // The drawings have few flat colours and many mixtures along their edges. The most frequent colours, told
    // apart to 4 bits a channel, hold all of the former and are near enough to the latter.
    auto colours = counts.keys();
    std::sort(colours.begin(), colours.end(),
              [&](QRgb a, QRgb b) { return counts[a] != counts[b] ? counts[a] > counts[b] : a < b; });
    QSet<QRgb> taken;
    QList<QRgb> palette;
    for (const auto colour : colours) {
        const auto coarse = colour & 0xF0F0F0F0;
        if (palette.size() == 256 || taken.contains(coarse)) continue;
        taken << coarse;
        palette << colour;
    }

    return source.convertToFormat(QImage::Format_Indexed8, palette);
}

QByteArray CardList(const QStringList& names) {
    QByteArray list;
    for (const auto& name : names) {
        const auto text = name.toLatin1();
        if (text.size() > 14) throw std::runtime_error(name.toStdString() + ": more than 14 bytes");
        list += QByteArray(1, static_cast<char>(text.size())) + '\0' + text.leftJustified(14, '\0');
    }
    return list;
}

void DrawAll(const QString& dataFolder, const QString& outFolder) {
    const QDir out(outFolder);
    for (const auto* folder : {"app", "builtin", "boxes", "tipos", "ayuda"}) {
        if (!out.mkpath(folder))
            throw std::runtime_error((outFolder + ": cannot make the folder").toStdString());
    }
    const Deck deck(dataFolder);
    QStringList names;
    for (int index = 1; index <= kCards; ++index) {
        const auto name = deck.FileName(index);
        WritePng(out.filePath("app/" + name), WithPalette(Draw(deck.Card(index), kCardPixels)));
        names << name;
    }
    QFile list(out.filePath("app/naipe.dat"));
    const auto records = CardList(names);
    if (!list.open(QIODevice::WriteOnly) || list.write(records) != records.size()) {
        throw std::runtime_error(list.fileName().toStdString() + ": cannot be written");
    }
    const auto back = deck.Back();
    WriteJpeg(out.filePath("app/dibujo.jpg"), Draw(back, kCardPixels));
    WriteJpeg(out.filePath("builtin/dorso.jpg"), Draw(back, kBuiltinBackPixels));
    WritePng(out.filePath("ayuda/dorso.png"), WithPalette(Draw(back, kCardPixels)));
    DrawIcons(dataFolder + "/iconos", out);
}

}  // namespace zarpel
