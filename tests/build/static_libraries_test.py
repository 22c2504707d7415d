#!/usr/bin/env python3
"""With BUILD_SHARED_LIBS off the libraries are static, and others can build against them with CMake and pkg-config.

    static_libraries_test.py SOURCE_DIR BUILD_DIR WORK_DIR LIB_DIR CMAKE GENERATOR COMPILER OPTION...

BUILD_DIR should be next to the tree's build folder, and the options should be the same: then a compiler cache has all
objects.
"""
import os
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from commands import build_by_cmake, run

SOURCE, BUILD, WORK, LIB, *OPTIONS = sys.argv[1:]
del sys.argv[1:]
TOOLS = OPTIONS[:3]
CMAKE, GENERATOR, COMPILER = TOOLS
del OPTIONS[:3]
WORK = Path(WORK)
INSTALLED = WORK / "installed"
EXAMPLE = Path(SOURCE) / "examples" / "host"
EXPECTED = (EXAMPLE / "output.txt").read_text(encoding="utf-8")
ENVIRONMENT = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "PKG_CONFIG_PATH": str(INSTALLED / LIB / "pkgconfig")}


def output_of(program):
    return subprocess.run([program, EXAMPLE / "keymap.yaml"], check=True, text=True, stdout=subprocess.PIPE,
                          env=ENVIRONMENT).stdout


def setUpModule():
    shutil.rmtree(WORK, ignore_errors=True)
    build_by_cmake(SOURCE, BUILD, TOOLS, *OPTIONS, "-DBUILD_SHARED_LIBS=OFF", "-DTAVI_BUILD_TESTS=OFF",
                   "-DTAVI_BUILD_HOST=OFF")
    run(CMAKE, "--install", BUILD, "--prefix", INSTALLED)


class StaticLibraries(unittest.TestCase):
    def test_are_there_alone(self):
        names = sorted(path.name for path in (INSTALLED / LIB).glob("lib*"))
        self.assertEqual(names, ["libtavi-keymapmanager.a", "libtaviinputmanager.a"])

    def test_example_host_builds_by_cmake_and_runs(self):
        build = WORK / "by_cmake"
        build_by_cmake(EXAMPLE, build, TOOLS, f"-DCMAKE_PREFIX_PATH={INSTALLED}")
        self.assertEqual(output_of(build / "example_host"), EXPECTED)

    def test_example_host_builds_by_pkg_config_and_runs(self):
        flags = run("pkg-config", "--static", "--cflags", "--libs", "taviinputmanager", env=ENVIRONMENT).split()
        program = WORK / "by_pkg_config"
        run(COMPILER, "-std=c++17", EXAMPLE / "main.cpp", "-o", program, *flags)
        self.assertEqual(output_of(program), EXPECTED)


if __name__ == "__main__":
    unittest.main()
