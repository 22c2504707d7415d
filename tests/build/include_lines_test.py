#!/usr/bin/env python3
"""Include lines point only from higher layers of folders to lower ones.

    include_lines_test.py SOURCE_DIR
"""
import collections
import os
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()

# The library's layers from the bottom up. A folder may include itself and every layer below, but no other folder of its
# layer. A subfolder counts by itself: "simulators" is the common part of its families.
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
# Calls between gestures: the headers of other families that a family may include.
ASKS = {
    "simulators/cast": [
        "simulators/view/staring_wm_relative_input_worker.h",  # an aim takes the counts from view control
        "simulators/walk/left_stick_walk_sync_worker.h",       # an aim ends a walk with the stick
        "simulators/walk/right_walk_sync_worker.h",            # ... or with the mouse
        "simulators/walk/swipehold_async_worker.h",            # a spell with a walk of its own borrows the walk's keys
        "simulators/walk/swipehold_event_simulator.h",
    ],
    "simulators/gamepad": [
        "simulators/walk/swipehold_async_worker.h",  # a virtual stick is a walk without a contact
        "simulators/walk/swipehold_event_simulator.h",
    ],
    "simulators/view": [
        "simulators/cast/spell_event_simulator.h",  # view control waits for a cast to end
    ],
}
# The parts of records, which the lower folder for their text needs.
FACE_OF_RECORDS = ["record/record_action.h", "record/record_format.h"]
# The program's layers. It is a host like any other, and may include only SEEN_BY_HOST from the rest of the tree.
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
SEEN_BY_HOST = ["include", "keymap"]  # and the guest and the interface of the keymap library
# The guest's layers. It depends on nothing else in the tree, only on the standard library, the C library and the
# kernel's headers.
GUEST = [
    ["guest/line"],
    ["guest/translation"],
    ["guest/device"],
    ["guest"],
    ["guest/program"],
]
# The keymap library's layers. It depends on nothing but the contract.
KEYMAPS = [
    ["keymap"],
    ["keymapmanager/keys", "keymapmanager/yaml"],
    ["keymapmanager/fields"],
    ["keymapmanager/checks"],
    ["keymapmanager"],
]
# Its interface, whose types all of its folders use: declared here and defined in its top layer.
FACE_OF_KEYMAPS = ["keymapmanager/item_types.h", "keymapmanager/key_names.h", "keymapmanager/keymap_file.h",
                   "keymapmanager/keymap_outline.h", "keymapmanager/nearest_word.h"]
# Folders whose headers are installed depend only on Qt, the standard library and themselves.
GROUND = ["include", "keymap"]
# Other libraries, by the start of their headers' names, and the folders that may use them. Tests may use all.
LIBRARIES = {
    "Poco/": ["core", "record/json"],
    "yaml.h": ["keymapmanager/yaml"],
    "SDL.h": ["host/gamepad"],
    "libevdev/": ["host/play"],
}
# Folders without widgets, so that a host without a window can use them; and Qt's headers that they must not include.
WITHOUT_WIDGETS = ["host/gamepad", "host/guest", "host/mirror", "host/record", "host/session", "host/simulation",
                   "host/target"]
WIDGETS = re.compile(r"Q(Application|Widget|MainWindow|Dialog|Label|Menu|Action|\w*Button|\w*View|\w*Layout)$")
WORKER = re.compile(r"_worker(_\w+)?\.(h|cpp)$")
# Differences between the Qts: "qt/x.h" is in two folders, one of which a build includes. They depend only on Qt. All
# folders except the installed headers may use them.
QTS = ["qt/5", "qt/6"]
# Helpers for the calls of one system. Only its own files, *_windows.cpp, use them.
SYSTEMS = ["windows"]
FREE = ["tests", "benchmarks", "fuzz", "examples", "cmake"]
# The maximum number of files in a folder; split larger ones.
MOST_FILES = 45

def folders_of(layers):
    return [folder for layer in layers for folder in layer]


