#!/usr/bin/python3
"""Scenes of the real program: what a player meets besides the moves of a deal.

    tests/program/scenes_test.py build/zarpel/zarpel damage|waiting|match|preferences|guide [openings]

The scene "match" prints how long a saved match takes from Enter in the file dialog to the painted table: the median
of so many openings, those left out in which the computer has the first move of the new match that comes before.
"""
import os
import pathlib
import statistics
import sys
import time

from deal_test import Deal, Keyboard
from driver import Atspi, Screen, click, desktop, game, keys, processor_s, wait

NEW_MATCH = "Esta accion terminara con el juego actual, continuar?"


def damage(program):
    no_list = "El archivo naipes.dat esta dañado o no existe"
    for harm, text in ((lambda folder: (folder / "naipe.dat").unlink(), no_list),
                       (lambda folder: os.truncate(folder / "naipe.dat", 600), no_list),
                       (lambda folder: [picture.unlink() for picture in folder.glob("*.png")],
                        "No se puede cargar la imagen {}\\")):
        with game(program, harm) as running:
            running.answer("Error grave", text.format(running.folder))
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


def match(program, openings=1):
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
        times = [ms for _ in range(int(openings)) for ms in opening_ms(deal, saved)]
        if times:
            print(f"a saved match opens in {statistics.median(times):.0f} ms, at most {max(times):.0f} ({len(times)})")
        deal.move(deal.next())
        deal.next()


def opening_ms(deal, saved):
    """Opens the match; the time it took until a raised card was painted at rest, or nothing."""
    running = deal.running
    place, card = min(running.table().cards("mano").items())
    bottom = card.middle[0], 2 * card.middle[1] - card.corner[1]
    screen = Screen()
    shown = screen.pixel(*bottom)
    keys(str(place))
    screen.wait(*bottom, shown)
    shown = screen.pixel(*bottom)
    running.choose("Archivo", "Abrir")
    running.answer("Nuevo Jugador", NEW_MATCH, "Sí")
    running.open("Abrir")
    time.sleep(0.3)  # the dialog is painted, too
    assert screen.pixel(*bottom) == shown, "the file dialog hides the card"
    start = time.perf_counter()
    keys("Return")  # the name last chosen stands in the dialog
    screen.wait(*bottom, shown)
    taken = (time.perf_counter() - start) * 1000
    is_saved = lambda table: table.humans_turn() and (table.lies(), table.points()) == (saved.lies(), saved.points())
    at_once = is_saved(running.table())
    wait(lambda: is_saved(deal.next()), "the saved table")
    return [taken] if at_once else []


def preferences(program):
    """The program behind the game, the colours and the nickname; leaves by the menu."""
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

        running.choose("Archivo", "Preferencias")
        for swatch, colour in (("Fondo", "#804020"), ("Fondo Rect.", "#102080")):
            click(running.open("Opciones").find(swatch))
            box = running.open("Color")
            click(next(node for node in box.all() if node.role == Atspi.Role.TEXT and node.name.startswith("HTML")))
            keys("ctrl+a")
            running.answer("Color", typed=colour)
        click(running.open("Opciones").find("Aceptar"))
        sees_colours(running)
        assert kept(running)[2:4] == [str(0x204080), str(0x802010)], kept(running)

        running.choose("Archivo", "Nombre jugador")
        running.answer("Nuevo Jugador", NEW_MATCH, "Sí")
        running.answer("Nuevo Jugador", "Ingrese su Nick Name", typed="Lola")
        assert deal.next().texts().count("Lola") == 2
        sees_colours(running)
        assert kept(running)[0] == '"Lola"', kept(running)
        running.choose("Archivo", "Salir")
        leaves_with_chau(running)


def sees_colours(running):
    screen = Screen()
    table = running.table()
    for depth, colour in ((1, 0x804020), (3, 0x102080)):
        wait(lambda: screen.pixel(*table.area(depth).corner) & 0xFFFFFF == colour, f"the colour {colour:06x}")


def kept(running):
    return (running.folder / "lastprop.dat").read_text("cp1252").splitlines()


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
    globals()[sys.argv[2]](sys.argv[1], *sys.argv[3:])
