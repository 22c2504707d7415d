#!/usr/bin/env python3
"""Every command has a help page, and the pages are accurate.

    help_test.py TAVI SOURCE_DIR
"""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TAVI, SOURCE = sys.argv[1], Path(sys.argv[2])
del sys.argv[1:]
sys.path.insert(0, str(SOURCE / "tools"))

from help_pages import Help  # noqa: E402

ENVIRONMENT = {**os.environ, "QT_QPA_PLATFORM": "offscreen",
               "PATH": str(Path(TAVI).parent) + os.pathsep + os.environ["PATH"]}
HELP = Help(TAVI, ENVIRONMENT)
COMMANDS = ["window", "play", "simulate", "check", "draw", "keys", "record info", "record play", "record merge", "record draw",
            "guest-uinput"]
LONGEST_LINE = 88


class HelpPages(unittest.TestCase):
    maxDiff = None

    def test_the_overview_lists_every_command(self):
        self.assertEqual(list(HELP.pages), COMMANDS)
        for page in HELP.pages.values():
            self.assertIn(page.summary, HELP.overview.text)

    def test_each_page_tells_purpose_use_exit_status_and_an_example(self):
        for name, page in HELP.pages.items():
            with self.subTest(name):
                self.assertTrue(page.text.startswith(f"tavi {name} - "))
                self.assertIn(f"\n\nUsage: tavi {name}", page.text)
                self.assertIn("\n\nExit status: 0 when ", page.text)
                self.assertIn("\n\nExample: ", page.text)
                too_long = [line for line in page.text.splitlines() if len(line) > LONGEST_LINE]
                self.assertEqual(too_long, [])

    def test_the_ways_to_a_page_lead_to_the_same(self):
        for name, page in HELP.pages.items():
            words = name.split()
            for way in (["help", *words], [*words, "-h"], [*words, "--unknown", "--help"]):
                with self.subTest(" ".join(way)):
                    outcome = HELP.run(*way)
                    self.assertEqual((outcome.returncode, outcome.stdout, outcome.stderr), (0, page.text, ""))
        for way in (["help"], ["-h"], ["help", "--help"]):
            self.assertEqual(HELP.run(*way).stdout, HELP.overview.text)

    def test_a_group_lists_its_commands(self):
        for way in (["record", "--help"], ["help", "record"]):
            outcome = HELP.run(*way)
            self.assertEqual(outcome.returncode, 0)
            for command in ("info", "play", "merge", "draw"):
                self.assertIn(f"\n  {command}  ", outcome.stdout)

    def test_options_that_are_told_of_are_taken(self):
        for name, page in HELP.pages.items():
            for option in page.options:
                with self.subTest(f"{name} {option.name}"):
                    # The first error is the unknown option after it.
                    given = [option.name, "1"] if option.value else [option.name]
                    if name == "record merge":
                        given = ["file.json", *given]
                    outcome = HELP.run(*name.split(), *given, "--no-such-option")
                    self.assertEqual(outcome.returncode, 2)
                    self.assertIn('unknown option "--no-such-option"', outcome.stderr)

    def test_examples_work(self):
        examples = {name: page.example for name, page in HELP.pages.items()}
        examples[""] = HELP.overview.example
        examples["record"] = HELP.run("record", "--help").stdout.split("\nExample: ")[1]
        # A window stays open until it is closed, unless it only saves a picture.
        examples["window"] = examples["window"].rstrip() + " --picture window.png --after 0"
        del examples["play"]  # would grab the keyboard of this computer; tested in a small machine
        for name, example in examples.items():
            with self.subTest(name), tempfile.TemporaryDirectory() as folder:
                shutil.copytree(SOURCE / "examples", Path(folder) / "examples")
                outcome = subprocess.run(["bash", "-c", "set -o pipefail; " + example], cwd=folder, env=ENVIRONMENT,
                                         capture_output=True, text=True, timeout=60)
                self.assertEqual(outcome.returncode, 0, f"{example}\n{outcome.stdout}\n{outcome.stderr}")
                written = [path for path in Path(folder).iterdir() if path.name != "examples"]
                self.assertTrue(outcome.stdout or written, f"{example} does nothing")


if __name__ == "__main__":
    unittest.main()