ALL_FOLDERS = QTS + SYSTEMS + folders_of(LIBRARY) + folders_of(KEYMAPS[1:]) + folders_of(GUEST) + folders_of(HOST) + FREE
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def folder_of(path):
    """The innermost folder that contains `path`, which is relative to the root."""
    folders = [folder for folder in ALL_FOLDERS if path.startswith(folder + "/")]
    return max(folders, key=len, default=None)


MADE = "test_folders.h"  # by CMake, in the build folder


def sources():
    for top in sorted({folder.split("/")[0] for folder in ALL_FOLDERS}):
        for suffix in ("*.h", "*.cpp"):
            yield from (str(path.relative_to(ROOT)) for path in sorted((ROOT / top).rglob(suffix)))


def resolve(includer, name):
    """The file of the tree that an include line refers to, or None."""
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


def below(folder, layers):
    """The folders of all layers below that of `folder`; for the lowest layer there are none."""
    layer = next(number for number, folders in enumerate(layers) if folder in folders)
    return folders_of(layers[:layer])


def allowed(folder):
    """Folders and single files that `folder` may include, apart from itself."""
    if folder in folders_of(GUEST):
        return below(folder, GUEST)
    if folder in QTS + SYSTEMS:
        return []
    if folder in folders_of(KEYMAPS[1:]):
        return below(folder, KEYMAPS) + FACE_OF_KEYMAPS
    if folder in folders_of(HOST):
        return below(folder, HOST) + SEEN_BY_HOST + folders_of(GUEST) + FACE_OF_KEYMAPS
    return below(folder, LIBRARY) + ASKS.get(folder, []) + (FACE_OF_RECORDS if folder == "record/json" else [])


def may_include(source, target):
    folder = folder_of(source)
    if folder in FREE or (folder_of(target) in QTS and folder not in GROUND):
        return True
    if folder_of(target) in SYSTEMS:
        return source.endswith(f"_{folder_of(target)}.cpp")
    return folder_of(target) == folder or any(target == entry or folder_of(target) == entry for entry in allowed(folder))


def is_bare(name):
    """A header of the standard library, the C library or the kernel."""
    return bool(re.fullmatch(r"[a-z_]+(\.h)?|(linux|sys|netinet|arpa)/[a-z-]+\.h", name)) and not name.startswith("q")


def circles(graph):
    """Each cycle of include lines, once, as a list of files."""
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
        names = [sorted(path.name for path in (ROOT / folder).rglob("*.h")) for folder in QTS]
        self.assertEqual(*names)
        self.assertTrue(names[0])

    def test_every_room_has_files(self):
        files = collections.Counter(os.path.dirname(source) for source in sources())
        for folder in set(folders_of(LIBRARY) + folders_of(KEYMAPS) + folders_of(GUEST) + folders_of(HOST)) - {"include", "host"}:
            self.assertGreater(files[folder], 1, f"{folder} is empty, or too small for a folder")

    def test_no_folder_is_crowded(self):
        files = collections.Counter(os.path.dirname(source) for source in sources())
        self.assertEqual([f"{folder}: {count}" for folder, count in files.items() if count > MOST_FILES], [])

    def test_families_ask_for_what_they_may(self):
        asked = {(folder_of(source), target) for source, _, _, target in LINES if target}
        unused = [f"{folder}: {target}" for folder, targets in ASKS.items() for target in targets
                  if (folder, target) not in asked]
        self.assertEqual(unused, [], "the table allows includes that do not exist")

    def test_rooms_without_widgets_have_none(self):
        wrong = [f"{source} includes <{name}>" for source, _, name, _ in LINES
                 if folder_of(source) in WITHOUT_WIDGETS and WIDGETS.match(name)]
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
        # An example shows the code of a user of the installed tree.
        wrong = [f"{source} includes <{name}>" for source, delimiter, name, target in LINES
                 if delimiter == "<" and target and folder_of(source) != "examples"]
        self.assertEqual(wrong, [])

    def test_no_two_files_include_each_other_in_a_circle(self):
        graph = {}
        for source, _, _, target in LINES:
            if target:
                graph.setdefault(source, []).append(target)
        self.assertEqual([" -> ".join(circle) for circle in circles(graph)], [])

    def test_public_headers_stand_on_qt_alone(self):
        wrong = [f"{source} includes <{name}>" for source, delimiter, name, target in LINES
                 if folder_of(source) in GROUND and delimiter == "<" and not target
                 and not re.fullmatch(r"Q\w+|q\w+\.h|[a-z_]+", name)]
        self.assertEqual(wrong, [])

    def test_bare_rooms_know_no_qt(self):
        wrong = [f"{source} includes <{name}>" for source, delimiter, name, target in LINES
                 if folder_of(source) in folders_of(GUEST) and not target and not is_bare(name)]
        self.assertEqual(wrong, [])

    def test_other_libraries_stay_in_their_rooms(self):
        wrong = [f"{source} includes <{name}>" for source, _, name, _ in LINES
                 for word, folders in LIBRARIES.items()
                 if name.startswith(word) and folder_of(source) not in folders + FREE]
        self.assertEqual(wrong, [])


