"""Looks at running programs from outside: what the X display shows, pixel by pixel, and what a process uses."""
import ctypes
import os
import sys
import time

xlib = ctypes.CDLL("libX11.so.6")
xtest = ctypes.CDLL("libXtst.so.6")
xlib.XOpenDisplay.restype = ctypes.c_void_p
xlib.XDefaultRootWindow.restype = ctypes.c_ulong
xlib.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
xlib.XGetImage.restype = ctypes.c_void_p
xlib.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong] + [ctypes.c_int] * 2 + [ctypes.c_uint] * 2 + [
    ctypes.c_ulong, ctypes.c_int]
xlib.XGetPixel.restype = ctypes.c_ulong
xlib.XGetPixel.argtypes = [ctypes.c_void_p, ctypes.c_int, ctypes.c_int]
xlib.XDestroyImage.argtypes = [ctypes.c_void_p]
xlib.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
xlib.XDisplayWidth.argtypes = xlib.XDisplayHeight.argtypes = [ctypes.c_void_p, ctypes.c_int]
xtest.XTestFakeMotionEvent.argtypes = [ctypes.c_void_p] + [ctypes.c_int] * 3 + [ctypes.c_ulong]
xtest.XTestFakeButtonEvent.argtypes = [ctypes.c_void_p, ctypes.c_uint, ctypes.c_int, ctypes.c_ulong]

ALL_PLANES, Z_PIXMAP = 0xFFFFFFFF, 2
DEADLINE = 20  # seconds
BETWEEN_LOOKS = 0.0005  # seconds; looking all the time takes the processor from the program and from the display


class Screen:
    def __init__(self):
        self.display = xlib.XOpenDisplay(None)
        if not self.display:
            sys.exit("no X display; run this under xvfb-run")
        self.root = xlib.XDefaultRootWindow(self.display)
        self.width = xlib.XDisplayWidth(self.display, 0)
        self.height = xlib.XDisplayHeight(self.display, 0)

    def pixel(self, x, y):
        image = xlib.XGetImage(self.display, self.root, x, y, 1, 1, ALL_PLANES, Z_PIXMAP)
        value = xlib.XGetPixel(image, 0, 0)
        xlib.XDestroyImage(image)
        return value

    def wait(self, x, y, unlike):
        """Seconds until the pixel shows something else than `unlike`."""
        start = time.perf_counter()
        while self.pixel(x, y) == unlike:
            if time.perf_counter() - start > DEADLINE:
                sys.exit("nothing was painted")
            time.sleep(BETWEEN_LOOKS)
        return time.perf_counter() - start

    def point(self, x, y):
        xtest.XTestFakeMotionEvent(self.display, -1, x, y, 0)
        xlib.XSync(self.display, 0)

    def click(self):
        for down in (1, 0):
            xtest.XTestFakeButtonEvent(self.display, 1, down, 0)
        xlib.XSync(self.display, 0)


def processor_s(pid):
    with open(f"/proc/{pid}/stat") as stat:
        fields = stat.read().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
