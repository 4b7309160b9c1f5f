#!/usr/bin/python3
"""Starts the real program whole and damaged, and looks at how it waits and how it ends.

    tests/program/start_test.py build/zarpel/zarpel
"""
import sys
import time

from driver import desktop, game, wait


def shorten(path):
    path.write_bytes(path.read_bytes()[:600])


def remove_pictures(folder):
    for picture in folder.glob("*.png"):
        picture.unlink()


def ends(program, damage, first_text):
    with game(program, damage) as running:
        running.answer("Error grave", first_text(running.folder))
        running.answer("Zarpel", "Reinstale el programa")
        assert running.process.wait(1) != 0


def waits_quietly(program):
    with game(program) as running:
        wait(lambda: running.table().humans_turn(), "the first turn")
        wait(lambda: is_still(running), "three seconds without any use of the processor", 15)


def is_still(running):
    before = running.processor_ticks()
    time.sleep(3)  # the start may still be in its last touches; then nobody acts
    return running.processor_ticks() == before


def main():
    program = sys.argv[1]
    def no_list(_):
        return "El archivo naipes.dat esta dañado o no existe"

    def no_picture(folder):
        return f"No se puede cargar la imagen {folder}\\"

    with desktop("1024x768"):
        ends(program, lambda folder: (folder / "naipe.dat").unlink(), no_list)
        ends(program, lambda folder: shorten(folder / "naipe.dat"), no_list)
        ends(program, remove_pictures, no_picture)
        waits_quietly(program)


main()
