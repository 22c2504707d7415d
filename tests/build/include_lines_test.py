#!/usr/bin/env python3
"""The rooms stand on floors, and include lines point only downwards.

    include_lines_test.py SOURCE_DIR
"""
import collections
import os
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()

# The library's floors from the ground. A room sees itself and every floor below; rooms of one floor do not see each
# other. A room within a room is a room of its own: "simulators" is what the families share.
LIBRARY = [
    ["include", "keymap"],
    ["core"],
    ["slots"],
    ["simulators"],
    ["simulators/cast", "simulators/curve", "simulators/gamepad", "simulators/macro", "simulators/tap",
     "simulators/view", "simulators/walk", "simulators/wheel"],
    ["handlers", "record/json"],
    ["record"],
    ["entry"],
]
# Where one gesture asks another: the headers of another family that a family may include.
ASKS = {
    "simulators/cast": [
        "simulators/view/staring_wm_relative_input_worker.h",  # an aim takes the mouse's way that view control had
        "simulators/walk/left_stick_walk_sync_worker.h",       # an aim ends a walk that the stick steers
        "simulators/walk/right_walk_sync_worker.h",            # ... or that the mouse steers
        "simulators/walk/swipehold_async_worker.h",            # a spell with a walk of its own borrows the walk's keys
        "simulators/walk/swipehold_event_simulator.h",
    ],
    "simulators/gamepad": [
        "simulators/walk/swipehold_async_worker.h",  # a virtual stick is a walk whose finger is the stick
        "simulators/walk/swipehold_event_simulator.h",
    ],
    "simulators/view": [
        "simulators/cast/spell_event_simulator.h",  # view control waits for a cast to end
    ],
}
# What records are made of, which their text below is written and read by.
FACE_OF_RECORDS = ["record/record_action.h", "record/record_format.h"]
# The program's floors. It is a host like any other, and sees of the tree what SEEN_BY_HOST names.
HOST = [
    ["host/guest", "host/look", "host/system"],
    ["host/gamepad", "host/mirror", "host/record", "host/target"],
    ["host/session"],
    ["host/editor", "host/play", "host/simulation"],
    ["host/picture"],
    ["host/window/controls"],
    ["host/window/pointer"],
    ["host/window/view"],
    ["host/window/editor", "host/window/events", "host/window/findings", "host/window/records"],
    ["host/window"],
    ["host/command"],
    ["host"],
]
SEEN_BY_HOST = ["include", "keymap"]  # and the guest and the face of the keymap library
# The other side, floor by floor. It knows nothing of the others, and stands on the standard library, the C library and
# the kernel's headers alone.
GUEST = [
    ["guest/line"],
    ["guest/translation"],
    ["guest/device"],
    ["guest"],
    ["guest/program"],
]
# The keymap library's floors. It stands beside the house and knows nothing but the contract.
KEYMAPS = [
    ["keymap"],
    ["keymapmanager/keys", "keymapmanager/yaml"],
    ["keymapmanager/fields"],
    ["keymapmanager/checks"],
    ["keymapmanager"],
]
# Its face, whose types all of its rooms speak in: declared here and defined on its top floor.
FACE_OF_KEYMAPS = ["keymapmanager/item_types.h", "keymapmanager/key_names.h", "keymapmanager/keymap_file.h",
                   "keymapmanager/keymap_outline.h", "keymapmanager/nearest_word.h"]
# Rooms whose headers are installed stand on nothing but Qt, the standard library and themselves.
GROUND = ["include", "keymap"]
# Other libraries, by the first word of their headers, and who may use them. Tests may use all.
LIBRARIES = {
    "Poco/": ["core", "record/json"],
    "yaml.h": ["keymapmanager/yaml"],
    "SDL.h": ["host/gamepad"],
    "libevdev/": ["host/play"],
}
# Rooms that do without widgets, so that a host without a window has them: headers of Qt that they do not include.
WITHOUT_WIDGETS = ["host/gamepad", "host/guest", "host/mirror", "host/record", "host/session", "host/simulation",
                   "host/target"]
