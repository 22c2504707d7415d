#!/usr/bin/env python3
"""The documents speak of what is there.

    documents_test.py SOURCE_DIR
"""
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()
DOCUMENTS = [ROOT / "README.md"] + sorted((ROOT / "docs").glob("*.md"))
LINK = re.compile(r"\]\(([^)\s#]+)(?:#[^)]*)?\)")
SOURCE_NAME = re.compile(r"`((?:[a-z_]+/)*[a-z_]+\.(?:h|cpp))`")


class Documents(unittest.TestCase):
    maxDiff = None

    def test_links_lead_somewhere(self):
        dead = [f"{document.name}: {target}" for document in DOCUMENTS
                for target in LINK.findall(document.read_text(encoding="utf-8"))
                if "://" not in target and not (document.parent / target).exists()]
        self.assertEqual(dead, [])

    def test_files_that_are_named_exist(self):
        rooms = [path for path in ROOT.iterdir() if path.is_dir() and not path.name.startswith((".", "build"))]
        known = {str(path.relative_to(ROOT)) for room in rooms for path in room.rglob("*.*")}
        text = (ROOT / "docs" / "architecture.md").read_text(encoding="utf-8")
        self.assertEqual([name for name in SOURCE_NAME.findall(text) if name not in known], [])

    def test_the_host_in_the_readme_is_the_example(self):
        example = (ROOT / "examples" / "host" / "main.cpp").read_text(encoding="utf-8")
        self.assertIn(f"```cpp\n{example}```", (ROOT / "README.md").read_text(encoding="utf-8"))


if __name__ == "__main__":
    unittest.main()
