"""The screen reader Orca on a private display, and what it says. Needs what the program tests need, and Orca,
speech-dispatcher and the locale es_ES.UTF-8 (Debian: orca, speech-dispatcher, locales)."""
import contextlib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

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
        self.read = 0

    def lines(self):
        return self.log.read_text(encoding="utf-8").splitlines()

    def hear(self, pattern):
        """Waits for a text that was said to its end and holds the pattern, after the last one heard; gives the match."""
        def look():
            for at, line in enumerate(self.lines()[self.read:], self.read + 1):
                if found := re.search(pattern, line):
                    self.read = at
                    return found
            return None
        try:
            return wait(look, f'"{pattern}"')
        except AssertionError:
            print(*self.lines()[-20:], sep="\n", file=sys.stderr)
            raise


@contextlib.contextmanager
def listening():
    """A display with Orca, for all programs started meanwhile; gives the ear that hears it."""
    with tempfile.TemporaryDirectory() as folder:
        home = pathlib.Path(folder)
        log = home / "said"
        log.touch()
        (home / "run").mkdir(mode=0o700)
        speech = home / ".config/speech-dispatcher"
        (speech / "modules").mkdir(parents=True)
        (speech / "modules/voice.conf").write_text(VOICE.format(log))
        (speech / "speechd.conf").write_text(SPEECH)
        os.environ |= {"HOME": folder, "XDG_RUNTIME_DIR": str(home / "run"), "LC_ALL": "es_ES.UTF-8"}
        quiet = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        with desktop("1366x768"), running(["orca", "--replace"], **quiet):
            ear = Ear(log)
            ear.hear("Lector de pantalla")
            yield ear
