#!/usr/bin/env python3
"""Installed documents link only to installed files.

    installed_documents_test.py BUILD_DIR WORK_DIR CMAKE
"""
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

BUILD, WORK, CMAKE = sys.argv[1:4]
del sys.argv[1:4]
LINKS = Path(__file__).with_name("documents_test.py")


class InstalledDocuments(unittest.TestCase):
    def expect_links_hold(self, name, *options):
        place = Path(WORK) / name
        shutil.rmtree(place, ignore_errors=True)
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", place, *options], check=True, stdout=subprocess.DEVNULL)
        documents = place / "share" / "doc" / "taviinputmanager"
        self.assertGreater(len(list(documents.glob("docs/*.md"))), 0)
        result = subprocess.run([sys.executable, LINKS, documents, "-k", "links"], text=True, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT)
        self.assertEqual(result.returncode, 0, result.stdout)

    def test_of_everything(self):
        self.expect_links_hold("everything")

    def test_of_the_program_alone(self):
        self.expect_links_hold("tools", "--component", "tools")


if __name__ == "__main__":
    unittest.main()
