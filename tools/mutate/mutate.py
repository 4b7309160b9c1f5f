#!/usr/bin/env python3
"""Tries the tests: changes the game's code at random, one place at a time, and tells which changes no test notices.

    tools/mutate/mutate.py 300 [--seed 7] [--folder engine storage ui]

Each change is made in a copy of the project and must get past the tests of the preset core. One that does not compile
is replaced by another. The checkout is only read. A survivor is either harmless or shows what the tests miss.
"""
import argparse
import os
import pathlib
import random
import re
import resource
import shutil
import subprocess
import sys
import tempfile

PROJECT = pathlib.Path(__file__).resolve().parents[2]
HIDDEN = re.compile(r'//[^\n]*|#include[^\n]*|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\])+\'')
SWAPPED = {"==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">", "&&": "||", "||": "&&", "+=": "-=",
           "-=": "+=", "++": "--", "--": "++", "+": "-", "-": "+", "true": "false", "false": "true"}
# What one statement does, by which another can be told not to mind it.
SETS = re.compile(r" *(?:const \w+&? )?(\S+ = |\w+->a[A-Z]\w*\(|\w+\.emplace\(|\w+\([\w.]+,)")
NAMES = re.compile(r" *(?:(?:const|static|constexpr) |[\w:]+& |\w+ \w+ = (?:true|false|\d+);)")
LEAVES = re.compile(r" *if \(.*\) return\b")
OBJECTS = re.compile(r"(?<![\w.>:])(?!(?:const|for|if|int|bool|auto|return|true|false|std|Image)\b)[a-zA-Z]\w*\b(?!::)")
CALLS = re.compile(r"(?<![\w.>:])[A-Z]\w*\(")  # an operation of its own class, which can do anything
MEMORY = 4 << 30  # a change can make the game ask for more and more
SECONDS = 120
# Programs that ctest runs, too: what notices most, and is quick, comes first. Of the matches, the first suffice.
QUICK = (("random_play", "tests/play/random_play", "60", "1"), ("ui_test", "tests/ui/ui_test", "--gtest_fail_fast"),
         ("engine_test", "tests/engine/engine_test"), ("storage_test", "tests/storage/storage_test", "--gtest_fail_fast"))


def blank(text):
    """The code alone: texts and comments are blanks, so that every place keeps its offset."""
    return HIDDEN.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), text)


def statements(code):
    """Where the whole statements are that begin a line: (begin, end, indentation)."""
    for found in re.finditer(r"^( +)(?=\w)(?:[^\n]*\n){1,4}?(?<=;\n)", code, re.M):
        inside = found[0]
        if all(inside.count(a) == inside.count(b) for a, b in ("()", "{}", "[]")):
            yield found.start(), found.end(), found[1]


def apart(one, other):
    """Do the statements have nothing to do with each other? Then their order says nothing."""
    pair = one, other
    sets, names, leaves = ([pattern.match(statement) for statement in pair] for pattern in (SETS, NAMES, LEAVES))
    if all(sets) and sets[0][1] != sets[1][1] or all(names) or any(names) and any(leaves):
        return True
    words = [set(OBJECTS.findall(blank(statement))) for statement in pair]
    return not (words[0] & words[1] or any(map(CALLS.search, pair)) or any(leaves))


def changes(text):
    """All single changes of a source: (begin, end, what stands there instead)."""
    code = blank(text)
    found = []
    for place in re.finditer(r"(?<= )(==|!=|<=?|>=?|&&|\|\||[+-]=?)(?= )|\+\+|--|\b(?:true|false)\b", code):
        found.append((*place.span(), SWAPPED[place[0]]))
    for place in re.finditer(r"(?<![\w.])\d+(?![\w.'])", code):
        found.append((*place.span(), str(int(place[0]) + 1)))
    for place in re.finditer(r"(?<=[( ])!(?=\w)", code):
        found.append((*place.span(), ""))
    for place in re.finditer(r"\bif (\((?:[^()\n]|\((?:[^()\n]|\([^()\n]*\))*\))*\)) ", code):
        found.append((*place.span(1), f"(!{text[slice(*place.span(1))]})"))
    for place in re.finditer(r"(?<=[({ ])([\w.:&]+), ([\w.:&]+)(?=[,)}])", code):
        found.append((*place.span(), f"{place[2]}, {place[1]}"))
    for place in HIDDEN.finditer(text):
        if place[0][0] == '"':
            found.append((place.start() + 1, place.end() - 1, "" if len(place[0]) > 2 else "x"))
    before = None
    for begin, end, indent in statements(code):
        found.append((begin, end, "\n"))
        if before and before[1:] == (begin, indent) and not apart(text[before[0]:begin], text[begin:end]):
            found.append((before[0], end, text[begin:end] + text[before[0]:begin]))
        before = (begin, end, indent)
    return [change for change in found if text[change[0]:change[1]] != change[2]]


class Copy:
    """The project in a folder of its own, built as the tests need it."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        files = subprocess.run(["git", "ls-files", "-z"], cwd=PROJECT, check=True, capture_output=True, text=True)
        for name in filter(None, files.stdout.split("\0")):
            (self.folder / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(PROJECT / name, self.folder / name)
        cache = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        assert self.run("cmake", "--preset", "core", *cache), "cannot be configured"
        assert self.builds("all") and self.passes(), "the tests must pass before anything is changed"

    def run(self, *command, seconds=600):
        limit = lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        started = subprocess.Popen(command, cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                   preexec_fn=limit, start_new_session=True)
        try:
            return started.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            os.killpg(started.pid, 9)
            started.wait()
            return False

    def builds(self, target):
        return self.run("cmake", "--build", "build/core", "--target", target)

    def passes(self):
        for target, program, *given in QUICK:
            if not (self.builds(target) and self.run(f"build/core/{program}", *given, seconds=SECONDS)):
                return False
        return self.builds("all") and self.run("ctest", "--preset", "core", "--stop-on-failure", "-j", "2",
                                               "--timeout", str(SECONDS))

    def tries(self, name, text, change):
        """True or False: the tests pass or fail; None: it does not compile."""
        begin, end, instead = change
        path = self.folder / name
        path.write_text(text[:begin] + instead + text[end:])
        try:
            return self.passes() if self.builds("random_play") else None
        finally:
            path.write_text(text)


def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("count", type=int, help="how many changes to try")
    arguments.add_argument("--seed", type=int, default=1)
    arguments.add_argument("--folder", nargs="+", default=["engine", "storage", "ui"])
    given = arguments.parse_args()
    sources = {path.relative_to(PROJECT): path.read_text()
               for folder in given.folder for path in sorted((PROJECT / folder).glob("*.cpp"))}
    left = [(name, change) for name, text in sources.items() for change in changes(text)]
    random.Random(given.seed).shuffle(left)
    tried = survived = 0
    with tempfile.TemporaryDirectory() as folder:
        copy = Copy(folder)
        for name, change in left:
            if tried == given.count:
                break
            text = sources[name]
            passed = copy.tries(name, text, change)
            tried += passed is not None
            print(f"{survived} of {tried}", end="\r", file=sys.stderr)
            if passed:
                survived += 1
                begin, end, instead = change
                line = text.count("\n", 0, begin) + 1
                print(f"{name}:{line}: {text[begin:end].strip()!r} -> {instead.strip()!r}\n"
                      f"    {text.splitlines()[line - 1].strip()}", flush=True)
    print(f"{survived} of {tried} changes survived, seed {given.seed}")


if __name__ == "__main__":
    main()
