#!/usr/bin/env python3
"""Documents, comments, help pages and messages do not use the phrases listed here.

    prose_test.py SOURCE_DIR

Each phrase has a plain form, which the failure names. There is no way to exempt a line: rephrase it.
"""
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(sys.argv.pop(1)).resolve()
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tools"))
from prose_text import KINDS, passages

# Folders and files whose text is generated or is data.
WITHOUT_PROSE = ["completions", "docs/man", "docs/pictures", "fuzz/corpus", "packaging", "tests/data",
                 "tests/build/prose_test.py"]
LINK_TARGET = re.compile(r"\]\([^)]*\)")

# Words to avoid, and their replacements.
PHRASES = [
    (r"stands? (here|there|below|above|beside|behind|for|in front|in the|at the)", "is"),
    (r"here stands?|what stands|there stands?", "is"),
    (r"tells(?! (you|them|a host|the host)\b)", "prints, documents, reports"),
    (r"(is|are) told (by|in|all|below|above)", "is described, is reported"),
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
    (r"findings|(a|the|no|each|every|one|first|last) finding", "diagnostic"),
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
    (r"what (is|went|goes) wrong, or nothing", "the error, or an empty string"),
    (r"in silence", "silently"),
    (r"at present|of late|for want of", "currently, recently, without"),
    (r"nobody's", "unmapped"),
    (r"for people", "for display"),
    (r"the mouse steers", "the mouse turns"),
    (r"is not heard", "is ignored"),
    (r"obey(s|ed)?", "execute"),
]


def is_in(path, places):
    name = path.relative_to(ROOT).as_posix()
    return any(name == place or name.startswith(place + "/") for place in places)


def files():
    tops = [path for path in sorted(ROOT.iterdir()) if not path.name.startswith((".", "build"))]
    return [path for top in tops for path in (sorted(top.rglob("*")) if top.is_dir() else [top])
            if path.suffix in KINDS and path.is_file() and not is_in(path, WITHOUT_PROSE)]


def matcher(phrase):
    return re.compile(r"(?<![\w`-])(?:" + phrase + r")(?!\w)", re.IGNORECASE)


class Prose(unittest.TestCase):
    maxDiff = None

    def test_phrases_do_not_come_back(self):
        plain = {f"p{i}": form for i, (_, form) in enumerate(PHRASES)}
        phrases = matcher("|".join(f"(?P<p{i}>{phrase})" for i, (phrase, _) in enumerate(PHRASES)))
        found = [f"{path.relative_to(ROOT)}:{passage.line}: '{match[0]}': {plain[match.lastgroup]}"
                 for path in files() for passage in passages(path)
                 for match in phrases.finditer(LINK_TARGET.sub("]", passage.text))]
        self.assertEqual(found, [])

    def test_each_place_exists(self):
        self.assertEqual([place for place in WITHOUT_PROSE if not (ROOT / place).exists()], [])

    def test_the_reader_sees_prose_and_no_code(self):
        markdown = ("# A house\n\nOne `let go`\ntwo.\n\n```\nheld to\n```\n"
                    "- three\n\n  ```\n  held to\n  ```\n\n| four | five |\n|---|---|\n")
        header = "// One\n// two.\nint x;  // three\nauto y = \"// held to\";\n"
        source = "#include \"held to\"\nF(\"one \"\n  \"two\", \"word\");  // three\n"
        script = "#!/bin/sh\n# One\n# two.\nheld=to  # held to\n\"\"\"Three\nfour.\"\"\"\n"
        path = Path(self.id())
        for suffix, text, expected in [
                (".md", markdown, [(1, "A house"), (3, "One `let go` two."), (9, "three"), (15, "four"), (15, "five")]),
                (".h", header, [(1, "One two."), (3, "three")]),
                (".cpp", source, [(2, "one two"), (3, "three")]), (".py", script, [(2, "One two."), (5, "Three four.")])]:
            with self.subTest(suffix):
                found = sorted(passages(Text(path, suffix, text)), key=lambda passage: passage.line)
                self.assertEqual([(passage.line, passage.text) for passage in found], expected)


class Text:
    """A file in memory."""

    def __init__(self, path, suffix, text):
        self.path, self.suffix, self.text = path, suffix, text

    def read_text(self, encoding):
        return self.text


if __name__ == "__main__":
    unittest.main()
