#!/usr/bin/env python3
"""As a subproject the tree adds two libraries, and changes nothing in the outer project.

    subproject_test.py SOURCE_DIR WORK_DIR CMAKE GENERATOR COMPILER QT
"""
import json
import re
import shutil
import sys
import unittest
from pathlib import Path

from commands import run

SOURCE, WORK, CMAKE, GENERATOR, COMPILER, QT = sys.argv[1:7]
del sys.argv[1:7]
PARENT = Path(__file__).with_name("subproject")


class Project:
    """The outer project, configured in a separate folder."""

    def __init__(self, name, *options):
        self.folder = Path(WORK) / name
        shutil.rmtree(self.folder, ignore_errors=True)
        run(CMAKE, "-G", GENERATOR, "-S", PARENT, "-B", self.folder, f"-DTAVI={SOURCE}", f"-DTAVI_QT={QT}",
            f"-DCMAKE_CXX_COMPILER={COMPILER}", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON", *options)

    def cache(self):
        text = (self.folder / "CMakeCache.txt").read_text(encoding="utf-8")
        return dict(re.findall(r"^([\w-]+):\w+=(.*)$", text, re.MULTILINE))

    def commands(self, *folders):
        """How the sources below these folders are compiled."""
        entries = json.loads((self.folder / "compile_commands.json").read_text(encoding="utf-8"))
        return [entry["command"] for entry in entries
                if any(Path(folder) in Path(entry["file"]).parents for folder in folders)]


class Subproject(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.project = Project("plain")

    def test_has_no_target_but_the_libraries(self):
        targets = (self.project.folder / "targets.txt").read_text(encoding="utf-8").split()
        self.assertEqual(sorted(targets), ["tavi-keymapmanager", "tavi_objects", "taviinputmanager"])

    def test_adds_no_test_and_no_package(self):
        self.assertIn("Total Tests: 0", run("ctest", "--test-dir", self.project.folder, "-N"))
        self.assertEqual(list(self.project.folder.glob("CPack*")), [])

    def test_installs_nothing(self):
        run(CMAKE, "--install", self.project.folder, "--prefix", Path(WORK) / "nothing")
        self.assertFalse((Path(WORK) / "nothing").exists())

    def test_leaves_the_build_type_and_the_kind_of_libraries_to_the_project(self):
        cache = self.project.cache()
        self.assertEqual(cache.get("CMAKE_BUILD_TYPE", ""), "")
        self.assertNotIn("BUILD_SHARED_LIBS", cache)

    def test_changes_no_variable_of_the_project(self):
        self.assertEqual((self.project.folder / "changed.txt").read_text(encoding="utf-8"), "")

    def test_compiles_the_project_as_it_was_compiled(self):
        own = self.project.commands(Path(SOURCE) / "examples" / "host")
        self.assertEqual(len(own), 1)
        # It asks for C++17 itself, for which some compilers need "-std=gnu++17"; the tree's own setting is "c++17".
        for word in ["-Wall", "-Werror", "-fvisibility", "-std=c++", "ccache", "QT_NO_KEYWORDS", "TAVI_"]:
            self.assertNotIn(word, own[0])
        run(CMAKE, "--build", self.project.folder, "--target", "host")

    def test_warnings_are_errors_on_request(self):
        rooms = [Path(SOURCE) / "core", Path(SOURCE) / "keymapmanager"]
        for command in self.project.commands(*rooms):
            self.assertNotIn("-Werror", command)
        strict = Project("strict", "-DTAVI_WERROR=ON").commands(*rooms)
        self.assertGreater(len(strict), 20)
        for command in strict:
            self.assertIn("-Werror", command)


if __name__ == "__main__":
    unittest.main()
