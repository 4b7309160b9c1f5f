#!/usr/bin/python3
"""Scenes of the real program: what a player meets besides the moves of a deal.

    tests/program/scenes_test.py build/zarpel/zarpel damage|waiting|command
"""
import pathlib
import sys
import time

from deal_test import Deal
from driver import Atspi, click, desktop, game, keys, processor_s, wait


def damage(program):
    with game(program, lambda folder: (folder / "naipe.dat").unlink()) as running:
        running.answer("Error grave", "El archivo naipes.dat esta dañado o no existe")
        running.answer("Zarpel", "Reinstale el programa")
        assert running.process.wait(10) != 0


def waiting(program):
    """Plays on with the help open; uses no processor while nobody acts; the title bar's button leaves."""
    with game(program) as running:
        def is_still():
            before = processor_s(running.process.pid)
            time.sleep(3)  # the start may still be in its last touches; then nobody acts
            return processor_s(running.process.pid) == before

        deal = Deal(running)
        deal.next()
        keys("F1")
        running.open("Ayuda de Zarpel")
        click(running.table().find("Zarpel 1.0", Atspi.Role.LABEL))
        deal.move(deal.next())
        deal.next()
        wait(is_still, "three seconds without any use of the processor", 15)
        keys("alt+F4")
        running.answer("Zarpel", "CHAU!", last=True)
        assert running.process.wait(10) == 0


def command(program):
    """Starts the program that "Run" names, and looks after it."""
    def writes(folder):
        written = f"""sh -c "echo 'dos  blancos' > '{folder}/ya corre.txt'" """
        lines = ['"Humano"', written, "32768", "24576", '""', ""]
        (folder / "lastprop.dat").write_bytes("\r\n".join(lines).encode())

    with game(program, writes) as running:
        click(Deal(running).next().find("Run"))
        result = running.folder / "ya corre.txt"
        wait(lambda: result.exists() and result.read_text() == "dos  blancos\n", "the command's work")
        process = running.process.pid
        wait(lambda: not pathlib.Path(f"/proc/{process}/task/{process}/children").read_text(), "no zombie")


with desktop("1920x1080"):
    globals()[sys.argv[2]](sys.argv[1])
