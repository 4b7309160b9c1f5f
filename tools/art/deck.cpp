#include "tools/art/deck.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <stdexcept>

namespace zarpel {

namespace {

constexpr const char* kSuits[] = {"espada", "basto", "oro", "copa"};

const QRegularExpression kColour("#[0-9a-f]{6}");
const QRegularExpression kLink("xlink:href=\"#([^\"]*)\"");

[[noreturn]] void Fail(const QString& file, const QString& what) {
    throw std::runtime_error((file + ": " + what).toStdString());
}

QStringList Lines(const QString& path) {
    QStringList result;
    for (const auto& line : QString::fromUtf8(ReadAll(path)).split('\n')) {
        const auto text = line.section("# ", 0, 0).trimmed();
        if (!text.isEmpty() && text != "#") result << text;
    }
    return result;
}

// What a part file holds between its <svg ...> and </svg>.
QString Content(const QString& path) {
    const auto text = QString::fromUtf8(ReadAll(path));
    const auto root = text.indexOf("<svg");
    const auto begin = text.indexOf('>', root) + 1;
    const auto end = text.lastIndexOf("</svg>");
    if (root < 0 || end < begin) Fail(path, "no <svg> element");
    return text.mid(begin, end - begin);
}

QString Place(const QString& id, const QString& transform = "translate(0 0)") {
    return QString("<use xlink:href=\"#%1\" transform=\"%2\"/>\n").arg(id, transform);
}

const QString kHalfTurn = QString("rotate(180 %1 %2)").arg(kCardWidth / 2).arg(kCardHeight / 2);

}  // namespace

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) Fail(path, file.errorString());
    return file.readAll();
}

Deck::Deck(const QString& dataFolder) : names_(Lines(dataFolder + "/naipe.txt")) {
    if (names_.size() != kCards) Fail("naipe.txt", "a deck has 40 names");
    const QDir folder(dataFolder + "/cartas");
    for (const auto& file : folder.entryList({"*.svg"}, QDir::Files, QDir::Name)) {
        parts_ += Content(folder.filePath(file));
    }
    for (const auto& line : Lines(folder.filePath("baraja.txt"))) ReadLine(line);
    for (const auto& match : kLink.globalMatch(parts_)) RequirePart(match.captured(1));
}

void Deck::RequirePart(const QString& id) const {
    if (!parts_.contains("id=\"" + id + '"')) Fail("cartas", "no part is named " + id);
}

void Deck::ReadLine(const QString& line) {
    auto words = line.split(' ', Qt::SkipEmptyParts);
    const auto kind = words.takeFirst();
    if (kind == "color" && words.size() == 2) {
        colours_[words[0]] = words[1];
        return;
    }
    if (kind == "palo" && !words.isEmpty()) {
        const auto suit = words.takeFirst();
        for (const auto& word : words) {
            const auto name = word.section('=', 0, 0);
            if (!colours_.contains(name)) Fail("baraja.txt", "no colour " + name);
            palettes_[suit][colours_[name]] = word.section('=', 1);
        }
        return;
    }
    if (kind == "puntos" && words.size() > 3) {
        const auto suit = words.takeFirst();
        const auto number = words.takeFirst();
        const auto scale = words.takeFirst();
        for (const auto& word : words) {
            const auto turn = word.section(',', 2);
            pips_[suit + number] +=
                Place(suit, QString("translate(%1) rotate(%2) scale(%3)")
                                .arg(word.section(',', 0, 1), turn.isEmpty() ? "0" : turn, scale));
        }
        return;
    }
    Fail("baraja.txt", "cannot read the line: " + line);
}

QString Deck::Pips(const QString& suit, int number) const {
    const auto name = suit + QString::number(number);
    if (pips_.contains(name)) return pips_[name];
    RequirePart(name);
    return Place(name);
}

QByteArray Deck::Document(const QString& suit, const QString& body) const {
    // One pass over the colours, so that a suit may swap two of them.
    const auto palette = palettes_.value(suit);
    QString parts;
    qsizetype done = 0;
    for (auto found = kColour.globalMatch(parts_); found.hasNext();) {
        const auto match = found.next();
        parts += QStringView(parts_).mid(done, match.capturedStart() - done);
        parts += palette.value(match.captured(), match.captured());
        done = match.capturedEnd();
    }
    parts += QStringView(parts_).mid(done);
    return QString(
               "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
               "viewBox=\"0 0 %1 %2\"><defs>%3</defs>%4</svg>")
        .arg(QString::number(kCardWidth), QString::number(kCardHeight), parts, body)
        .toUtf8();
}

QByteArray Deck::Card(int index) const {
    const QString suit = kSuits[(index - 1) / 10];
    const int number = (index - 1) % 10 + 1;
    const auto figure = "cifra" + QString::number(number);
    return Document(suit, Place("naipe") + Place("marco-" + suit) + Pips(suit, number) + Place(figure) +
                              Place(figure, kHalfTurn));
}

QByteArray Deck::Back() const { return Document({}, Place("dorso")); }

}  // namespace zarpel
