#!/usr/bin/python3
"""Plays a deal by keyboard, and by nothing but what the screen reader says: the table and the hand are what was heard.

    tests/listen/blind_deal.py build/zarpel/zarpel

Every card, sum and move must be spoken to its end. What is said of the whole table after a deal of cards must be what
the moves told before had made of it; the count at the end must be that of the cards that were heard to be taken.
"""
import re
import sys

from ear import listening
from deal_test import LETTERS, NEWS, capture
from driver import game, keys, number

CARD = r"\d+ de \w+"
CARDS = rf"{CARD}(?:(?:, | y ){CARD})*"
WHO = r"(La Cpu|Humano)"
WITHOUT_TRACE = r"Juega Humano|Se reparten tres cartas|Fin de la vuelta|.* pasa|\w+: Cpu \d+, Humano \d+"
COUNTED = {"Cartas": " de ", "Oros": " de oro", "Sietes": "7 de ", "Velo": "7 de oro", "Zarpel": "zarpel"}


class Deal:
    def __init__(self, ear):
        self.ear = ear
        self.begin()

    def begin(self):
        self.table, self.table_heard, self.hand = {}, False, {}
        self.won = {"La Cpu": [], "Humano": []}

    def understand(self, sentence):
        """Follows what is told; what is not understood fails."""
        if told := re.fullmatch(rf"{WHO} deja ({CARD}), mesa (\d)", sentence):
            assert int(told[3]) not in self.table, (sentence, self.table)
            self.table[int(told[3])] = told[2]
        elif told := re.fullmatch(rf"{WHO} (?:toma|se lleva el resto:) ({CARDS})(?: con ({CARD}))?", sentence):
            self.take(told[1], re.findall(CARD, told[2]), re.findall(CARD, told[3] or ""))
        elif told := re.fullmatch(rf"Zarpel: {WHO} deja la mesa vacía", sentence):
            self.won[told[1]].append("zarpel")
        elif re.fullmatch(r"Reparte \w+", sentence):
            self.begin()
        elif told := re.fullmatch(r"(Mesa|Mano)(?: vacía|: (.*))", sentence):
            heard = {int(place): card for place, card in re.findall(rf"(\d), ({CARD})", told[2] or "")}
            if told[1] == "Mano":
                self.hand = heard
                return
            assert heard == self.table or not self.table_heard, (heard, self.table)
            self.table, self.table_heard = heard, True
        else:
            assert re.fullmatch(WITHOUT_TRACE, sentence), sentence

    def take(self, who, cards, using):
        assert not using or sum(map(number, cards + using)) == 15, (cards, using)
        assert set(cards) <= set(self.table.values()) or not self.table_heard, (cards, self.table)
        self.table = {place: card for place, card in self.table.items() if card not in cards}
        self.won[who] += cards + using

    def next(self):
        """Hears all until the player is to move, and gives nothing, or until the count, and gives that."""
        turn = rf"(?:^notificación )?(.*Juega Humano\.|.*Cartas: Cpu .*)$|{'|'.join(NEWS)}"
        while not (said := self.ear.hear(turn))[1]:
            keys("Return")
        for sentence in re.findall(r"[^.]+(?=\.)", said[1]):
            self.understand(sentence.strip(". "))
        return said[1] if "Cartas: Cpu" in said[1] else None

    def move(self):
        if not (found := capture(self.hand, self.table)):
            place = min(self.hand)
            del self.hand[place]
            return keys(f"shift+{place}")
        place, places = found
        total = 0
        taken = ((LETTERS[place - 1], self.table[place]) for place in places)
        for key, card in [(str(place), self.hand.pop(place)), *taken]:
            total += number(card)
            keys(key)
            self.ear.hear(rf"{card} elegida, suma {total}\.")
        return keys("l")

    def check(self, count):
        for row, part in COUNTED.items():
            cpu, human = (sum(part in card for card in won) for won in self.won.values())
            assert f"{row}: Cpu {cpu}, Humano {human}." in count, (row, count, self.won)


def look_around(ear, deal):
    """The table again by Tab, the menus, and a place without a card."""
    empty = next(place for place in range(1, 9) if place not in deal.table)
    cards = [(card, f"{row} {place}") for row, lies in (("mesa", deal.table), ("mano", deal.hand))
             for place, card in sorted(lies.items())]
    last, place = cards[-1]
    for key, said in [(LETTERS[empty - 1], rf"mesa {empty}, vacía\."),
                      *(("Tab", button) for button in ("Nuevo", "Run", "Salir")),
                      *(("Tab", rf"{card}, {place}\b.* no marcada") for card, place in cards),
                      ("space", rf"{last} elegida, suma {number(last)}\."),
                      ("space", rf"{last} suelta, suma 0\."),
                      ("F10", "Archivo"), ("Down", "Nuevo"), ("Escape", "Archivo"),
                      ("Escape", f"{last}, {place}")]:
        keys(key)
        ear.hear(said)


def main():
    with listening() as ear, game(sys.argv[1]):
        deal = Deal(ear)
        deal.next()
        look_around(ear, deal)
        count = None
        while not count:
            deal.move()
            count = deal.next()
        deal.check(count)
        keys("Return")
        ear.hear(r"Puntos: Cpu \d+, Humano \d+\. Reparte .* Mesa.* Mano: .* Juega Humano\.")
        print(*ear.heard, sep="")


if __name__ == "__main__":
    main()
