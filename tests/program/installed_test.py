#!/usr/bin/python3
"""What an ordinary user chose and saved is there again, though the game's folder cannot be written.

    tests/program/installed_test.py PROGRAM

Writes in the user's home folder; installed.sh gives it one of its own.
"""
import contextlib
import pathlib
import sys

from deal_test import Deal
from driver import Game, desktop, running, wait

HOME = pathlib.Path.home()
OWN = HOME / ".local/share/Zarpel"


@contextlib.contextmanager
def game(*words):
    """Started from the home folder, and left by the menu."""
    with running([sys.argv[1], *words], cwd=HOME) as process:
        started = Game(process, OWN)
        yield started
        Deal(started).next()
        started.choose("Archivo", "Salir")
        started.answer("Zarpel", "CHAU!", last=True)
        assert process.wait(10) == 0
        assert (OWN / "lastprop.dat").read_text("cp1252").startswith('"Lola"\n')


with desktop("1280x800"):
    with game() as playing:
        deal = Deal(playing)
        deal.next()
        playing.choose("Archivo", "Nombre jugador")
        playing.answer("Nuevo Jugador", "Esta accion", "Sí")
        playing.answer("Nuevo Jugador", "Ingrese su Nick Name", typed="Lola")
        saved = deal.next()
        playing.choose("Archivo", "Guardar")
        playing.answer("Guardar", typed="partida")
        wait((HOME / "partida.zrp").is_file, "the saved match")
        deal.move(saved)
        assert deal.next().lies() != saved.lies()
        playing.choose("Archivo", "Abrir")
        playing.answer("Nuevo Jugador", "Esta accion", "Sí")
        playing.answer("Abrir")  # the name last chosen stands in the dialog
        wait(lambda: deal.next().lies() == saved.lies(), "the saved table")
        deal.move(saved)
    with game("partida.zrp") as playing:
        opened = playing.table("the saved table", lambda table: table.humans_turn() and table.lies() == saved.lies())
        assert opened.texts().count("Lola") == 2, opened.texts()
    (HOME / "cortada.zrp").write_bytes((HOME / "partida.zrp").read_bytes()[:100])
    with game("cortada.zrp") as playing:
        playing.answer("Hubo un Error", "El archivo no existe o esta dañado")
        playing.answer("Nuevo Jugador", "Esta accion", "No")
