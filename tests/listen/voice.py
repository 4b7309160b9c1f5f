#!/usr/bin/python3
"""A voice of speech-dispatcher that makes no sound: it writes what it is given into the file $VOICE_LOG, a line each,
"heard" or "cut" and the text. It takes its time, as a voice does, and is cut when told to stop meanwhile."""
import html
import os
import re
import select
import time

LETTERS_A_SECOND = 60
DATA = {b"AUDIO": ("207 OK RECEIVING AUDIO SETTINGS", "203 OK AUDIO INITIALIZED"),
        b"SET": ("203 OK RECEIVING SETTINGS", "203 OK SETTINGS RECEIVED"),
        b"LOGLEVEL": ("207 OK RECEIVING LOGLEVEL SETTINGS", "203 OK LOG LEVEL SET")}
SPOKEN = (b"SPEAK", b"KEY", b"CHAR", b"SOUND_ICON")


def answer(*lines):
    os.write(1, "".join(line + "\n" for line in lines).encode())


def commands():
    """The lines that come in; None whenever the text being spoken is over."""
    rest = b""
    while True:
        left = None if Voice.text is None else max(0, Voice.until - time.monotonic())
        if not select.select([0], [], [], left)[0]:
            yield None
            continue
        read = os.read(0, 65536)
        if not read:
            return
        *lines, rest = (rest + read).split(b"\n")
        yield from (line.strip() for line in lines)


class Voice:
    text, until = None, 0

    @staticmethod
    def begin(text):
        Voice.text, Voice.until = text, time.monotonic() + len(text) / LETTERS_A_SECOND
        answer("701 BEGIN")

    @staticmethod
    def end(how, event):
        with open(os.environ["VOICE_LOG"], "a", encoding="utf-8") as log:
            log.write(f"{how} {Voice.text}\n")
        Voice.text = None
        answer(event)


def plain(lines):
    text = b" ".join(line[1:] if line.startswith(b"..") else line for line in lines).decode()
    return " ".join(html.unescape(re.sub("<[^>]*>", "", text)).split())


def main():
    taking, body = None, []
    for line in commands():
        if line is None:
            Voice.end("heard", "702 END")
        elif taking and line != b".":
            body.append(line)
        elif taking in SPOKEN:
            answer("200 OK SPEAKING")
            Voice.begin(plain(body))
            taking = None
        elif taking:
            answer(DATA[taking][1])
            taking = None
        elif line in SPOKEN or line in DATA:
            taking, body = line, []
            answer(DATA[line][0] if line in DATA else "202 OK RECEIVING MESSAGE")
        elif line in (b"STOP", b"PAUSE"):
            if Voice.text is not None:
                Voice.end("cut", "703 STOP")
        elif line == b"INIT":
            answer("299-ready", "299 OK LOADED SUCCESSFULLY")
        elif line.startswith(b"LIST VOICES"):
            answer("200-callada\tes\tnone", "200 OK VOICE LIST SENT")
        elif line == b"QUIT":
            answer("210 OK QUIT")
            return
        else:
            answer("200 OK")


main()
