#!/usr/bin/python3
"""Plays a deal by keyboard, and by nothing but what the screen reader says: the table and the hand are what was heard.

    tests/listen/blind_deal.py build/zarpel/zarpel

Every card, sum and move must be spoken to its end. What is said of the whole table after a deal of cards must be what
the moves told before had made of it; the count at the end must be that of the cards that were heard to be taken.
"""
import itertools
import re
import sys

from ear import listening
from driver import game, keys

CARD = r"\d+ de \w+"
CARDS = rf"{CARD}(?:(?:, | y ){CARD})*"
PLACES = r"(?: vacía|: ([^.]*))\."
LETTERS = "asdfghjk"
WHO = r"(La Cpu|Humano)"
BOXES = "¡¡¡ZARPEL!!!|La mesa está llena|Ninguno de los dos"


def number(card):
    return int(card.split()[0])


def by_place(text):
    """{1: "7 de oro"} of "1, 7 de oro; 3, 4 de copa"."""
    return {int(place): card for place, card in re.findall(rf"(\d), ({CARD})", text or "")}


class Deal:
    def __init__(self, ear):
        self.ear = ear
        self.table, self.hand = None, {}
        self.won = {"La Cpu": [], "Humano": []}
        self.zarpels = {"La Cpu": 0, "Humano": 0}

    def understand(self, text):
        """Follows what is told, sentence by sentence; what is not understood fails."""
        for sentence in re.findall(r"[^.]+\.", text):
            sentence = sentence.strip()
            if told := re.fullmatch(rf"{WHO} deja ({CARD}), mesa (\d)\.", sentence):
                assert int(told[3]) not in (self.table or {}), (sentence, self.table)
                if self.table is not None:
                    self.table[int(told[3])] = told[2]
            elif told := re.fullmatch(rf"{WHO} toma ({CARDS}) con ({CARD})\.", sentence):
                self.take(told[1], re.findall(CARD, told[2]), told[3])
            elif told := re.fullmatch(rf"{WHO} se lleva el resto: ({CARDS})\.", sentence):
                self.take(told[1], re.findall(CARD, told[2]))
            elif told := re.fullmatch(rf"Zarpel: {WHO} deja la mesa vacía\.", sentence):
                self.zarpels[told[1]] += 1
            elif re.fullmatch(r"Reparte \w+\.", sentence):
                self.table, self.won = None, {who: [] for who in self.won}
                self.zarpels = dict.fromkeys(self.zarpels, 0)
            elif told := re.fullmatch("Mesa" + PLACES, sentence):
                heard = by_place(told[1])
                assert self.table in (None, heard), (heard, self.table)
                self.table = heard
            elif told := re.fullmatch("Mano" + PLACES, sentence):
                self.hand = by_place(told[1])
            else:
                known = r"Juega Humano|Se reparten tres cartas|Fin de la vuelta|.* pasa|\w+: Cpu \d+, Humano \d+"
                assert re.fullmatch(rf"({known})\.", sentence), sentence

    def take(self, who, cards, using=None):
        assert not using or sum(map(number, cards + [using])) == 15, (cards, using)
        for card in cards:
            places = [place for place, lies in (self.table or {}).items() if lies == card]
            if self.table is not None:
                del self.table[places[0]]
        self.won[who] += cards + ([using] if using else [])

    def next(self):
        """Hears all until the player is to move, and gives nothing, or until the count, and gives that."""
        while True:
            said = self.ear.hear(rf"(?:^notificación )?(.*Juega Humano\.|.*Cartas: Cpu .*)$|{BOXES}")
            if not said[1]:
                keys("Return")
                continue
            self.understand(said[1])
            return said[1] if "Cartas: Cpu" in said[1] else None

    def capture(self):
        for place, card in self.hand.items():
            for count in range(1, len(self.table) + 1):
                for places in itertools.combinations(self.table, count):
                    if number(card) + sum(number(self.table[p]) for p in places) == 15:
                        return place, places
        return None

    def select(self, key, card, total):
        keys(key)
        self.ear.hear(rf"{card} elegida, suma {total}\.")
        return total

    def move(self):
        if not (found := self.capture()):
            place = min(self.hand)
            del self.hand[place]
            return keys(f"shift+{place}")
        place, places = found
        total = self.select(str(place), self.hand[place], number(self.hand[place]))
        for taken in places:
            total = self.select(LETTERS[taken - 1], self.table[taken], total + number(self.table[taken]))
        del self.hand[place]
        return keys("l")

    def check(self, count):
        heard = {row: (int(cpu), int(human)) for row, cpu, human in re.findall(r"(\w+): Cpu (\d+), Humano (\d+)", count)}
        rows = {"Cartas": len, "Oros": lambda won: sum(card.endswith("oro") for card in won),
                "Sietes": lambda won: sum(number(card) == 7 for card in won),
                "Velo": lambda won: won.count("7 de oro")}
        sides = self.won["La Cpu"], self.won["Humano"]
        for row, figure in rows.items():
            assert heard[row] == tuple(map(figure, sides)), (row, heard, self.won)
        assert heard["Zarpel"] == (self.zarpels["La Cpu"], self.zarpels["Humano"]), (heard, self.zarpels)
        points = [zarpels + sum(figure(own) > figure(other) for figure in rows.values())
                  for own, other, zarpels in zip(sides, sides[::-1], heard["Zarpel"])]
        assert heard["Puntos"] == tuple(points), (heard, points)


def look_around(ear, deal):
    """The table again by Tab, the menus, and a place without a card."""
    empty = next(place for place in range(1, 9) if place not in deal.table)
    keys(LETTERS[empty - 1])
    ear.hear(rf"mesa {empty}, vacía\.")
    for button in ("Nuevo", "Run", "Salir"):
        keys("Tab")
        ear.hear(button)
    for row, cards in (("mesa", deal.table), ("mano", deal.hand)):
        for place, card in sorted(cards.items()):
            keys("Tab")
            ear.hear(rf"{card}, {row} {place}\b.* no marcada")
    keys("space")
    ear.hear(rf"{card} elegida, suma {number(card)}\.")
    keys("space")
    ear.hear(rf"{card} suelta, suma 0\.")
    keys("F10")
    ear.hear("Archivo")
    keys("Down")
    ear.hear("Nuevo")
    keys("Escape")
    ear.hear("Archivo")
    keys("Escape")
    ear.hear(rf"{card}, mano")


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
        print(*ear.lines(), sep="\n")


if __name__ == "__main__":
    main()
