#!/usr/bin/python3
"""Plays one deal of the real program, from the first distribution to the closed results window.

    tests/program/deal_test.py build/zarpel/zarpel keyboard|mouse [3840x2160]

With the keyboard, keys are also struck while the computer moves: they arrive afterwards, in order.
"""
import itertools
import sys

from driver import click, desktop, drag, game, keys, number, wait

LETTERS = "asdfghjk"
ZARPEL = "¡¡¡ZARPEL!!!"
NEWS = (ZARPEL, "La mesa está llena y ninguna de sus cartas suma 15: pasa el turno",
        "Ninguno de los dos puede jugar: se reparte de nuevo")


class Keyboard:
    def select(self, row, place, card):
        keys(str(place) if row == "mano" else LETTERS[place - 1])

    def take(self, table):
        keys("l")

    def lay(self, place, card, table):
        keys(f"shift+{place}")


class Mouse:
    def select(self, row, place, card):
        click(card)

    def take(self, table):
        click(table.find("Tomar Cartas"))

    def lay(self, place, card, table):
        drag(card, table.area(3).corner)


def capture(hand, table):
    """The places of a card of the hand and of cards of the table that make 15, all given by place; or nothing."""
    for place, card in hand.items():
        for count in range(1, len(table) + 1):
            for places in itertools.combinations(table, count):
                if number(card) + sum(number(table[p]) for p in places) == 15:
                    return place, places
    return None


class Deal:
    def __init__(self, running, hands=Keyboard()):
        self.running = running
        self.hands = hands

    def next(self):
        """Reads all boxes; gives the results window, or the table when it is the player's turn."""
        while (event := wait(self.event, "the next move")).name not in ("Resultados", "Playing"):
            self.read(event)
        return event

    def event(self):
        """What the player can react to: a box, the results window, or the table when it is the player's turn."""
        running = self.running
        if other := running.box() or running.named("Resultados"):
            return other
        if not running.table().humans_turn():
            return None
        table = running.table()  # the first look may have begun while the computer moved
        return table if table.active and table.humans_turn() and table.cards("mano") else None

    def read(self, box):
        [text] = box.texts()
        assert text in NEWS, text
        self.running.answer("Zarpel", text)

    def move(self, table):
        hand, cards = table.cards("mano"), table.cards("mesa")
        if found := capture(*table.lies()):
            place, places = found
            self.hands.select("mano", place, hand[place])
            for taken in places:
                self.hands.select("mesa", taken, cards[taken])
            selected = lambda now: (now.chosen("mano"), now.chosen("mesa")) == ([place], list(places))
            self.hands.take(self.running.table("the selection", selected))
        else:
            place = min(hand)
            self.hands.lay(place, hand[place], table)
        wait(lambda: self.running.box() or self.running.table().lies() != table.lies(), "the move")


def strike_while_the_computer_moves(deal):
    """The first move of the deal: lays card 1, and strikes keys before the computer has moved."""
    running = deal.running
    wait(deal.event, "the first turn")
    keys("shift+1", "2", "3")  # no key twice in a row: within a millisecond, the toolkit takes it for one held down
    look = running.table("the computer's move", lambda table: running.box() or not table.humans_turn())
    if not running.table().humans_turn():  # nor was it during the look
        assert not look.chosen("mano"), "a key got through the pause"
    box = wait(running.box, "the refusal")
    if box.texts() == [ZARPEL]:  # the computer took all; a box drops what was struck before it came
        deal.read(box)
        assert not deal.next().chosen("mano"), "a key got through the box"
        return
    # 3 is refused since 2 came before it.
    running.answer("Zarpel", "SELECCIONE SOLO UNA DE SUS CARTAS")
    assert deal.next().chosen("mano") == [2]
    keys("2")
    running.table("the card to be lowered", lambda table: not table.chosen("mano"))


def main():
    program, hands = sys.argv[1], {"keyboard": Keyboard, "mouse": Mouse}[sys.argv[2]]()
    size = (sys.argv[3:] or [{"keyboard": "800x600", "mouse": "1920x1080"}[sys.argv[2]]])[0]
    with desktop(size), game(program) as running:
        deal = Deal(running, hands)
        if isinstance(hands, Keyboard):
            strike_while_the_computer_moves(deal)
        while (results := deal.next()).name != "Resultados":
            deal.move(results)
        click(results.find("ACEPTAR"))
        wait(lambda: not running.named("Resultados"), "the results window to close")
        figures = [int(text) for text in results.texts() if text.isdigit()]
        assert figures[0] + figures[5] == 40, figures
        assert len(deal.next().cards("mano")) == 3


if __name__ == "__main__":
    main()
