#!/usr/bin/python3
"""Scenes of the real program: what a player meets besides the moves of a deal.

    tests/program/scenes_test.py build/zarpel/zarpel damage|waiting|match|preferences|help [openings]

The scene "match" prints how long a saved match takes from Enter in the file dialog to the painted table: the median
of so many openings, those left out in which the computer has the first move of the new match that comes before.
"""
import pathlib
import statistics
import sys
import time

from deal_test import Deal, Keyboard
from driver import Atspi, Screen, click, desktop, game, keys, wait

NEW_MATCH = "Esta accion terminara con el juego actual, continuar?"


def damage(program):
    def ends(harm, first_text):
        with game(program, harm) as running:
            running.answer("Error grave", first_text(running.folder))
            running.answer("Zarpel", "Reinstale el programa")
            assert running.process.wait(10) != 0

    def remove_pictures(folder):
        for picture in folder.glob("*.png"):
            picture.unlink()

    def shorten(path):
        path.write_bytes(path.read_bytes()[:600])

    no_list = lambda _: "El archivo naipes.dat esta dañado o no existe"
    ends(lambda folder: (folder / "naipe.dat").unlink(), no_list)
    ends(lambda folder: shorten(folder / "naipe.dat"), no_list)
    ends(remove_pictures, lambda folder: f"No se puede cargar la imagen {folder}\\")


def waiting(program):
    """Uses no processor while nobody acts; the title bar's button leaves."""
    with game(program) as running:
        def is_still():
            before = running.processor_ticks()
            time.sleep(3)  # the start may still be in its last touches; then nobody acts
            return running.processor_ticks() == before

        running.table("the first turn", lambda table: table.humans_turn())
        wait(is_still, "three seconds without any use of the processor", 15)
        keys("alt+F4")
        leaves_with_chau(running)


def leaves_with_chau(running):
    running.answer("Zarpel", "CHAU!")
    assert running.process.wait(10) == 0


def what_lies(table):
    cards = [{place: card.name for place, card in table.cards(row).items()} for row in ("mesa", "mano")]
    return table.humans_turn() and (cards, table.points())


def match(program, openings=1):
    """Saves, plays on, opens what was saved, plays on from there."""
    with game(program) as running:
        deal = Deal(running, Keyboard())
        deal.move(deal.next())
        saved = what_lies(deal.next())
        running.choose("Archivo", "Guardar")
        running.answer("Guardar", typed="partida")
        wait((running.folder.parent / "partida.zrp").is_file, "the saved match")
        deal.move(deal.next())
        assert what_lies(deal.next()) != saved
        times = []
        while len(times) < int(openings):
            times += opening_ms(running, saved)
        print(f"a saved match opens in {statistics.median(times):.0f} ms (slowest {max(times):.0f} of {len(times)})")
        deal.move(deal.next())
        deal.next()


def opening_ms(running, saved):
    """Opens the match; the time it took until a raised card was painted at rest, or nothing."""
    place = min(running.table().cards("mano"))
    keys(str(place))
    raised = running.table("the raised card", lambda table: table.cards("mano")[place].chosen).cards("mano")[place]
    top = raised.middle[0], raised.corner[1]
    screen = Screen()
    shown = screen.pixel(*top)
    running.choose("Archivo", "Abrir")
    running.answer("Nuevo Jugador", NEW_MATCH, "Sí")
    wait(lambda: running.named("Abrir"), "the file dialog")
    time.sleep(0.3)  # the dialog has been painted, too
    assert screen.pixel(*top) == shown, "the file dialog hides the card"
    start = time.perf_counter()
    keys("Return")  # the name last chosen stands in the dialog
    screen.wait(*top, shown)
    taken = (time.perf_counter() - start) * 1000
    at_once = what_lies(running.table()) == saved
    running.table("the saved table", lambda table: what_lies(table) == saved)
    print(f"{taken:.0f} ms{'' if at_once else ', left out'}", file=sys.stderr)
    return [taken] if at_once else []


def preferences(program):
    """The program behind the game, the colours and the nickname; leaves by the menu."""
    def command(folder):
        written = f"""sh -c "echo 'dos  blancos' > '{folder}/ya corre.txt'" """
        lines = ['"Humano"', written, "32768", "24576", '""', ""]
        (folder / "lastprop.dat").write_bytes("\r\n".join(lines).encode())

    with game(program, command) as running:
        table = running.table("the first turn", lambda table: table.humans_turn())
        click(table.find("Run"))
        result = running.folder / "ya corre.txt"
        wait(lambda: result.exists() and result.read_text() == "dos  blancos\n", "the command's work")
        process = running.process.pid
        wait(lambda: not pathlib.Path(f"/proc/{process}/task/{process}/children").read_text(), "no zombie")

        running.choose("Archivo", "Preferencias")
        options = wait(lambda: running.named("Opciones"), "the preferences")
        choose_colour(running, options.find("Fondo"), "#804020")
        choose_colour(running, options.find("Fondo Rect."), "#102080")
        click(options.find("Aceptar"))
        sees_colours(running)
        assert kept(running)[2:4] == [str(0x204080), str(0x802010)], kept(running)

        running.choose("Archivo", "Nombre jugador")
        running.answer("Nuevo Jugador", NEW_MATCH, "Sí")
        running.answer("Nuevo Jugador", "Ingrese su Nick Name", typed="Lola")
        running.table("the new name", lambda table: table.texts().count("Lola") == 2 and table.humans_turn())
        sees_colours(running)
        assert kept(running)[0] == '"Lola"', kept(running)
        running.choose("Archivo", "Salir")
        leaves_with_chau(running)


def choose_colour(running, swatch, colour):
    wait(lambda: running.named("Opciones"), "the preferences")
    click(swatch)
    box = wait(lambda: running.named("Color"), "the colour dialog")
    click(next(node for node in box.all() if node.role == Atspi.Role.TEXT and node.name.startswith("HTML")))
    keys("ctrl+a")
    running.answer("Color", typed=colour)


def sees_colours(running):
    screen = Screen()
    table = running.table()
    for depth, colour in ((1, 0x804020), (2, 0x102080)):
        wait(lambda: screen.pixel(*table.area(depth).corner) & 0xFFFFFF == colour, f"the colour {colour:06x}")


def kept(running):
    return (running.folder / "lastprop.dat").read_text("cp1252").splitlines()


def help_(program):
    """Plays on with the help open; leaves by the toolbar, after thinking twice."""
    with game(program) as running:
        deal = Deal(running, Keyboard())
        deal.next()
        keys("F1")
        wait(lambda: running.named("Ayuda de Zarpel"), "the help")
        click(running.table().find("Zarpel 1.0", Atspi.Role.LABEL))
        deal.move(deal.next())
        deal.next()
        keys("F1")
        wait(lambda: running.named("Ayuda de Zarpel"), "the help once more")
        keys("Escape")
        table = deal.next()
        for answer in ("No", "Sí"):
            click(table.find("Salir"))
            running.answer("Nuevo Jugador", "Esta accion terminara con la aplicacion", answer)
        assert running.process.wait(10) == 0  # no farewell box


with desktop("1920x1080"):
    {"damage": damage, "waiting": waiting, "match": match, "preferences": preferences, "help": help_}[sys.argv[2]](
        sys.argv[1], *sys.argv[3:])
