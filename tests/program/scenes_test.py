#!/usr/bin/python3
"""Scenes of the real program: what a player meets besides the moves of a deal.

    tests/program/scenes_test.py build/zarpel/zarpel damage|waiting|match|preferences|guide
"""
import pathlib
import sys
import time

from deal_test import Deal, Keyboard
from driver import Atspi, click, desktop, game, keys, processor_s, wait

NEW_MATCH = "Esta accion terminara con el juego actual, continuar?"


def damage(program):
    with game(program, lambda folder: (folder / "naipe.dat").unlink()) as running:
        running.answer("Error grave", "El archivo naipes.dat esta dañado o no existe")
        running.answer("Zarpel", "Reinstale el programa")
        assert running.process.wait(10) != 0


def waiting(program):
    """Uses no processor while nobody acts; the title bar's button leaves."""
    with game(program) as running:
        def is_still():
            before = processor_s(running.process.pid)
            time.sleep(3)  # the start may still be in its last touches; then nobody acts
            return processor_s(running.process.pid) == before

        Deal(running, Keyboard()).next()
        wait(is_still, "three seconds without any use of the processor", 15)
        keys("alt+F4")
        leaves_with_chau(running)


def leaves_with_chau(running):
    running.answer("Zarpel", "CHAU!", last=True)
    assert running.process.wait(10) == 0


def match(program):
    """Saves, plays on, opens what was saved, plays on from there."""
    with game(program) as running:
        deal = Deal(running, Keyboard())
        deal.move(deal.next())
        saved = deal.next()
        running.choose("Archivo", "Guardar")
        running.answer("Guardar", typed="partida")
        wait((running.folder.parent / "partida.zrp").is_file, "the saved match")
        deal.move(deal.next())
        assert deal.next().lies() != saved.lies()
        running.choose("Archivo", "Abrir")
        running.answer("Nuevo Jugador", NEW_MATCH, "Sí")
        running.answer("Abrir")  # the name last chosen stands in the dialog
        is_saved = lambda table: (table.lies(), table.points()) == (saved.lies(), saved.points())
        wait(lambda: is_saved(deal.next()), "the saved table")
        deal.move(deal.next())
        deal.next()


def preferences(program):
    """The program behind the game and the nickname; leaves by the menu."""
    def command(folder):
        written = f"""sh -c "echo 'dos  blancos' > '{folder}/ya corre.txt'" """
        lines = ['"Humano"', written, "32768", "24576", '""', ""]
        (folder / "lastprop.dat").write_bytes("\r\n".join(lines).encode())

    with game(program, command) as running:
        deal = Deal(running, Keyboard())
        click(deal.next().find("Run"))
        result = running.folder / "ya corre.txt"
        wait(lambda: result.exists() and result.read_text() == "dos  blancos\n", "the command's work")
        process = running.process.pid
        wait(lambda: not pathlib.Path(f"/proc/{process}/task/{process}/children").read_text(), "no zombie")

        running.choose("Archivo", "Nombre jugador")
        running.answer("Nuevo Jugador", NEW_MATCH, "Sí")
        running.answer("Nuevo Jugador", "Ingrese su Nick Name", typed="Lola")
        assert deal.next().texts().count("Lola") == 2
        assert (running.folder / "lastprop.dat").read_text("cp1252").startswith('"Lola"')
        running.choose("Archivo", "Salir")
        leaves_with_chau(running)


def guide(program):
    """Plays on with the help open; leaves by the toolbar, after thinking twice."""
    with game(program) as running:
        deal = Deal(running, Keyboard())
        deal.next()
        keys("F1")
        running.open("Ayuda de Zarpel")
        click(running.table().find("Zarpel 1.0", Atspi.Role.LABEL))
        deal.move(deal.next())
        deal.next()
        keys("F1")
        running.open("Ayuda de Zarpel")
        keys("Escape")
        table = deal.next()
        for answer in ("No", "Sí"):
            click(table.find("Salir"))
            running.answer("Nuevo Jugador", "Esta accion terminara con la aplicacion", answer)
        assert running.process.wait(10) == 0  # no farewell box


with desktop("1920x1080"):
    globals()[sys.argv[2]](sys.argv[1])
