"""Reader, schema, reference and examples agree.

usage: keymap_schema_test.py KEYMAP_CHECK SOURCE_DIR

Needs python3-jsonschema and python3-yaml; without them the test is skipped.
"""
import glob
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

SKIPPED = 77
try:
    import jsonschema
    import yaml
except ImportError as error:
    print("skipped:", error)
    sys.exit(SKIPPED)

sys.dont_write_bytecode = True
import keymap_reference
import keymap_yaml

CHECK, SOURCE = sys.argv[1:3]
SCHEMA_FILE = os.path.join(SOURCE, "docs/keymap.schema.json")
REFERENCE_FILE = os.path.join(SOURCE, "docs/keymap.md")


def files(*folder):
    return sorted(
        path
        for pattern in ("*.yaml", "*.json")
        for path in glob.glob(os.path.join(SOURCE, *folder, pattern))
    )


def reader_accepts(paths):
    """Whether the library accepts each file, as file to bool."""
    output = subprocess.run([CHECK] + paths, check=True, capture_output=True, text=True).stdout
    verdicts = dict(reversed(line.split(" ", 1)) for line in output.splitlines() if not line.startswith(" "))
    return {path: verdicts[path] != "error" for path in paths}


def snippets(text):
    """The YAML blocks of a document, each completed to a whole file."""
    for block in re.findall(r"^```yaml\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        if re.search(r"^format:", block, re.MULTILINE):
            yield block
        elif block.startswith("- "):
            yield "format: 1\nitems:\n" + block
        else:
            yield "format: 1\n" + block


def sections(text):
    """Heading to text, for the headings of the second and third level."""
    parts = re.split(r"^##+ (.*)$", text, flags=re.MULTILINE)
    return dict(zip(parts[1::2], parts[2::2]))


class KeymapSchema(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with open(SCHEMA_FILE, encoding="utf-8") as file:
            cls.text = file.read()
        cls.schema = json.loads(cls.text)
        cls.validator = jsonschema.Draft7Validator(cls.schema)
        with open(REFERENCE_FILE, encoding="utf-8") as file:
            cls.reference = file.read()

    def accepts(self, path):
        try:
            return self.validator.is_valid(keymap_yaml.load(path))
        except yaml.YAMLError:
            return False

    def check_all(self, paths, expected):
        self.assertTrue(paths)
        verdicts = reader_accepts(paths)
        for path in paths:
            with self.subTest(path):
                self.assertEqual(expected, verdicts[path], "the reader")
                self.assertEqual(expected, self.accepts(path), "the schema")

    def test_the_schema_is_that_of_the_library(self):
        made = subprocess.run([CHECK, "--schema"], check=True, capture_output=True, text=True).stdout
        self.assertEqual(made, self.text, "make it again: keymap_check --schema > docs/keymap.schema.json")
        jsonschema.Draft7Validator.check_schema(self.schema)

    def test_good_files_pass_both(self):
        self.check_all(files("tests/data/keymaps/good"), True)

    def test_bad_files_pass_neither(self):
        self.check_all(files("tests/data/keymaps/bad"), False)

    def test_broken_files_do_not_pass_the_reader(self):
        paths = files("tests/data/keymaps/broken")
        self.assertTrue(paths)
        self.assertEqual({path: False for path in paths}, reader_accepts(paths))

    def test_examples_pass_both(self):
        self.assertGreaterEqual(len(files("examples/keymaps")), 3)
        self.check_all(files("examples/keymaps"), True)
        steps = [path for path in files("examples/tutorial") if "/step_" in path]
        self.assertGreaterEqual(len(steps), 7)
        self.check_all(steps, True)

    def test_snippets_of_the_reference_pass_both(self):
        with tempfile.TemporaryDirectory() as folder:
            paths = []
            for number, snippet in enumerate(snippets(self.reference)):
                paths.append(os.path.join(folder, "%02d.yaml" % number))
                with open(paths[-1], "w", encoding="utf-8") as file:
                    file.write(snippet)
            self.check_all(paths, True)

    def test_the_reference_has_every_field(self):
        parts = sections(self.reference)
        records = {name: record for name, record in self.schema["definitions"].items() if "properties" in record}
        names = {"settings": "Settings", "wheel": "Wheel settings"}
        for name, record in records.items():
            if name in ("item", "inner_swipehold"):
                continue
            with self.subTest(name):
                section = parts[names.get(name, name)]
                written = [line for line in section.splitlines() if line.startswith("| `")]
                self.assertEqual(sorted(keymap_reference.rows(record).values()), sorted(written))

    def test_the_reference_has_a_snippet_for_every_type(self):
        parts = sections(self.reference)
        for item_type in self.schema["definitions"]["item"]["properties"]["type"]["enum"]:
            with self.subTest(item_type):
                self.assertIn("- type: %s\n" % item_type, parts[item_type])


class CoreSchema(unittest.TestCase):
    """The second reader reads scalars as YAML 1.2 does, or it would prove nothing."""

    def test_scalars(self):
        text = "[1e-3, 010, 1:30, On, yes, 0x1F, 0o17, .5, ~, '1', true, +.inf]"
        values = yaml.load(text, Loader=keymap_yaml.KeymapLoader)
        self.assertEqual([0.001, 10, "1:30", "On", "yes", 31, 15, 0.5, None, "1", True, float("inf")], values)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
