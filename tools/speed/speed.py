#!/usr/bin/python3
"""Measures the game side by side with the smallest window of the same toolkit that has a menu and a word.

    cmake --build build/release --target small_window
    xvfb-run -s '-screen 0 1920x1080x24' tools/speed/speed.py build/release/tools/speed/small_window \
        build/zarpel/zarpel [pairs]

Starts each program in turn on the X display at hand (a window manager is started when openbox is there) and prints the
medians: time from the process's start to its first painted window, resident memory a second later, processor time
while nobody acts, and the time from a click on a card until it moves on the screen. The game's start is the table,
ready to be played on; the cards are dealt onto it in the half second after.
"""
import shutil
import statistics
import subprocess
import sys
import time

from probe import Screen, processor_s


def resident_kb(pid):
    with open(f"/proc/{pid}/status") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmRSS"))


def start(screen, program, at):
    """Starts a program; gives it and the seconds until the pixel `at` was painted."""
    empty = screen.pixel(*at)
    process = subprocess.Popen([program], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return process, screen.wait(*at, empty), empty


def stop(screen, process, at, empty):
    process.kill()
    process.wait()
    while screen.pixel(*at) != empty:
        time.sleep(0.01)


def measure(screen, program, at):
    """The milliseconds to the first paint, and the memory in MB a second later."""
    process, painted, empty = start(screen, program, at)
    time.sleep(1)
    memory = resident_kb(process.pid)
    stop(screen, process, at, empty)
    return painted * 1000, memory / 1024


def measure_play(screen, program, at, card, above):
    """Processor seconds in five idle ones, and the milliseconds from a click on a card until it is raised."""
    process, _, empty = start(screen, program, at)
    time.sleep(4)  # the computer may have the first move
    before = processor_s(process.pid)
    time.sleep(5)
    idle = processor_s(process.pid) - before
    screen.point(*card)
    time.sleep(0.3)
    clicks = []
    for _ in range(20):
        shown = screen.pixel(*above)
        screen.click()
        clicks.append(screen.wait(*above, shown) * 1000)
        time.sleep(0.7)  # no double clicks
    stop(screen, process, at, empty)
    return idle, statistics.median(clicks), max(clicks)


def main():
    floor, game = sys.argv[1:3]
    pairs = int(sys.argv[3]) if len(sys.argv) > 3 else 20
    manager = shutil.which("openbox")
    if manager:
        subprocess.Popen([manager], stderr=subprocess.DEVNULL)
        time.sleep(1)
    screen = Screen()
    # Places on the table, in twips as the layout has them. It stands in the middle, below the title and menu bar.
    scale = min(screen.width / 12000, (screen.height - 60) / 8400)
    to_screen = lambda x, y: (int(screen.width / 2 + (x - 6000) * scale), int(screen.height - (8400 - y) * scale))
    table = to_screen(1080, 4300)  # inside the first card on the table
    card, above = to_screen(4200, 7400), to_screen(4200, 6330)  # the first card of the hand, and right above it
    results = {floor: ([], []), game: ([], [])}
    for _ in range(pairs):
        for program, (seconds, memory) in results.items():
            painted, resident = measure(screen, program, table)
            seconds.append(painted)
            memory.append(resident)
    medians = [(statistics.median(s), statistics.median(m)) for s, m in results.values()]
    (floor_ms, floor_mb), (game_ms, game_mb) = medians
    print(f"start to first paint: floor {floor_ms:.1f} ms, game {game_ms:.1f} ms, ratio {game_ms / floor_ms:.2f}")
    print(f"resident memory: floor {floor_mb:.1f} MB, game {game_mb:.1f} MB, ratio {game_mb / floor_mb:.2f}")
    idle, click, slowest = measure_play(screen, game, table, card, above)
    print(f"idle: {idle:.2f} s of processor time in 5 s")
    print(f"click to screen: median {click:.1f} ms, slowest {slowest:.1f} ms of 20")


main()
