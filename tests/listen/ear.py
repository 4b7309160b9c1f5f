"""The screen reader Orca on a private display, and what it says. Needs what the program tests need, and Orca,
speech-dispatcher and the locale es_ES.UTF-8 (Debian: orca, speech-dispatcher, locales)."""
import contextlib
import os
import pathlib
import re
import sys
import tempfile
from subprocess import DEVNULL

sys.path.append(str(pathlib.Path(__file__).parents[1] / "program"))
from driver import desktop, running, wait  # noqa: E402

SPEECH = """CommunicationMethod "unix_socket"
DefaultLanguage "es"
DefaultModule voice
AudioOutputMethod "alsa"
AudioALSADevice "null"
AddModule "voice" "sd_generic" "voice.conf"
"""
# It makes no sound, and writes a text down when it has had the time to speak it; told to stop before, it is
# killed.
VOICE = r"""GenericExecuteSynth \
"text=\'$DATA\'; sleep $(expr length \"$text\" \'*\' 16)e-3; printf \'%s\\n\' \"$text\" >> {}"
GenericLanguage "es" "es" "utf-8"
AddVoice "es" "FEMALE1" "callada"
GenericMaxChunkLength 10000
GenericDelimiters "|"
"""


class Ear:
    def __init__(self, log):
        self.log = log
        self.heard = []

    def hear(self, pattern):
        """Waits for a text that was said to its end and holds the pattern, after the last one heard; gives the match."""
        def look():
            for line in self.log:
                self.heard.append(line)
                if found := re.search(pattern, line):
                    return found
            return None
        try:
            return wait(look, f'"{pattern}"')
        except AssertionError:
            print(*self.heard[-20:], sep="", file=sys.stderr)
            raise


@contextlib.contextmanager
def listening():
    """A display with Orca, for all programs started meanwhile; gives the ear that hears it."""
    with tempfile.TemporaryDirectory() as folder, tempfile.NamedTemporaryFile("r", encoding="utf-8") as said:
        home = pathlib.Path(folder)
        (home / "run").mkdir(mode=0o700)
        speech = home / ".config/speech-dispatcher"
        (speech / "modules").mkdir(parents=True)
        (speech / "modules/voice.conf").write_text(VOICE.format(said.name))
        (speech / "speechd.conf").write_text(SPEECH)
        os.environ |= {"HOME": folder, "XDG_RUNTIME_DIR": str(home / "run"), "LC_ALL": "es_ES.UTF-8"}
        with desktop("1366x768"), running(["orca", "--replace"], stdout=DEVNULL, stderr=DEVNULL):
            ear = Ear(said)
            ear.hear("Lector de pantalla")
            yield ear
