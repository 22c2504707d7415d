#!/usr/bin/env python3
"""The files for Windows, on Linux: they compile by mingw, and the hold of a record file works under wine.

    windows_test.py SOURCE_DIR WORK_DIR QT_INCLUDE_DIR...

Compiled against Qt's own headers, and run against small ones (tests/windows/qt), since there is no Qt for Windows to
link. What is missing makes it skip, with exit status 77.
"""
import os
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

ROOT, WORK = (Path(argument).resolve() for argument in sys.argv[1:3])
QT_INCLUDES = sys.argv[3:]
HERE = Path(__file__).resolve().parent
COMPILERS = ("x86_64-w64-mingw32-g++-posix", "x86_64-w64-mingw32-g++")
WINES = ("wine64", "wine", "/usr/lib/wine/wine64")
WARNINGS = ["-std=c++17", "-Wall", "-Wextra", "-Wpedantic", "-Werror"]
WINE_SECONDS = 240  # the first start makes a disk C:
ENVIRONMENT = {**os.environ, "WINEPREFIX": str(WORK / "wine"), "WINEDEBUG": "-all", "DISPLAY": "",
               "WINEDLLOVERRIDES": "mscoree,mshtml,winemenubuilder.exe="}


def first_program(names):
    return next((found for found in map(shutil.which, names) if found), None)


COMPILER, WINE = first_program(COMPILERS), first_program(WINES)


def missing():
    for program, name in ((COMPILER, "mingw-w64"), (WINE, "wine")):
        if not program:
            return f"{name} is not installed (tools/install-dependencies.sh windows)"
    return None


class Compiles(unittest.TestCase):
    def test_every_file_for_windows(self):
        sources = [path for path in sorted(ROOT.glob("*/**/*_windows.cpp")) if path.parts[len(ROOT.parts)] != "build"]
        self.assertGreaterEqual(len(sources), 3)
        includes = [f"-I{ROOT}", f"-I{ROOT}/qt/5"] + [argument for path in QT_INCLUDES for argument in ("-isystem", path)]
        for source in sources:
            with self.subTest(source=source.name):
                compiled = subprocess.run([COMPILER, *WARNINGS, "-fsyntax-only", *includes, source],
                                          capture_output=True, text=True)
                self.assertEqual((0, ""), (compiled.returncode, compiled.stderr))


class HoldsARecord(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.program = WORK / "hold_record.exe"
        subprocess.run([COMPILER, *WARNINGS, "-static", f"-I{ROOT}", "-isystem", HERE / "qt", "-o", cls.program,
                        HERE / "hold_record.cpp", ROOT / "record" / "file_hold_windows.cpp"], check=True)
        (WORK / "records").mkdir(exist_ok=True)

    def setUp(self):
        self.record = WORK / "records" / "walk.json"
        self.record.write_text("{}")

    def start(self, command, path):
        return subprocess.Popen([WINE, self.program, command, f"Z:{path}"], env=ENVIRONMENT, text=True,
                                stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def what_others_can_do(self):
        return self.start("try", self.record).communicate(timeout=WINE_SECONDS)[0].strip()

    def test_others_can_read_it_but_neither_write_nor_delete_it(self):
        self.assertEqual("read yes write yes delete yes", self.what_others_can_do())
        holder = self.start("hold", self.record)
        self.assertEqual("held", holder.stdout.readline().strip())
        held = self.what_others_can_do()
        holder.communicate(timeout=WINE_SECONDS)  # the end of its input: it lets go
        self.assertEqual("read yes write no delete no", held)
        self.assertEqual("read yes write yes delete yes", self.what_others_can_do())

    def test_two_replays_hold_the_same_record(self):
        holders = [self.start("hold", self.record) for _ in range(2)]
        self.assertEqual(["held", "held"], [holder.stdout.readline().strip() for holder in holders])
        holders[0].communicate(timeout=WINE_SECONDS)
        self.assertEqual("read yes write no delete no", self.what_others_can_do())
        holders[1].communicate(timeout=WINE_SECONDS)

    def test_a_record_that_is_not_there_is_not_held(self):
        holder = self.start("hold", self.record.with_name("none.json"))
        self.assertEqual("not held", holder.communicate(timeout=WINE_SECONDS)[0].strip())


if __name__ == "__main__":
    reason = missing()
    if reason:
        print(f"skipped: {reason}")
        sys.exit(77)
    WORK.mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1], verbosity=2)