WIDGETS = re.compile(r"Q(Application|Widget|MainWindow|Dialog|Label|Menu|Action|\w*Button|\w*View|\w*Layout)$")
WORKER = re.compile(r"_worker(_\w+)?\.(h|cpp)$")
# What one Qt does otherwise than the other: "qt/x.h" is in two folders, of which a build includes one. Stands on Qt alone.
# All may use it but the installed headers.
QTS = ["qt/5", "qt/6"]
# What the calls of one system take. Only its own files use it: *_windows.cpp.
SYSTEMS = ["windows"]
FREE = ["tests", "benchmarks", "fuzz", "examples", "cmake"]
# The most files that a folder of sources holds; more want parting.
MOST_FILES = 45

def rooms_of(floors):
    return [room for floor in floors for room in floor]


ALL_ROOMS = QTS + SYSTEMS + rooms_of(LIBRARY) + rooms_of(KEYMAPS[1:]) + rooms_of(GUEST) + rooms_of(HOST) + FREE
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
    for base in ("", "include", QTS[-1], os.path.dirname(includer)):
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


def below(room, floors):
    """The rooms of all floors below that of `room`; of the ground floor there are none."""
    floor = next(number for number, rooms in enumerate(floors) if room in rooms)
    return rooms_of(floors[:floor])


def allowed(room):
    """Rooms and single files that `room` may include, apart from itself."""
    if room in rooms_of(GUEST):
        return below(room, GUEST)
    if room in QTS + SYSTEMS:
        return []
    if room in rooms_of(KEYMAPS[1:]):
        return below(room, KEYMAPS) + FACE_OF_KEYMAPS
    if room in rooms_of(HOST):
        return below(room, HOST) + SEEN_BY_HOST + rooms_of(GUEST) + FACE_OF_KEYMAPS
    return below(room, LIBRARY) + ASKS.get(room, []) + (FACE_OF_RECORDS if room == "record/json" else [])


def may_include(source, target):
    room = room_of(source)
    if room in FREE or (room_of(target) in QTS and room not in GROUND):
        return True
    if room_of(target) in SYSTEMS:
        return source.endswith(f"_{room_of(target)}.cpp")
    return room_of(target) == room or any(target == entry or room_of(target) == entry for entry in allowed(room))


