#!/usr/bin/env python3
"""An installed tree is complete, can be moved, and others can build against it with CMake and with pkg-config.

    installed_tree_test.py BUILD_DIR SOURCE_DIR LIB_DIR WORK_DIR CMAKE GENERATOR COMPILER QT
"""
import functools
import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

import commands

BUILD, SOURCE, LIB, WORK, CMAKE, GENERATOR, COMPILER, QT = sys.argv[1:9]
del sys.argv[1:9]
WORK = Path(WORK)
INSTALLED = WORK / "moved" / "installed"
EXAMPLE = Path(SOURCE) / "examples" / "host"
WINDOW = Path(SOURCE) / "examples" / "host_window"
ENVIRONMENT = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
ENVIRONMENT.pop("LD_LIBRARY_PATH", None)
TOOLS = CMAKE, GENERATOR, COMPILER
run = functools.partial(commands.run, env=ENVIRONMENT)
build_by_cmake = functools.partial(commands.build_by_cmake, env=ENVIRONMENT)

# Each load resets the display held so far: the curve, the right walk and the eye release first, then every finger is
# lifted. That is the load of Initialize and that of the keymap, both before display 1. Then the key F is a finger at
# (0.9, 0.5) of a touch surface of 1920 x 1080: 1728, 540. The first finger of taps is 11.
EXPECTED = (EXAMPLE / "output.txt").read_text(encoding="utf-8")

# The example with a window, used by host_window/use_window.cpp. The guest is 1920 x 1080, in a view of 640 x 360 at
# first: a key at (0.9, 0.5) is 1728, 540 in any view; the place 320, 180 is a half of the view's size, then, when
# that is 1280 x 720, a quarter. View control goes from (0.6, 0.4), 1152, 432, by a pixel a count; its first counts
# press. A full reset of a display names the gestures' fingers, then all but those of macros.
SWEEP = "".join(f"1:SLOTRELEASE:{slot}\n" for slot in [5, 4, 7, *range(18)])
WHEEL_TAP = "1:SLOTPRESS:11:11:1:1:1536:540\n1:SLOTRELEASE:11\n"
TAP = "1:SLOTPRESS:11:11:1:1:1728:540\n1:SLOTRELEASE:11\n"
WINDOW_EXPECTED = ("# start\n" + EXPECTED[:-len(TAP)] +
                   "# keys\n" + TAP + "1:KBDPR:35:1\n1:KBDRL:35:0\n1:KBDPR:96:1\n1:KBDRL:96:0\n"
                   "# a finger, before and after the window grows\n"
                   "1:SLOTPRESS:1:1:1:1:960:540\n1:SLOTRELEASE:1\n1:SLOTPRESS:1:1:1:1:480:270\n1:SLOTRELEASE:1\n"
                   "# of two fingers one goes up while the other rests, and then the touch is taken away\n"
                   "1:SLOTMULTIPRESS:18:18:480:270\n"
                   "1:SLOTMULTIPRESS:18:18:480:270\n1:SLOTMULTIPRESS:19:19:960:540\n"
                   "1:SLOTMULTIRELEASE:19\n1:SLOTMULTIPRESS:18:18:480:270\n1:SLOTMULTIRELEASE:18\n"
                   "# half a notch, sideways, and the other half\n" + WHEEL_TAP +
                   "# everything passes through, and no longer\n" +
                   SWEEP + "1:KBDPR:33:1\n1:KBDRL:33:0\n" + SWEEP + TAP +
                   "# a text field\nTEXT:f\0TEXT:\u00e9\0"
                   "# the mouse turns the view\n"
                   "1:SLOTRELEASE:1\n1:SLOTPRESS:1:1:1:1:1152:432\n1:SLOTPRESS:1:1:1:1:1162:432\n"
                   "# the focus goes while a key and a finger are held\n1:SLOTPRESS:11:11:1:1:1728:540\n"
                   "1:SLOTMULTIPRESS:18:18:480:270\n" + SWEEP + "1:SLOTMULTIRELEASE:18\n# closed\n")


def output_of(program, example=EXAMPLE):
    return subprocess.run([program, example / "keymap.yaml"], check=True, text=True, stdout=subprocess.PIPE,
                          env=ENVIRONMENT).stdout


def setUpModule():
    shutil.rmtree(WORK, ignore_errors=True)
    run(CMAKE, "--install", BUILD, "--prefix", WORK / "installed")
    INSTALLED.parent.mkdir()
    (WORK / "installed").rename(INSTALLED)


