// The deck as text: reads the drawn parts and the deck's description, and composes each picture as one SVG
// document.
//
// data/naipe.txt           the 40 picture file names, one a line, in the order of the card index 1 to 40
// data/cartas/baraja.txt   the deck's description (its own opening comment tells the lines it may hold)
// data/cartas/*.svg        the parts: every element with an id can be placed on a card
//
// Lengths are in card units: a card is 360 wide and 528 high.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace zarpel {

constexpr int kCards = 40;
constexpr int kCardWidth = 360;
constexpr int kCardHeight = 528;

class Deck {
  public:
    // Throws std::runtime_error, with the file and what is wrong in it, when the sources do not make a deck.
    explicit Deck(const QString& dataFolder);

    // Picture file name of a card; index is 1 to 40, as in the game.
    QString FileName(int index) const { return names_.at(index - 1); }
    // The whole card as an SVG document.
    QByteArray Card(int index) const;
    // The card back, to the full rectangle (JPEG has no transparency).
    QByteArray Back() const;

  private:
    void ReadLine(const QString& line);
    void RequirePart(const QString& id) const;
    QByteArray Document(const QString& suit, const QString& body) const;
    QString Pips(const QString& suit, int number) const;

    QStringList names_;
    QString parts_;
    QHash<QString, QString> colours_;                   // the parts' own colour, by name
    QHash<QString, QHash<QString, QString>> palettes_;  // by suit: the parts' colour -> the suit's
    QHash<QString, QString> pips_;                      // by suit and number: the placed signs
};

// All bytes of a file; throws std::runtime_error when it cannot be read.
QByteArray ReadAll(const QString& path);

}  // namespace zarpel