class TheTestItself(unittest.TestCase):
    """The rules detect obvious violations."""

    def test_breaches(self):
        rows = [
            ("core/clock.cpp", "slots/slot_manager.h", False, "upwards"),
            ("core/clock.cpp", "entry/x.h", False, "upwards"),
            ("entry/exports.cpp", "record/record_manager.h", True, "the entry may include every folder"),
            ("handlers/x.cpp", "simulators/wheel/y.h", True, "downwards"),
            ("handlers/x.cpp", "record/y.h", False, "folders of one layer"),
            ("simulators/x.cpp", "handlers/y.h", False, "upwards"),
            ("simulators/once.h", "simulators/tap/y.h", False, "the common part of the families depends on none of them"),
            ("simulators/tap/x.cpp", "simulators/once.h", True, "downwards"),
            ("simulators/tap/x.cpp", "simulators/macro/y.h", False, "a tap calls no macro"),
            ("simulators/view/x.cpp", "simulators/cast/spell_event_simulator.h", True, "one gesture calls another"),
            ("simulators/view/x.cpp", "simulators/cast/spell_aim.h", False, "an inner header of another family"),
            ("keymap/x.h", "include/taviinputmanager/types.h", False, "the lowest folders do not depend on each other"),
            ("keymapmanager/x.cpp", "core/clock.h", False, "the keymap library is independent"),
            ("keymapmanager/yaml/x.cpp", "keymapmanager/keymap_reader.h", False, "upwards"),
            ("keymapmanager/fields/x.cpp", "keymapmanager/item_types.h", True, "the interface is declared below"),
            ("host/window/x.cpp", "keymapmanager/key_names.h", True, "a public header of the keymap library"),
            ("host/window/x.cpp", "keymapmanager/yaml/yaml_node.h", False, "an inner header of the keymap library"),
            ("host/main.cpp", "core/clock.h", False, "a host is a user like any other"),
            ("host/x.cpp", "guest/uinput_guest.h", True, "a program may contain a guest"),
            ("guest/x.cpp", "keymap/scan_codes.h", False, "the guest does not depend on the library"),
            ("guest/line/x.cpp", "host/guest/guest_line.h", False, "nor on the program"),
            ("guest/line/x.cpp", "guest/device/y.h", False, "upwards"),
            ("record/x.cpp", "guest/line/guest_line.h", False, "nor does the library depend on the guest"),
            ("host/session/x.cpp", "host/window/view/y.h", False, "a host without a window shares the session"),
            ("host/window/view/x.cpp", "host/session/y.h", True, "downwards"),
            ("core/x.cpp", "qt/6/qt/y.h", True, "what the Qts do otherwise is everyone's"),
            ("include/taviinputmanager/x.h", "qt/6/qt/y.h", False, "it is not installed"),
            ("qt/6/qt/x.h", "core/y.h", False, "it depends on Qt alone"),
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
