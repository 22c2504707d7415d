#!/usr/bin/env python3
"""A tap, a walk and a pinch, read back from the devices of a real kernel.

    kernel_guest_test.py TAVI READ_DEVICES KERNEL_DIR WORK_DIR SOURCE_DIR

Boots a small machine in qemu, without acceleration. If something that it needs is missing, the test is skipped with
exit status 77.
"""
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

sys.dont_write_bytecode = True

import small_machine  # noqa: E402

TAVI, READER, KERNEL, WORK, ROOT = (Path(argument) for argument in sys.argv[1:6])
HERE = Path(__file__).parent
QEMU = small_machine.X86_64[0]
BOOT_SECONDS = 100

# F24, the end for the reader.
LAST_LINES = "450ms 1:KBDPR:194:1\n450ms 1:KBDRL:194:0\n"

SCRIPT = """
down Space; wait 40; up Space; wait 60
down W; wait 100; up W; wait 60
touch begin 1:320,360 2:960,360
wait 16; touch update 1:340,360 2:940,360
wait 16; touch end
"""


def missing():
    for program in (QEMU, "busybox", "cpio", "ldd"):
        if not shutil.which(program):
            return f"{program} is not installed (tools/install-dependencies.sh guest)"
    if subprocess.run(["ldd", shutil.which("busybox")], capture_output=True).returncode == 0:
        return "busybox is not the static one (tools/install-dependencies.sh guest)"
    for name in ("vmlinuz", "evdev.ko", "uinput.ko"):
        if not (KERNEL / name).exists():
            return f"no {name} in {KERNEL} (tests/guest/kernel/fetch_kernel.sh {KERNEL})"
    return None


def timeline():
    keymap = ROOT / "examples" / "keymaps" / "shooter.yaml"
    played = subprocess.run([TAVI, "simulate", keymap, "-"], input=SCRIPT, check=True, capture_output=True, text=True)
    return played.stdout + LAST_LINES


def make_file_system():
    root = WORK / "root"
    shutil.rmtree(root, ignore_errors=True)
    for library in small_machine.libraries(TAVI, READER):
        (root / library[1:]).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(library, root / library[1:])
    (root / "bin").mkdir(exist_ok=True)
    shutil.copy(shutil.which("busybox"), root / "bin" / "busybox")
    shutil.copy(HERE / "init.sh", root / "init")
    (root / "init").chmod(0o755)
    for program, name in ((TAVI, "tavi"), (READER, "read_devices")):
        subprocess.run(["strip", "-o", root / name, program], check=True)
    for module in ("evdev.ko", "uinput.ko"):
        shutil.copy(KERNEL / module, root)
    (root / "timeline").write_text(timeline(), encoding="utf-8")


def boot():
    """The machine's output between the marks, in lines."""
    make_file_system()
    archive = small_machine.pack(WORK / "root", WORK / "root.cpio")
    kernel = small_machine.unpacked(KERNEL / "vmlinuz", WORK / "vmlinux")
    return small_machine.between_marks(small_machine.boot(kernel, archive, BOOT_SECONDS)).splitlines()


def touch(*events):
    """A frame of the screen."""
    return [f"screen {event}" for event in events + ("EV_SYN SYN_REPORT 0",)]


def place(x=None, y=None):
    return ([f"EV_ABS ABS_MT_POSITION_X {x}"] if x is not None else []) + \
           ([f"EV_ABS ABS_MT_POSITION_Y {y}"] if y is not None else [])


def slot(number):
    return f"EV_ABS ABS_MT_SLOT {number}"


def finger(tracking_id):
    return f"EV_ABS ABS_MT_TRACKING_ID {tracking_id}"


DOWN, UP = "EV_KEY BTN_TOUCH 1", "EV_KEY BTN_TOUCH 0"

# The kernel omits values that did not change: the slot of the frame before, the coordinate that a move keeps.
TAP = touch(slot(11), finger(11), *place(1203, 533), DOWN) + touch(finger(-1), UP)
WALK = (touch(slot(2), finger(2), *place(230, 518), DOWN) + touch(*place(y=489)) + touch(*place(y=460)) +
        touch(*place(y=431)) + touch(*place(y=403)) + touch(finger(-1), UP))
PINCH = (touch(slot(18), finger(18), *place(320, 360), DOWN) + touch(slot(19), finger(19), *place(960, 360)) +
         touch(slot(18), *place(x=340)) + touch(slot(19), *place(x=940)) +
         touch(slot(18), finger(-1)) + touch(slot(19), finger(-1), UP))


class KernelGuest(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.lines = boot()

    def test_every_line_was_played(self):
        self.assertEqual(self.lines[-1], "status 0")

    def test_the_devices_told_where_they_are(self):
        words = [line.split()[0] for line in self.lines if re.fullmatch(r"\w+ /dev/input/event\d+", line)]
        self.assertEqual(words, ["screen", "keyboard", "pointer", "gamepad", "touchpad"])

    def test_a_tap_a_walk_and_a_pinch_are_read_back(self):
        self.assertEqual([line for line in self.lines if line.startswith("screen EV_")], TAP + WALK + PINCH)


if __name__ == "__main__":
    reason = missing()
    if reason:
        print("Skipped:", reason)
        sys.exit(77)
    WORK.mkdir(parents=True, exist_ok=True)
    unittest.main(argv=sys.argv[:1], verbosity=2)
