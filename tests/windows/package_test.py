#!/usr/bin/env python3
"""The zip for Windows is complete, can be unpacked anywhere, and other projects can build against it.

    package_test.py BUILD_DIR SOURCE_DIR WORK_DIR CMAKE GENERATOR TOOLCHAIN
"""
import os
import re
import shutil
import subprocess
import sys
import unittest
import zipfile
from pathlib import Path

BUILD, SOURCE, WORK = (Path(argument) for argument in sys.argv[1:4])
CMAKE, GENERATOR, TOOLCHAIN = sys.argv[4:7]
del sys.argv[1:7]
EXAMPLE, WINDOW = SOURCE / "examples" / "host", SOURCE / "examples" / "host_window"
EXPECTED = (EXAMPLE / "output.txt").read_text(encoding="utf-8")
TAP = "1:SLOTPRESS:11:11:1:1:1728:540\n1:SLOTRELEASE:11\n"
KEY = "1:KBDPR:33:1\n1:KBDRL:33:0\n"


def run(*command, env=None):
    result = subprocess.run([str(word) for word in command], text=True, capture_output=True, env=env, check=False)
    if result.returncode != 0:
        raise AssertionError(f"{command} gave {result.returncode}:\n{result.stdout}{result.stderr}")
    return result.stdout


def start(program, *arguments, libraries=()):
    """The output of a program that finds libraries only in its own folder and in `libraries`."""
    paths = ";".join(f"Z:{folder}" for folder in libraries)
    environment = {**os.environ, "TAVI_WINE_PATH": paths, "QT_QPA_PLATFORM": "offscreen"}
    return run(SOURCE / "tools" / "windows" / "run", program, *arguments, env=environment)


def build(source, name):
    """Builds a separate project, which finds the unpacked tree as a CMake package."""
    folder = WORK / name
    run(CMAKE, "-G", GENERATOR, "-S", source, "-B", folder, f"-DCMAKE_TOOLCHAIN_FILE={TOOLCHAIN}",
        f"-DCMAKE_PREFIX_PATH={UNPACKED}")
    run(CMAKE, "--build", folder)
    return folder


def setUpModule():
    global UNPACKED
    shutil.rmtree(WORK, ignore_errors=True)
    WORK.mkdir(parents=True)
    packed = run(SOURCE / "tools" / "windows" / "package", BUILD).splitlines()[-1]
    with zipfile.ZipFile(SOURCE / packed) as archive:
        archive.extractall(WORK / "unpacked")
    (UNPACKED,) = (WORK / "unpacked").iterdir()


class Package(unittest.TestCase):
    def test_holds_libraries_program_headers_and_documents(self):
        for name in ["bin/tavi.exe", "bin/libtaviinputmanager.dll", "bin/libtavi-keymapmanager.dll", "bin/Qt5Widgets.dll",
                     "plugins/platforms/qwindows.dll", "plugins/imageformats/qjpeg.dll", "lib/libtaviinputmanager.dll.a",
                     "lib/libtavi-keymapmanager.dll.a",
                     "lib/cmake/taviinputmanager/taviinputmanagerConfig.cmake",
                     "include/taviinputmanager/taviinputmanager.h", "include/keymap/keymap_functions.h",
                     "share/doc/taviinputmanager/docs/keymap.md", "share/doc/taviinputmanager/docs/embedding.md"]:
            self.assertTrue((UNPACKED / name).is_file(), name)

    def test_says_nothing_of_where_it_was_built(self):
        for path in UNPACKED.rglob("*.cmake"):
            self.assertNotIn(str(BUILD), path.read_text(encoding="utf-8"), path.name)

    def test_program_starts_with_what_is_beside_it(self):
        self.assertIn("Usage: tavi", start(UNPACKED / "bin" / "tavi.exe", "--help"))
        keymap = SOURCE / "examples" / "keymaps" / "basics.yaml"
        self.assertIn("<svg", start(UNPACKED / "bin" / "tavi.exe", "draw", "-o", "-", f"Z:{keymap}"))

    def test_library_exports_the_functions_of_its_header_and_no_other(self):
        table = run("x86_64-w64-mingw32-objdump", "-p", UNPACKED / "bin" / "libtaviinputmanager.dll")
        table = table.split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
        mangled = re.findall(r"^\s+\[\s*\d+\].*? (\w+)$", table, re.MULTILINE)
        names = {name.split("(")[0] for name in run("x86_64-w64-mingw32-c++filt", *mangled).splitlines()}
        header = (SOURCE / "include/taviinputmanager/taviinputmanager.h").read_text(encoding="utf-8")
        declared = re.findall(r"^TAVI_EXPORT\s+[^;(]*?(\w+)\(", header, re.MULTILINE)
        self.assertEqual(names, {f"taviinputmanager::{name}" for name in declared})

    def test_example_host_builds_and_runs(self):
        program = build(EXAMPLE, "host") / "example_host.exe"
        keymap = f"Z:{EXAMPLE / 'keymap.yaml'}"
        self.assertEqual(start(program, keymap, libraries=[UNPACKED / "bin"]).replace("\r\n", "\n"), EXPECTED)

        own = build(Path(__file__).parent / "own_keymaps", "own_keymaps") / "libtavi-keymapmanager.dll"
        shutil.copy(own, program.parent)
        self.assertEqual(start(program, keymap, libraries=[UNPACKED / "bin"]).replace("\r\n", "\n"),
                         EXPECTED[:-len(TAP)] + KEY)

    def test_example_with_a_window_builds(self):
        self.assertTrue((build(WINDOW, "host_window") / "host_window.exe").is_file())


if __name__ == "__main__":
    unittest.main()
