#!/usr/bin/env python3
"""Each public header compiles by itself, also in a project with stricter warnings than ours.

    public_headers_test.py BUILD_DIR WORK_DIR CMAKE COMPILER QT_INCLUDE_DIR...
"""
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

BUILD, WORK, CMAKE, COMPILER, *QT = sys.argv[1:]
INCLUDE = Path(WORK) / "include"
del sys.argv[1:]
STRICT = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Wold-style-cast", "-Werror"]


def headers():
    return sorted(path.relative_to(INCLUDE).as_posix() for path in INCLUDE.rglob("*.h"))


def setUpModule():
    shutil.rmtree(WORK, ignore_errors=True)
    subprocess.run([CMAKE, "--install", BUILD, "--prefix", WORK, "--component", "development"], check=True,
                   stdout=subprocess.DEVNULL)


class PublicHeaders(unittest.TestCase):
    def test_are_clean_one_by_one(self):
        names = headers()
        self.assertIn("taviinputmanager/taviinputmanager.h", names)
        self.assertIn("keymap/tavikeymapmanager.h", names)
        command = [COMPILER, "-std=c++17", "-x", "c++", "-fsyntax-only", "-fPIC", *STRICT, f"-I{INCLUDE}"]
        for folder in QT:
            command += ["-isystem", folder]
        for name in names:
            with self.subTest(name):
                result = subprocess.run([*command, "-"], input=f'#include "{name}"\n', text=True, check=False,
                                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
                self.assertEqual(result.returncode, 0, result.stdout)


if __name__ == "__main__":
    unittest.main()
