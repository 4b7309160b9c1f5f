// hoja DATA-FOLDER PICTURES-FOLDER FILE.png: the contact sheet, from the pictures that dibuja has made. The
// whole deck in four rows of ten, the back and the icons, and below the same deck at table size on the
// table's green.
#include <QDir>
#include <QPainter>
#include <cstdio>

#include "tools/art/deck.h"
#include "tools/art/pictures.h"

namespace {

using namespace zarpel;

constexpr QSize kTableCard{80, 125};
constexpr int kGap = 16;

void DeckRows(QPainter& painter, const QList<QImage>& cards, QPoint corner, QSize size) {
    for (int i = 0; i < kCards; ++i) {
        const QPoint at(i % 10 * (size.width() + kGap), i / 10 * (size.height() + kGap));
        painter.drawImage(corner + at,
                          cards[i].scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: hoja DATA-FOLDER PICTURES-FOLDER FILE.png\n", stderr);
        return 2;
    }
    const QDir pictures(QString::fromLocal8Bit(argv[2]));
    const auto load = [&](const QString& name) { return QImage(pictures.filePath(name)); };
    const Deck deck(QString::fromLocal8Bit(argv[1]));
    QList<QImage> cards;
    for (int i = 1; i <= kCards; ++i) cards << load("app/" + deck.FileName(i));

    const int width = 10 * (kCardPixels.width() + kGap) + kGap;
    const int deckHeight = 4 * (kCardPixels.height() + kGap) + kGap;
    const int tableWidth = 10 * (kTableCard.width() + kGap) + kGap;
    QImage sheet(width, deckHeight + 4 * (kTableCard.height() + kGap) + kGap, QImage::Format_RGB32);
    sheet.fill(QColor(70, 74, 78));
    QPainter painter(&sheet);
    DeckRows(painter, cards, {kGap, kGap}, kCardPixels);
    painter.fillRect(QRect(0, deckHeight, tableWidth, sheet.height() - deckHeight), QColor(0, 128, 0));
    DeckRows(painter, cards, {kGap, deckHeight + kGap}, kTableCard);
    QPoint at(tableWidth + kGap, deckHeight + kGap);
    painter.drawImage(at, load("app/dibujo.jpg"));
    at.rx() += kCardPixels.width() + kGap;
    painter.drawImage(at, load("builtin/dorso.jpg"));
    at.rx() += kBuiltinBackPixels.width() + kGap;
    painter.fillRect(QRect(at - QPoint(kGap / 2, kGap / 2), QSize(1700, 530)), QColor(240, 240, 240));
    int row = at.y();
    for (const auto* name : {"nuevo", "run", "salir", "acerca"}) {
        int x = at.x();
        for (const int size : {48, 96}) {
            painter.drawImage(x, row, load(QString("builtin/%1-%2.png").arg(name).arg(size)));
            x += size + kGap;
        }
        row += 96 + kGap;
    }
    at.rx() += 200;
    for (const int size : {512, 256, 128, 64, 48, 32, 24, 22, 16}) {
        painter.drawImage(at, load(QString("builtin/zarpel-%1.png").arg(size)));
        at.rx() += size + kGap;
    }
    painter.end();
    return sheet.save(QString::fromLocal8Bit(argv[3])) ? 0 : 1;
}
