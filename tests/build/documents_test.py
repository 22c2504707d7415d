#!/usr/bin/env python3
"""The documents match the tree.

    documents_test.py SOURCE_DIR
    documents_test.py DIR -k links    checks only the links, of documents in another folder
"""
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()
DOCUMENTS = sorted(path for pattern in ["*.md", "docs/*.md", "examples/**/*.md", "fuzz/*.md"] for path in ROOT.glob(pattern))
LINK = re.compile(r"\]\(([^)\s#]*)(#[^)\s]*)?\)")
HEADING = re.compile(r"^#+ (.+)$", re.MULTILINE)
# "<!-- file: NAME -->" before a code block: the block is the file; "part:": consecutive lines of it.
FILE_BLOCK = re.compile(r"^<!-- (file|part): (\S+) -->\n```[a-z]*\n(.*?)^```$", re.MULTILINE | re.DOTALL)
SOURCE_NAME = re.compile(r"`((?:[a-z_]+/)*[a-z_]+\.(?:h|cpp))`")


def sections(document):
    """The anchors that Markdown viewers generate from the headings."""
    headings = HEADING.findall(document.read_text(encoding="utf-8"))
    return {"#" + re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


class Documents(unittest.TestCase):
    maxDiff = None

    def test_links_lead_somewhere(self):
        dead = [f"{document.name}: {target}" for document in DOCUMENTS
                for target, _ in LINK.findall(document.read_text(encoding="utf-8"))
                if "://" not in target and not (document.parent / target).exists()]
        self.assertEqual(dead, [])

    def test_links_to_sections_lead_to_one(self):
        dead = [f"{document.name}: {target}{section}" for document in DOCUMENTS
                for target, section in LINK.findall(document.read_text(encoding="utf-8"))
                if section and "://" not in target and
                section not in sections(document.parent / target if target else document)]
        self.assertEqual(dead, [])

    def test_files_that_are_named_exist(self):
        folders = [path for path in ROOT.iterdir() if path.is_dir() and not path.name.startswith((".", "build"))]
        known = {str(path.relative_to(ROOT)) for folder in folders for path in folder.rglob("*.*")}
        known |= {name.removeprefix("include/") for name in known}  # as they are included
        for document in DOCUMENTS:
            names = SOURCE_NAME.findall(document.read_text(encoding="utf-8"))
            self.assertEqual([name for name in names if "/" in name and name not in known], [], document.name)

    def test_blocks_that_name_a_file_are_that_file(self):
        shown = 0
        for document in DOCUMENTS:
            text = document.read_text(encoding="utf-8")
            blocks = FILE_BLOCK.findall(text)
            self.assertEqual(len(blocks), text.count("<!-- "), f"{document.name}: a comment without its block")
            for amount, name, block in blocks:
                shown += 1
                content = (ROOT / name).read_text(encoding="utf-8")
                if amount == "file":
                    self.assertEqual(block, content, f"{document.name} shows {name}")
                else:
                    self.assertIn("\n" + block, "\n" + content, f"{document.name} shows a part of {name}")
        self.assertGreater(shown, 0)


if __name__ == "__main__":
    unittest.main()
