#!/usr/bin/env python3
"""The static guests on real kernels: their touches are read back, and lifted when they are killed.

    kernel_programs_test.py BUILD_DIR WORK_DIR SOURCE_DIR

Boots a small machine of each kind in qemu, without acceleration. BUILD_DIR/guest_kernel and .../guest_kernel_arm64
hold the files that fetch_kernel.sh unpacks, BUILD_DIR/guest_programs the programs that tools/build_guest makes. If
something that all machines need is missing, the test is skipped with exit status 77; if only one machine needs it, it
is reported.
"""
import re
import shutil
import subprocess
import sys
import time
import unittest
from pathlib import Path

sys.dont_write_bytecode = True

import small_machine  # noqa: E402

KERNELS, WORK, ROOT = (Path(argument) for argument in sys.argv[1:4])
HERE = Path(__file__).parent
PROGRAMS = KERNELS.resolve() / "guest_programs"
BOOT_SECONDS = 170

# Compiler of the first process, folder of the kernel, the machine, its console, and the programs that it can run.
MACHINES = {
    "x86_64": ("x86_64-linux-gnu-g++", "guest_kernel", small_machine.X86_64,
               "ttyS0", ["x86_64"]),
    "arm64": ("aarch64-linux-gnu-g++", "guest_kernel_arm64",
              ["qemu-system-aarch64", "-machine", "virt", "-cpu", "cortex-a72"], "ttyAMA0", ["aarch64", "armv7"]),
}

# A tap, a walk of two steps, and two fingers that stay down.
LINES = """\
1:SLOTPRESS:11:11:1:1:1203:533
1:SLOTRELEASE:11
1:SLOTPRESS:2:2:1:1:230:518
1:SLOTPRESS:2:2:1:1:230:489.5
1:SLOTRELEASE:2
1:SLOTMULTIPRESS:18:18:320:360
1:SLOTMULTIPRESS:19:19:960:360
"""

NAMES = {(0, 0): "SYN", (1, 330): "TOUCH", (3, 47): "SLOT", (3, 53): "X", (3, 54): "Y", (3, 57): "ID"}
# The kernel omits values that did not change: the slot of the frame before, the coordinate that a finger's move keeps.
PLAYED = ["SLOT 11", "ID 11", "X 1203", "Y 533", "TOUCH 1", "SYN 0",
          "ID -1", "TOUCH 0", "SYN 0",
          "SLOT 2", "ID 2", "X 230", "Y 518", "TOUCH 1", "SYN 0",
          "Y 490", "SYN 0",
          "ID -1", "TOUCH 0", "SYN 0",
          "SLOT 18", "ID 18", "X 320", "Y 360", "TOUCH 1", "SYN 0",
          "SLOT 19", "ID 19", "X 960", "Y 360", "SYN 0"]
LIFTED = ["SLOT 18", "ID -1", "SLOT 19", "ID -1", "TOUCH 0", "SYN 0", "gone"]


def missing(machine):
    compiler, kernel, (qemu, *_), _, _ = MACHINES[machine]
    for program in (compiler, qemu, "cpio"):
        if not shutil.which(program):
            return f"{program} is not installed (tools/install-dependencies.sh guest guest-programs)"
    for name in ("vmlinuz", "evdev.ko", "uinput.ko"):
        if not (KERNELS / kernel / name).exists():
            return f"no {name} in {KERNELS / kernel} (tests/guest/kernel/fetch_kernel.sh)"
    return None


def make_file_system(machine):
    compiler, kernel, _, _, architectures = MACHINES[machine]
    root = WORK / machine / "root"
    shutil.rmtree(root, ignore_errors=True)
    (root / "guests").mkdir(parents=True)
    subprocess.run([compiler, "-std=c++17", "-Wall", "-Wextra", "-Werror", "-Wno-psabi", "-Os", "-static", "-s",
                    "-fuse-ld=bfd", HERE / "first_process.cpp", "-o", root / "init"], check=True)
    for architecture in architectures:
        program = PROGRAMS / architecture / "tavi-guest"
        if program.exists():
            shutil.copy(program, root / "guests" / architecture)
        else:
            print(f"not tried: {architecture}, whose compiler is not here")
    for module in ("evdev.ko", "uinput.ko"):
        shutil.copy(KERNELS / kernel / module, root)
    (root / "lines").write_text(LINES, encoding="ascii")
    return small_machine.pack(root, WORK / machine / "root.cpio")


def boot(machine):
    """The output of the first process, by program, in lines."""
    _, folder, qemu, console, _ = MACHINES[machine]
    archive, kernel = make_file_system(machine), KERNELS / folder / "vmlinuz"
    if machine == "x86_64":  # that of arm64 is not packed
        kernel = small_machine.unpacked(kernel, WORK / machine / "vmlinux")
    start = time.monotonic()
    text = small_machine.boot(kernel, archive, BOOT_SECONDS, qemu, memory=512, console=console)
    print(f"{machine}: {time.monotonic() - start:.1f} s from boot to power-off")
    found = re.findall(r"^begin (\w+)\n(.*?)^end\n", text, re.M | re.S)
    if not found:
        raise AssertionError("the machine did not come to its end:\n" + text)
    return {name: lines.splitlines() for name, lines in found}


def readable(line):
    numbers = line.split()
    if len(numbers) != 3 or not numbers[0].isdigit():
        return line
    kind, code, value = map(int, numbers)
    return f"{NAMES.get((kind, code), f'{kind} {code}')} {value}"


class KernelPrograms(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        subprocess.run([ROOT / "tools" / "build_guest", PROGRAMS], check=True)

    def try_machine(self, machine):
        reason = missing(machine)
        if reason:
            self.skipTest(reason)
        results = boot(machine)
        self.assertEqual(sorted(results), [name for name in MACHINES[machine][4]
                                           if (PROGRAMS / name / "tavi-guest").exists()])
        for architecture, lines in results.items():
            with self.subTest(architecture):
                self.assertEqual(lines[0], "places: screen keyboard pointer")
                self.assertEqual([readable(line) for line in lines[1:]], PLAYED + LIFTED)

    def test_x86_64(self):
        self.try_machine("x86_64")

    def test_arm64(self):
        self.try_machine("arm64")


if __name__ == "__main__":
    reasons = [missing(machine) for machine in MACHINES]
    if all(reasons):
        print("Skipped:", "; ".join(reasons))
        sys.exit(77)
    WORK.mkdir(parents=True, exist_ok=True)
    WORK = WORK.resolve()
    unittest.main(argv=sys.argv[:1], verbosity=2)
