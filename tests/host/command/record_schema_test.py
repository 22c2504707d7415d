#!/usr/bin/env python3
"""The schema accepts record files of the library, and rejects other files.

usage: record_schema_test.py TAVI SOURCE_DIR

Needs python3-jsonschema; without it the test is skipped.
"""
import copy
import json
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SKIPPED = 77
try:
    import jsonschema
except ImportError as error:
    print("skipped:", error)
    sys.exit(SKIPPED)

TAVI, SOURCE = sys.argv[1], Path(sys.argv[2])
EXAMPLES = SOURCE / "examples" / "records"
SCHEMA = json.loads((SOURCE / "docs" / "record.schema.json").read_text(encoding="utf-8"))
REFERENCE = (SOURCE / "docs" / "record-format.md").read_text(encoding="utf-8")

# Input of every kind that a record can hold.
EVERYTHING = """
joymap pass.yaml
down Space; wait 40; up Space; wait 10
down A; wait 40; up A
touch begin 1:100,200 2:300,400; wait 16; touch update 1:110,200 2:310,400; wait 16; touch end
wheel +120 640,360
move 200,300
type ab
joy down A; wait 20; joy up A
joy axis 0 0.5,-1
reset
"""
PASSING_KEYMAP = """
format: 1
settings:
  keyboard_transparent: true
  wheel_transparent: true
  joystick_transparent: true
  mouse_mode: Mouse_AllButton_Transparent
"""


def errors(record):
    return [error.message for error in jsonschema.Draft7Validator(SCHEMA).iter_errors(record)]


def run(*arguments, cwd, stdin=None):
    command = [TAVI, *map(str, arguments)]
    return subprocess.run(command, cwd=cwd, input=stdin, check=True, capture_output=True, text=True)


class RecordSchema(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def load(self, name):
        return json.loads((self.folder / name).read_text(encoding="utf-8"))

    def test_the_schema_is_one(self):
        jsonschema.Draft7Validator.check_schema(SCHEMA)

    def test_examples(self):
        examples = sorted(EXAMPLES.glob("*.json"))
        self.assertGreaterEqual(len(examples), 3)
        for example in examples:
            with self.subTest(example.name):
                self.assertEqual(errors(json.loads(example.read_text(encoding="utf-8"))), [])

    def test_records_of_the_reference(self):
        records = [json.loads(block) for block in re.findall(r"^```json\n(\{\n.*?)^```$", REFERENCE, re.M | re.S)]
        self.assertEqual(len(records), 2)
        for record in records:
            self.assertEqual(errors(record), [])

    def test_what_the_library_writes(self):
        (self.folder / "pass.yaml").write_text(PASSING_KEYMAP, encoding="utf-8")
        types = set()
        for keymap in ("pass.yaml", SOURCE / "examples/keymaps/basics.yaml"):
            run("simulate", "--record", "all.json", keymap, "-", cwd=self.folder, stdin=EVERYTHING)
            record = self.load("all.json")
            self.assertEqual(errors(record), [])
            types |= {action["type"] for action in record["actions"]}
        self.assertEqual({"vcontrol", "touch", "keyboard", "mouse", "joystick", "input_method"}, types)
        run("record", "merge", "-o", "one.json", "all.json", "--times", 3, "--speed", 0.5, cwd=self.folder)
        run("record", "merge", "-o", "two.json", "one.json", "--gap", 100, "all.json", cwd=self.folder)
        for name in ("one.json", "two.json"):
            self.assertEqual(errors(self.load(name)), [])

    def test_examples_are_made_by_the_program(self):
        """Except the time at which records were merged."""
        for script in sorted(EXAMPLES.glob("*.txt")):
            keymap = EXAMPLES / script.read_text(encoding="utf-8").splitlines()[0].split(": ")[1]
            run("simulate", "--record", script.stem + ".json", keymap, script, cwd=self.folder)
        readme = (EXAMPLES / "README.md").read_text(encoding="utf-8")
        for command in re.findall(r"^tavi (record merge .*)$", readme, re.M):
            run(*command.split(), cwd=self.folder)
        for example in EXAMPLES.glob("*.json"):
            with self.subTest(example.name):
                expected, made = json.loads(example.read_text(encoding="utf-8")), self.load(example.name)
                if "merged_actions" in made:
                    made["info"]["create_time"] = expected["info"]["create_time"]
                self.assertEqual(made, expected)

    def test_refuses_what_is_no_record(self):
        good = json.loads((EXAMPLES / "taps.json").read_text(encoding="utf-8"))
        tap = next(action for action in good["actions"] if action["data"].startswith("press_rel"))
        self.assertEqual(errors({"info": good["info"], "actions": [tap]}), [])

        def with_action(**changes):
            return {"info": good["info"], "actions": [{**tap, **changes}]}

        broken = {
            "no header": {"actions": []},
            "an empty header": {"info": {}, "actions": []},
            "no list": {"info": good["info"]},
            "no part": {"info": good["info"], "merged_actions": []},
            "a part without list": {"info": good["info"], "merged_actions": [{"control": {}}]},
            "a time with a fraction": with_action(timing=16.5),
            "a time in quotes": with_action(timing="16"),
            "another type": with_action(type="swipe"),
            "another touch": with_action(data="tap"),
            "a point with a blank": with_action(data="press_rel:(0.5, 0.5)"),
            "a finger that is no number": with_action(extra1=""),
            "a key of two codes": with_action(type="keyboard", data="keyboard_press:1:2"),
            "times with a fraction": {**copy.deepcopy(good), "control": {"repeat_times": 2.5}},
        }
        for name, record in broken.items():
            with self.subTest(name):
                self.assertNotEqual(errors(record), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
