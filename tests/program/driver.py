"""Drives the real program from outside: a private X display with a window manager and an accessibility bus.

What the table shows is read through the accessibility bus, as a screen reader does; what the player does goes through
the keyboard and the mouse of the display. Needs Xvfb, openbox, xdotool, dbus-daemon and the Python bindings of AT-SPI
(Debian: xvfb, openbox, xdotool, dbus, at-spi2-core, python3-pyatspi).
"""
import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

sys.path.append(str(pathlib.Path(__file__).parents[2] / "tools/speed"))
from probe import processor_s  # noqa: E402, F401

DEADLINE = 60  # seconds that anything may take, on a slow machine


def wait(condition, what, seconds=DEADLINE):
    """Waits for the condition; gives its first true value."""
    end = time.monotonic() + seconds
    while True:
        if value := condition():
            return value
        assert time.monotonic() < end, f"waited {seconds} s for {what}"
        time.sleep(0.02)


def number(card):
    """Of a card by its name."""
    return int(card.split()[0])


class Node:
    """What the accessibility bus says of a widget."""

    def __init__(self, accessible):
        self.name = accessible.get_name()
        self.role = accessible.get_role()
        states = accessible.get_state_set()
        self.active = states.contains(Atspi.StateType.ACTIVE)
        self.checked = states.contains(Atspi.StateType.CHECKED)
        at = accessible.get_extents(Atspi.CoordType.SCREEN)
        self.middle = (at.x + at.width // 2, at.y + at.height // 2)
        self.corner = (at.x + 3, at.y + 3)
        children = (accessible.get_child_at_index(i) for i in range(accessible.get_child_count()))
        self.children = [Node(child) for child in children if child]

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    def texts(self):
        return [node.name for node in self.all() if node.role == Atspi.Role.LABEL and node.name]

    def find(self, name, role=Atspi.Role.PUSH_BUTTON):
        return next((node for node in self.all() if node.role == role and node.name == name), None)


class Table(Node):
    """The main window at one moment."""

    def cards(self, row):
        """The cards of "mesa" or "mano" by place, from 1."""
        return {int(node.name[-1]): node for node in self.all()
                if re.fullmatch(rf"\d+ de \w+, {row} \d", node.name or "")}

    def lies(self):
        """The names of the cards in the hand and on the table, by place."""
        return [{place: card.name for place, card in self.cards(row).items()} for row in ("mano", "mesa")]

    def chosen(self, row):
        return [place for place, card in self.cards(row).items() if card.checked]

    def humans_turn(self):
        return any(text.startswith("Juega ") and text != "Juega Cpu" for text in self.texts())

    def area(self, depth):
        """The window's inside (1), the table in it (2), or the rectangle on that (3); no card lies on its corner."""
        return [node for node in self.all() if node.role == Atspi.Role.PANEL][depth - 1]


class Game:
    def __init__(self, process, folder):
        self.process = process
        self.folder = folder

    def windows(self):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            with contextlib.suppress(GLib.Error, AttributeError):
                application = desktop.get_child_at_index(i)
                if application.get_process_id() == self.process.pid:
                    application.set_cache_mask(Atspi.Cache.NONE)
                    return [application.get_child_at_index(j) for j in range(application.get_child_count())]
        return []

    def window(self, wanted, kind=Node):
        """The window that `wanted` is true of, or None while there is none or it is just going."""
        with contextlib.suppress(GLib.Error, AttributeError, TypeError):
            for accessible in self.windows():
                if wanted(accessible):
                    return kind(accessible)
        return None

    def table(self, what="the table", holds=lambda table: True):
        """The main window, once this holds of it."""
        def look():
            found = self.window(lambda w: w.get_name() == "Playing", Table)
            return found if found and holds(found) else None
        return wait(look, what)

    def box(self):
        """The message box, or chooser, that is open and takes the keys, or None. "Opciones" may lie under it."""
        boxes = (Atspi.Role.ALERT, Atspi.Role.DIALOG)
        return self.active(lambda w: w.get_role() in boxes and w.get_name() not in ("Resultados", "Opciones"))

    def named(self, name):
        return self.active(lambda w: w.get_name() == name)

    def active(self, wanted):
        found = self.window(wanted)
        return found if found and found.active else None

    def open(self, name):
        return wait(lambda: self.named(name), f'the window "{name}"')

    def answer(self, title, text="", button=None, typed="", last=False):
        """Waits for the box whose text begins so, types, and clicks the button or presses Enter. After the last box
        nothing more is asked over the bus: what reaches the toolkit while it ends, it does not free."""
        box = wait(self.box, f'the box "{title}: {text}"')
        assert box.name == title and box.texts()[0].startswith(text), (box.name, box.texts())
        if typed:
            xdotool("type", typed)
        click(box.find(button)) if button else keys("Return")
        gone = lambda: self.process.poll() is not None or not (last or self.is_open(box))
        wait(gone, f'the end of the box "{title}: {text}"')

    def is_open(self, box):
        now = self.box()
        return now and (now.name, now.texts()) == (box.name, box.texts())

    def choose(self, menu, entry):
        click(wait(lambda: self.table().find(menu, Atspi.Role.MENU_ITEM), f'the menu "{menu}"'))
        opened = lambda node: node.active and node.find(entry, Atspi.Role.MENU_ITEM)
        lists = lambda: (opened(node) for node in self.table().all() if node.role == Atspi.Role.POPUP_MENU)
        click(wait(lambda: next(filter(None, lists()), None), f'the entry "{entry}"'))


def xdotool(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True)


def keys(*names):
    xdotool("key", "--delay", 1, *names)


def click(node):
    xdotool("mousemove", *node.middle, "click", 1)


def drag(node, to):
    xdotool("mousemove", *node.middle, "mousedown", 1)
    for step in (1, 2, 3, 4):
        xdotool("mousemove", *(a + (b - a) * step // 4 for a, b in zip(node.middle, to)))
    xdotool("mouseup", 1)


@contextlib.contextmanager
def running(command, **options):
    process = subprocess.Popen(command, **options)
    try:
        yield process
    finally:
        process.terminate()
        process.wait()


@contextlib.contextmanager
def desktop(size):
    """A display of this size ("800x600"), with window manager and session bus, for all programs started meanwhile."""
    with contextlib.ExitStack() as stack:
        quiet = {"stderr": subprocess.DEVNULL}
        # -r: no key repeats, however late its release comes; -noreset: the end of the only program on the display does
        # not throw out the next, which may be starting
        server = ["Xvfb", "-displayfd", "1", "-screen", "0", f"{size}x24", "-nolisten", "tcp", "-r", "-noreset"]
        display = stack.enter_context(running(server, stdout=subprocess.PIPE, **quiet))
        os.environ["DISPLAY"] = ":" + display.stdout.readline().decode().strip()
        os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        bus = ["dbus-daemon", "--session", "--nofork", "--print-address=1"]
        session = stack.enter_context(running(bus, stdout=subprocess.PIPE, **quiet))
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = session.stdout.readline().decode().strip()
        stack.enter_context(running(["openbox"], stdout=subprocess.DEVNULL, **quiet))
        search = ["xdotool", "search", "--class", "openbox"]
        wait(lambda: subprocess.run(search, stdout=subprocess.DEVNULL, **quiet).returncode == 0, "the window manager")
        Atspi.init()
        yield


@contextlib.contextmanager
def game(program, damage=lambda folder: None):
    """The program, started from a copy of its folder that `damage` may change; no picture glides."""
    with tempfile.TemporaryDirectory() as parent:
        folder = pathlib.Path(parent, "zarpel")
        shutil.copytree(pathlib.Path(program).parent, folder)
        damage(folder)
        home = os.environ | {"HOME": parent, "XDG_CONFIG_HOME": parent}
        settings = pathlib.Path(parent, "gtk-3.0/settings.ini")
        settings.parent.mkdir()
        settings.write_text("[Settings]\ngtk-enable-animations=0\n")
        with running([folder / pathlib.Path(program).name], env=home) as process:
            yield Game(process, folder)