def is_bare(name):
    """A header of the standard library, the C library or the kernel."""
    return bool(re.fullmatch(r"[a-z_]+(\.h)?|(linux|sys|netinet|arpa)/[a-z-]+\.h", name)) and not name.startswith("q")


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

    def test_each_qt_has_the_same_headers(self):
        names = [sorted(path.name for path in (ROOT / room).rglob("*.h")) for room in QTS]
        self.assertEqual(*names)
        self.assertTrue(names[0])

    def test_every_room_has_files(self):
        files = collections.Counter(os.path.dirname(source) for source in sources())
        for room in set(rooms_of(LIBRARY) + rooms_of(KEYMAPS) + rooms_of(GUEST) + rooms_of(HOST)) - {"include", "host"}:
            self.assertGreater(files[room], 1, f"{room} is empty, or too small for a room")

    def test_no_folder_is_crowded(self):
        files = collections.Counter(os.path.dirname(source) for source in sources())
        self.assertEqual([f"{folder}: {count}" for folder, count in files.items() if count > MOST_FILES], [])

    def test_families_ask_for_what_they_may(self):
        asked = {(room_of(source), target) for source, _, _, target in LINES if target}
        unused = [f"{room}: {target}" for room, targets in ASKS.items() for target in targets
                  if (room, target) not in asked]
        self.assertEqual(unused, [], "the table allows what nobody does")

    def test_rooms_without_widgets_have_none(self):
        wrong = [f"{source} includes <{name}>" for source, _, name, _ in LINES
                 if room_of(source) in WITHOUT_WIDGETS and WIDGETS.match(name)]
        self.assertEqual(wrong, [])

    def test_point_only_downwards(self):
        wrong = [f"{source} includes {target}" for source, _, _, target in LINES
                 if target and not may_include(source, target)]
        self.assertEqual(wrong, [])

    def test_workers_ask_other_workers_and_no_simulator(self):
        wrong = [f"{source} includes {target}" for source, _, _, target in LINES
                 if target and source.startswith("simulators/") and WORKER.search(source)
                 and target.endswith("_simulator.h") and target != "simulators/event_simulator.h"]
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

    def test_bare_rooms_know_no_qt(self):
        wrong = [f"{source} includes <{name}>" for source, delimiter, name, target in LINES
                 if room_of(source) in rooms_of(GUEST) and not target and not is_bare(name)]
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
            ("core/clock.cpp", "entry/x.h", False, "upwards"),
            ("entry/exports.cpp", "record/record_manager.h", True, "the entry sees every room"),
            ("handlers/x.cpp", "simulators/wheel/y.h", True, "downwards"),
            ("handlers/x.cpp", "record/y.h", False, "rooms of one floor"),
            ("simulators/x.cpp", "handlers/y.h", False, "upwards"),
            ("simulators/once.h", "simulators/tap/y.h", False, "what families share knows none of them"),
            ("simulators/tap/x.cpp", "simulators/once.h", True, "downwards"),
            ("simulators/tap/x.cpp", "simulators/macro/y.h", False, "a tap asks no macro"),
            ("simulators/view/x.cpp", "simulators/cast/spell_event_simulator.h", True, "one gesture asks another"),
            ("simulators/view/x.cpp", "simulators/cast/spell_aim.h", False, "an inner header of another family"),
            ("keymap/x.h", "include/taviinputmanager/types.h", False, "the ground rooms do not know each other"),
            ("keymapmanager/x.cpp", "core/clock.h", False, "the keymap library stands apart"),
            ("keymapmanager/yaml/x.cpp", "keymapmanager/keymap_reader.h", False, "upwards"),
            ("keymapmanager/fields/x.cpp", "keymapmanager/item_types.h", True, "the face is declared below"),
            ("host/window/x.cpp", "keymapmanager/key_names.h", True, "a public header of the keymap library"),
            ("host/window/x.cpp", "keymapmanager/yaml/yaml_node.h", False, "an inner header of the keymap library"),
            ("host/main.cpp", "core/clock.h", False, "a host is a user like any other"),
            ("host/x.cpp", "guest/uinput_guest.h", True, "a program may hold a guest"),
            ("guest/x.cpp", "keymap/scan_codes.h", False, "the guest knows nothing of the library"),
            ("guest/line/x.cpp", "host/guest/guest_line.h", False, "nor of the program"),
            ("guest/line/x.cpp", "guest/device/y.h", False, "upwards"),
            ("record/x.cpp", "guest/line/guest_line.h", False, "nor does the library know the guest"),
            ("host/session/x.cpp", "host/window/view/y.h", False, "a host without a window shares the session"),
            ("host/window/view/x.cpp", "host/session/y.h", True, "downwards"),
            ("core/x.cpp", "qt/6/qt/y.h", True, "what the Qts do otherwise is everyone's"),
            ("include/taviinputmanager/x.h", "qt/6/qt/y.h", False, "it is not installed"),
            ("qt/6/qt/x.h", "core/y.h", False, "it stands on Qt alone"),
        ]
        for source, target, expected, why in rows:
            self.assertEqual(may_include(source, target), expected, f"{source} -> {target}: {why}")

    def test_bare_names(self):
        for name in ("string", "unistd.h", "linux/input-event-codes.h", "sys/socket.h"):
            self.assertTrue(is_bare(name), name)
        for name in ("QString", "QtGlobal", "qglobal.h", "libevdev/libevdev.h", "SDL.h", "yaml-cpp/yaml.h"):
            self.assertFalse(is_bare(name), name)

    def test_circles(self):
        self.assertEqual(circles({"a": ["b"], "b": ["c"], "c": ["a"]}), [["a", "b", "c", "a"]])
        self.assertEqual(circles({"a": ["b", "c"], "b": ["c"]}), [])


if __name__ == "__main__":
    unittest.main()
