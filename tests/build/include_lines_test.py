#!/usr/bin/env python3
"""The rooms stand on floors, and include lines point only downwards.

    include_lines_test.py SOURCE_DIR
"""
import os
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()

# Floors from the ground. Rooms of one floor may look at each other, and at every floor below.
FLOORS = [
    ["include", "keymap"],
    ["core"],
    ["slots"],
    ["simulators", "simulators/workers"],
    ["handlers", "record", "record/json"],
    ["core/entry"],
]
# Beside the house: what these may include of the tree, apart from themselves. A path ending in .h is that file alone.
OUTSIDE = {
    "keymapmanager": ["keymap"],
    "host": ["include", "keymap", "keymapmanager/item_types.h", "keymapmanager/key_names.h",
             "keymapmanager/keymap_file.h", "keymapmanager/keymap_outline.h",
             "keymapmanager/nearest_word.h"],
}
# Rooms whose headers are installed stand on nothing but Qt, the standard library and themselves.
GROUND = ["include", "keymap"]
# Other libraries, by the first word of their headers, and who may use them. Tests may use all.
LIBRARIES = {
    "Poco/": ["core", "record", "record/json"],
    "yaml.h": ["keymapmanager"],
    "SDL.h": ["host"],
    "libevdev/": ["host"],
}
FREE = ["tests", "benchmarks", "fuzz", "examples", "cmake"]

ALL_ROOMS = [room for floor in FLOORS for room in floor] + list(OUTSIDE) + FREE
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def room_of(path):
    """The longest room name that `path`, relative to the root, stands in."""
    rooms = [room for room in ALL_ROOMS if path.startswith(room + "/")]
    return max(rooms, key=len, default=None)


MADE = "test_folders.h"  # by CMake, in the build folder


def sources():
    for top in sorted({room.split("/")[0] for room in ALL_ROOMS}):
        for suffix in ("*.h", "*.cpp"):
            yield from (str(path.relative_to(ROOT)) for path in sorted((ROOT / top).rglob(suffix)))


def resolve(includer, name):
    """The file of the tree that an include line means, or None."""
    for base in ("", "include", os.path.dirname(includer)):
        candidate = os.path.normpath(os.path.join(base, name))
        if (ROOT / candidate).is_file():
            return candidate
    return None


def include_lines():
    """(file, delimiter, name, file of the tree or None) for each include line."""
    for source in sources():
        for delimiter, name in INCLUDE.findall((ROOT / source).read_text(encoding="utf-8")):
            yield source, delimiter, name, resolve(source, name)


LINES = list(include_lines())


def allowed_rooms(room):
    if room in OUTSIDE:
        return OUTSIDE[room] + [room]
    floor = next(number for number, rooms in enumerate(FLOORS) if room in rooms)
    if floor == 0:
        return [room]
    return [below for rooms in FLOORS[: floor + 1] for below in rooms]


def may_include(source, target):
    room = room_of(source)
    if room in FREE:
        return True
    return any(target == entry or room_of(target) == entry for entry in allowed_rooms(room))


def circles(graph):
    """Each circle of include lines, found once, as a list of files."""
    done, found = set(), []

    def visit(node, path):
        if node in path:
            found.append(path[path.index(node):] + [node])
            return
        if node in done:
            return
        for target in graph.get(node, []):
            visit(target, path + [node])
        done.add(node)

    for node in graph:
        visit(node, [])
    return found


class IncludeLines(unittest.TestCase):
    maxDiff = None

    def test_every_room_has_files(self):
        rooms = {room_of(source) for source, *_ in LINES}
        for floor in FLOORS:
            for room in floor:
                self.assertIn(room, rooms, "the table of floors names a room that is empty")

    def test_point_only_downwards(self):
        wrong = [f"{source} includes {target}" for source, _, _, target in LINES
                 if target and not may_include(source, target)]
        self.assertEqual(wrong, [])

    def test_workers_ask_other_workers_and_no_simulator(self):
        wrong = [f"{source} includes {target}" for source, _, _, target in LINES
                 if target and room_of(source) == "simulators/workers" and target.endswith("_simulator.h")]
        self.assertEqual(wrong, [])

    def test_quoted_names_are_files_of_the_tree(self):
        wrong = [f'{source} includes "{name}"' for source, delimiter, name, target in LINES
                 if delimiter == '"' and not target and not name.endswith(".moc") and name != MADE]
        self.assertEqual(wrong, [])

    def test_own_files_are_quoted(self):
        # An example shows what the user of an installed tree writes.
        wrong = [f"{source} includes <{name}>" for source, delimiter, name, target in LINES
                 if delimiter == "<" and target and room_of(source) != "examples"]
        self.assertEqual(wrong, [])

    def test_no_two_files_include_each_other_in_a_circle(self):
        graph = {}
        for source, _, _, target in LINES:
            if target:
                graph.setdefault(source, []).append(target)
        self.assertEqual([" -> ".join(circle) for circle in circles(graph)], [])

    def test_public_headers_stand_on_qt_alone(self):
        wrong = [f"{source} includes <{name}>" for source, delimiter, name, target in LINES
                 if room_of(source) in GROUND and delimiter == "<" and not target
                 and not re.fullmatch(r"Q\w+|q\w+\.h|[a-z_]+", name)]
        self.assertEqual(wrong, [])

    def test_other_libraries_stay_in_their_rooms(self):
        wrong = [f"{source} includes <{name}>" for source, _, name, _ in LINES
                 for word, rooms in LIBRARIES.items()
                 if name.startswith(word) and room_of(source) not in rooms + FREE]
        self.assertEqual(wrong, [])


class TheTestItself(unittest.TestCase):
    """The rules would be worth nothing if they let the obvious breach through."""

    def test_breaches(self):
        rows = [
            ("core/clock.cpp", "slots/slot_manager.h", False, "upwards"),
            ("core/clock.cpp", "core/entry/x.h", False, "the entry is on top, though its folder is in core"),
            ("core/entry/exports.cpp", "record/record_manager.h", True, "the entry sees every room"),
            ("handlers/x.cpp", "simulators/workers/y.h", True, "downwards"),
            ("simulators/x.cpp", "handlers/y.h", False, "upwards"),
            ("keymap/x.h", "include/taviinputmanager/types.h", False, "the ground rooms do not know each other"),
            ("keymapmanager/x.cpp", "core/clock.h", False, "the keymap library stands apart"),
            ("host/window/x.cpp", "keymapmanager/key_names.h", True, "a public header of the keymap library"),
            ("host/window/x.cpp", "keymapmanager/yaml_node.h", False, "an inner header of the keymap library"),
            ("host/main.cpp", "core/clock.h", False, "a host is a user like any other"),
        ]
        for source, target, expected, why in rows:
            self.assertEqual(may_include(source, target), expected, f"{source} -> {target}: {why}")

    def test_circles(self):
        self.assertEqual(circles({"a": ["b"], "b": ["c"], "c": ["a"]}), [["a", "b", "c", "a"]])
        self.assertEqual(circles({"a": ["b", "c"], "b": ["c"]}), [])


if __name__ == "__main__":
    unittest.main()
