#!/usr/bin/env python3
"""The commands in the documents print the output that the documents show.

    document_commands_test.py SOURCE_DIR TAVI

A block of kind "console" has commands after "$ ", as typed in the folder of the tree, and below each its complete output. A
line "..." matches any lines; a command continues on the next line after "|" or a backslash. Commands run in a folder that
has a copy of the examples, so they may write files. "tavi guest-uinput" is skipped if it was not built.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT, TAVI = [Path(argument).resolve() for argument in sys.argv[1:3]]
del sys.argv[1:3]
BLOCK = re.compile(r"^```console\n(.*?)^```$", re.MULTILINE | re.DOTALL)
COMMAND = re.compile(r"^\$ ((?:.*[|\\]\n)*.*)\n((?:(?!\$ ).*\n)*)", re.MULTILINE)


def pattern_of(expected):
    return "".join(r"(?:.*\n)*" if line == "...\n" else re.escape(line) for line in expected.splitlines(keepends=True))


class DocumentCommands(unittest.TestCase):
    maxDiff = None
    has_guest = subprocess.run([TAVI, "guest-uinput", "--dry-run"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL, check=False).returncode == 0

    def run_all(self, document):
        environment = {**os.environ, "PATH": f"{TAVI.parent}:{os.environ['PATH']}", "QT_QPA_PLATFORM": "offscreen"}
        count = 0
        with tempfile.TemporaryDirectory() as folder:
            shutil.copytree(ROOT / "examples", Path(folder) / "examples")
            for block in BLOCK.findall(document.read_text(encoding="utf-8")):
                for command, expected in COMMAND.findall(block):
                    if "guest-uinput" in command and not self.has_guest:
                        continue
                    count += 1
                    result = subprocess.run(["bash", "-c", command], cwd=folder, env=environment, text=True,
                                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
                    with self.subTest(document=document.name, command=command):
                        if not re.fullmatch(pattern_of(expected), result.stdout):
                            self.assertEqual(result.stdout, expected)
        return count

    def test_print_what_the_documents_say(self):
        documents = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]
        self.assertGreater(sum(self.run_all(document) for document in documents), 5)


if __name__ == "__main__":
    unittest.main()