class InstalledTree(unittest.TestCase):
    def test_holds_libraries_program_and_packages(self):
        for name in [f"{LIB}/libtaviinputmanager.so", f"{LIB}/libtavi-keymapmanager.so", "bin/tavi",
                     f"{LIB}/cmake/taviinputmanager/taviinputmanagerConfig.cmake",
                     f"{LIB}/pkgconfig/taviinputmanager.pc", f"{LIB}/pkgconfig/tavi-keymapmanager.pc"]:
            self.assertTrue((INSTALLED / name).is_file(), name)

    def test_holds_the_manual_page_and_completions(self):
        for name in ["man/man1/tavi.1", "bash-completion/completions/tavi", "zsh/site-functions/_tavi",
                     "fish/vendor_completions.d/tavi.fish"]:
            self.assertTrue((INSTALLED / "share" / name).is_file(), name)

    def test_holds_the_public_headers_and_no_other(self):
        expected = [path.relative_to(Path(SOURCE) / "include") for path in (Path(SOURCE) / "include").rglob("*.h")]
        expected += [path.relative_to(SOURCE) for path in (Path(SOURCE) / "keymap").glob("*.h")]
        expected += [Path(f"keymapmanager/{name}.h")
                     for name in ("item_types", "key_names", "keymap_file", "keymap_outline", "nearest_word")]
        include = INSTALLED / "include"
        self.assertEqual(sorted(path.relative_to(include) for path in include.rglob("*") if path.is_file()),
                         sorted(expected))

    def test_headers_need_no_header_that_is_not_installed(self):
        include = INSTALLED / "include"
        missing = [f"{path.relative_to(include)} includes {name}" for path in include.rglob("*.h")
                   for name in re.findall(r'#include "([^"]+)"', path.read_text(encoding="utf-8"))
                   if not (include / name).is_file()]
        self.assertEqual(missing, [])

    def test_program_starts(self):
        self.assertIn("tavi", run(INSTALLED / "bin" / "tavi", "--help"))

    def test_example_host_builds_by_cmake_and_runs(self):
        build = WORK / "by_cmake"
        build_by_cmake(EXAMPLE, build, TOOLS, f"-DCMAKE_PREFIX_PATH={INSTALLED}")
        self.assertEqual(output_of(build / "example_host"), EXPECTED)

    def test_example_host_builds_by_pkg_config_and_runs(self):
        ENVIRONMENT["PKG_CONFIG_PATH"] = str(INSTALLED / LIB / "pkgconfig")
        flags = run("pkg-config", "--cflags", "--libs", "taviinputmanager").split()
        program = WORK / "by_pkg_config"
        run(COMPILER, "-std=c++17", EXAMPLE / "main.cpp", "-o", program, *flags, f"-Wl,-rpath,{INSTALLED / LIB}")
        self.assertEqual(output_of(program), EXPECTED)

    def test_example_with_a_window_builds_and_runs(self):
        build = WORK / "window"
        build_by_cmake(Path(__file__).parent / "host_window", build, TOOLS, f"-DEXAMPLE={WINDOW}", f"-DSOURCE={SOURCE}",
                       f"-DCMAKE_PREFIX_PATH={INSTALLED}")
        self.assertEqual(output_of(build / "host_window_test", WINDOW), WINDOW_EXPECTED)
        with subprocess.Popen([build / "example" / "host_window", WINDOW / "keymap.yaml"], text=True,
                              stdout=subprocess.PIPE, env=ENVIRONMENT) as program:
            lines = [program.stdout.readline() for _ in range(8)]
            program.terminate()
        self.assertEqual("".join(lines), EXPECTED[:-len(TAP)])

    def test_pkg_config_finds_the_keymap_library_by_itself(self):
        ENVIRONMENT["PKG_CONFIG_PATH"] = str(INSTALLED / LIB / "pkgconfig")
        self.assertIn("-ltavi-keymapmanager", run("pkg-config", "--libs", "tavi-keymapmanager"))

    def test_packages_name_the_qt_that_the_libraries_were_built_on(self):
        ENVIRONMENT["PKG_CONFIG_PATH"] = str(INSTALLED / LIB / "pkgconfig")
        for name in ["tavi-keymapmanager", "taviinputmanager"]:
            self.assertEqual(run("pkg-config", "--variable=qt", name).strip(), QT)
        self.assertIn(f"Qt{QT}Core", run("pkg-config", "--print-requires", "tavi-keymapmanager"))
        config = (INSTALLED / LIB / "cmake/taviinputmanager/taviinputmanagerConfig.cmake").read_text(encoding="utf-8")
        self.assertIn(f"set(taviinputmanager_QT {QT})", config)
        needed = run("readelf", "--dynamic", INSTALLED / LIB / "libtaviinputmanager.so")
        self.assertIn(f"libQt{QT}Core.so.{QT}", needed)


if __name__ == "__main__":
    unittest.main()
