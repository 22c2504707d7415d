#!/usr/bin/env python3
"""Documents, headers and help pages do not use the phrases that were taken out of them.

    prose_test.py SOURCE_DIR

Each phrase has a plain form, which the failure names. There is no way to exempt a line: say it in other words.
"""
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tools"))
from prose_text import passages

CHECKED = [
    "CHANGELOG.md",
    "README.md",
    "docs/README.md",
    "docs/architecture.md",
    "docs/development.md",
    "docs/editor.md",
    "docs/embedding.md",
    "docs/glossary.md",
    "docs/guest-protocol.md",
    "docs/keymap.md",
    "docs/macros.md",
    "docs/performance.md",
    "docs/play.md",
    "docs/record-format.md",
    "docs/scripts.md",
    "docs/tutorial.md",
    "examples/*/README.md",
    "fuzz/README.md",
    "host/command/[!p]*.cpp",
    "host/command/play_missing.cpp",
    "include/taviinputmanager/*.h",
    "keymap/*.h",
    "keymapmanager/*.h",
    "keymapmanager/fields/*_tables.cpp",
]
NOT_YET = [
    "docs/window.md",
    "host/command/play_command.cpp",
]
SCOPE = ["*.md", "docs/*.md", "examples/**/*.md", "fuzz/*.md", "include/**/*.h", "keymap/*.h", "keymapmanager/*.h",
         "host/command/*.cpp"]

# What is not written, and what is written instead.
PHRASES = [
    (r"stands? (here|there|below|above|beside|behind|for|in front|in the|at the)", "is"),
    (r"here stands?|what stands|there stands?", "is"),
    (r"tells(?! (you|them|a host|the host)\b)", "prints, documents, reports"),
    (r"(is|are) told (by|in|all|below|above|to)", "is described, is reported"),
    (r"told (of|on)", "is reported"),
    (r"let(s|ting)? (it |them |this |that )?go( of)?", "release"),
    (r"held to", "checked against"),
    (r"mended|mends", "fixed"),
    (r"goes through(?! the keymap)", "passes through, is sent through"),
    (r"(is|are) worth (no|it|nothing)", "is not"),
    (r"pass(es|ed)? (\w+ ){0,2}over", "ignore, skip"),
    (r"called without a test", "not checked for null"),
    (r"leaves? (by|through)", "is sent through"),
    (r"but (where|for)", "unless, except"),
    (r"takes? (them|it|you|him) (seconds|minutes|hours)", "needs"),
    (r"has its time", "name the time"),
    (r"for an end", "at the end"),
    (r"hand(s|ed|ing)? over", "pass, feed"),
    (r"reckon(s|ed|ing)?", "compute"),
    (r"speaks? of", "describe"),
    (r"findings?", "diagnostic"),
    (r"(may|can) be asked", "may be called"),
    (r"behind (it|them|the (colon|word|call|last|press|blank))", "after"),
    (r"by a way of|the ways of", "by, the paths of"),
    (r"of (one's|the window's|the host's|a source's) own", "your own, its own"),
    (r"whoever|whomever", "anyone who, name the reader"),
    (r"all that there is", "everything"),
    (r"(again and again|as a rule|as ever|anew|therein|thereof|herein)", "repeatedly, usually, as before, again"),
    (r"each \d+ ms", "every N ms"),
    (r"(taps|presses|steps|moves|counts?) a (second|count|notch|step)", "per second"),
    (r"least (time|distance)|shortest distance", "minimum"),
    (r"not written:", "if absent"),
    (r"what is left over", "name it"),
    (r"(keys?|buttons?) (that )?comes? up", "is released"),
    (r"fingers? (that )?(goes|go|went) (up|down)", "is lifted, is put down"),
    (r"(no|not a) word about", "no code for"),
    (r"be it|be they", "whether"),
    (r"(is|are) not to be", "must not be"),
    (r"with no(thing)? to say", "name it"),
    (r"know(n|s)? (them|it|keys) by", "identify by"),
    (r"answers? to (no|a|the) key", "matches, responds to"),
    (r"made of its", "generated from its"),
    (r"sees? to it", "make sure"),
    (r"the ways? (that|of|to)", "the path of, how"),
    (r"gives? back", "return, release"),
    (r"for ever", "forever, endless"),
    (r"if wanted", "optionally"),
    (r"need(s)? so long", "needs that long"),
]


def files(patterns):
    return {path for pattern in patterns for path in ROOT.glob(pattern)}


def matcher(phrase):
    return re.compile(r"(?<![\w`-])(?:" + phrase + r")(?!\w)", re.IGNORECASE)


class Prose(unittest.TestCase):
    maxDiff = None

    def test_phrases_do_not_come_back(self):
        phrases = [(matcher(phrase), plain) for phrase, plain in PHRASES]
        found = [f"{path.relative_to(ROOT)}:{passage.line}: '{match[0]}': {plain}"
                 for path in sorted(files(CHECKED)) for passage in passages(path)
                 for phrase, plain in phrases for match in phrase.finditer(passage.text)]
        self.assertEqual(found, [])

    def test_each_checked_file_is_there(self):
        self.assertEqual([pattern for pattern in CHECKED if not files([pattern])], [])

    def test_each_page_header_and_help_page_is_listed_once(self):
        listed = {name: files(patterns) for name, patterns in [("checked", CHECKED), ("not yet", NOT_YET)]}
        self.assertEqual(sorted(files(SCOPE) - listed["checked"] - listed["not yet"]), [], "in neither list")
        self.assertEqual(sorted(listed["checked"] & listed["not yet"]), [], "in both lists")

    def test_the_reader_sees_prose_and_no_code(self):
        markdown = ("# A house\n\nOne `let go`\ntwo.\n\n```\nheld to\n```\n"
                    "- three\n\n  ```\n  held to\n  ```\n\n| four | five |\n|---|---|\n")
        header = "// One\n// two.\nint x;  // three\nauto y = \"// held to\";\n"
        source = "#include \"held to\"\nF(\"one \"\n  \"two\", \"word\");  // held to\n"
        path = Path(self.id())
        for suffix, text, expected in [
                (".md", markdown, [(1, "A house"), (3, "One `let go` two."), (9, "three"), (15, "four"), (15, "five")]),
                (".h", header, [(1, "One two."), (3, "three")]),
                (".cpp", source, [(2, "one two")])]:
            with self.subTest(suffix):
                self.assertEqual([(passage.line, passage.text) for passage in passages(Text(path, suffix, text))],
                                 expected)


class Text:
    """A file that is only its text."""

    def __init__(self, path, suffix, text):
        self.path, self.suffix, self.text = path, suffix, text

    def read_text(self, encoding):
        return self.text


if __name__ == "__main__":
    print("not yet:", *NOT_YET)
    unittest.main()
