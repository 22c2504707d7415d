#!/usr/bin/env python3
"""The guest's static programs play lines like this machine's own build.

    static_guests_test.py TAVI_GUEST WORK_DIR SOURCE_DIR

tools/build_guest builds them, and qemu-user runs those of other machines. If something that all of them need is missing,
the test is skipped with exit status 77; if only one needs it, it is reported.
"""
import platform
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

GUEST, WORK, ROOT = (Path(argument) for argument in sys.argv[1:4])

# Each with its compiler, and the emulator that runs it on other machines.
ARCHITECTURES = {
    "aarch64": ("aarch64-linux-gnu-g++", "qemu-aarch64-static"),
    "armv7": ("arm-linux-gnueabihf-g++", "qemu-arm-static"),
    "x86_64": ("x86_64-linux-gnu-g++", "qemu-x86_64-static"),
}
MOST_BYTES = 750_000

# One line of each form, texts, halves, blanks, exponents, and invalid lines.
LINES = "\n".join("""
1:SLOTPRESS:2:2:1:1:640:360
1:SLOTPRESS:18:18:1:1:640.5:-0.5
1:SLOTMULTIPRESS:10:10:1e+03:359.49999:0:0:700:9007199254740993
1:SLOTMULTIRELEASE:10:0
1:SLOTRELEASE:2
1:SLOTRELEASEALL
1:KBDPR: 30 :1
1:KBDRL:+30:0
1:KBDPR:347:1
1:MOUSEMOVE_REL:12.5:3e9
1:WHEEL:640:360:-640:360
1:WHEEL_WITH_DELTA:640:360:12.5:0
1:LSTICKAXIS:-1000000:500000
1:RTRIGGERAXIS:2
1:GPDBUTTON:304:1
1:HATX:-1
1:TOUCHPADLIGHTTOUCH:640:360
1:TOUCHPADPRESS
1:TOUCHPADRELEASE
1:SLOTMOVE:1
1:KBDPR:2147483648:1
""".strip().splitlines()).encode() + b"\nTEXT:good game! \xc3\xa9\xff\0TEXT_CONTROL:ENTER\0" + b"2:" + b"A" * 70_000 + b"\n1:HATX:0\n"


def play(*command):
    outcome = subprocess.run([*command, "--dry-run"], input=LINES, capture_output=True, timeout=60)
    return outcome.returncode, outcome.stdout, outcome.stderr


def how_to_run(architecture):
    """The command that starts the program; None if it cannot run."""
    machine = {"armv7l": "armv7"}.get(platform.machine(), platform.machine())
    if machine == architecture:
        return []
    emulator = shutil.which(ARCHITECTURES[architecture][1])
    return [emulator] if emulator else None


class StaticGuests(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        subprocess.run([ROOT / "tools" / "build_guest", WORK], check=True)
        cls.expected = play(GUEST)

    def programs(self):
        for architecture, (compiler, _) in ARCHITECTURES.items():
            if shutil.which(compiler):
                yield architecture, WORK / architecture / "tavi-guest"

    def test_this_machines_program_plays(self):
        status, output, errors = self.expected
        self.assertEqual(status, 1)  # some lines are wrong
        self.assertGreater(len(output.splitlines()), 100)
        self.assertEqual(len(errors.splitlines()), 4)  # two lines, two characters in one text, one that is too long

    def test_each_prints_the_same(self):
        for architecture, program in self.programs():
            with self.subTest(architecture):
                runner = how_to_run(architecture)
                if runner is None:
                    print(f"not run: {architecture} ({ARCHITECTURES[architecture][1]} is not installed)")
                    continue
                self.assertEqual(play(*runner, program), self.expected)

    def test_each_is_small_and_stands_alone(self):
        for architecture, program in self.programs():
            with self.subTest(architecture):
                self.assertLess(program.stat().st_size, MOST_BYTES)
                headers = subprocess.run(["readelf", "-lW", program], check=True, capture_output=True, text=True).stdout
                self.assertIn("LOAD", headers)
                self.assertNotIn("INTERP", headers)  # names who loads a program's libraries


if __name__ == "__main__":
    WORK.mkdir(parents=True, exist_ok=True)
    if not any(shutil.which(compiler) for compiler, _ in ARCHITECTURES.values()):
        print("Skipped: no compiler for static guests (tools/install-dependencies.sh guest-programs)")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1], verbosity=2)
