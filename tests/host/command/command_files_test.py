#!/usr/bin/env python3
"""The manual page has the content of the help pages, and shells complete from them.

    command_files_test.py TAVI SOURCE_DIR

Tests that need groff, fish or zsh are skipped without them.
"""
import re
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
from make_command_files import MAKERS  # noqa: E402

HELP = Help(TAVI)
MAN_PAGE = SOURCE / "docs" / "man" / "tavi.1"
COMPLETIONS = SOURCE / "completions"
FIRST_WORDS = ["window", "play", "simulate", "check", "draw", "keys", "record", "guest-uinput", "help"]


def needs(program):
    return unittest.skipUnless(shutil.which(program), f"{program} is not installed")


def run(*command, **options):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, timeout=60, **options)


class CommandFiles(unittest.TestCase):
    def test_are_up_to_date(self):
        if "not in this build" in HELP.pages["guest-uinput"].summary:
            self.skipTest("they are made by a program with all of its commands")
        for name, make in MAKERS.items():
            with self.subTest(name):
                self.assertTrue((SOURCE / name).read_text(encoding="utf-8") == make(HELP),
                                f"{name} is older than the program's help: run tools/make_command_files.py TAVI")


class ManPage(unittest.TestCase):
    def section(self, command):
        text = MAN_PAGE.read_text(encoding="utf-8").replace("\\-", "-")
        return re.split(r"^\.S[SH] ", text.split(f"\n.SS tavi {command}\n")[1], flags=re.M)[0]

    def test_has_the_options_of_each_command_and_no_other(self):
        for name, page in HELP.pages.items():
            with self.subTest(name):
                self.assertEqual(re.findall(r"^\.TP\n\.BI? (-[a-z-]+)", self.section(name), re.M),
                                 [option.name for option in page.options])

    @needs("groff")
    def test_is_free_of_faults(self):
        self.assertEqual(run("groff", "-ww", "-man", "-z", MAN_PAGE).stderr, "")

    @needs("groff")
    def test_shows_every_example_as_the_help_does(self):
        shown = run("groff", "-man", "-Tascii", "-P-c", "-rLL=200n", MAN_PAGE).stdout
        shown = re.sub(r".\x08", "", shown)
        for page in HELP.pages.values():
            for line in page.example.splitlines():
                self.assertIn(line.strip(), shown)


class Completion(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        for name in ["game.yaml", "old.yml", "play.txt", "walk.json", "shot.png", "page.svg", "other.doc", "a b.yaml"]:
            (self.folder / name).touch()
        (self.folder / "maps").mkdir()

    def offered(self, *words):
        raise NotImplementedError

    def check_commands(self):
        self.assertEqual(sorted(set(self.offered("")) - {"--help", "--version"}), sorted(FIRST_WORDS))
        self.assertEqual(self.offered("si"), ["simulate"])
        self.assertEqual(sorted(set(self.offered("record", "")) - {"--help"}), ["draw", "info", "merge", "play"])
        self.assertEqual(sorted(self.offered("help", "")), sorted(FIRST_WORDS[:-1]))

    def check_options(self):
        for name, page in HELP.pages.items():
            with self.subTest(name):
                offered = [word for word in self.offered(*name.split(), "--") if word.startswith("--")]
                known = [option.name for option in page.options if option.name.startswith("--")]
                self.assertEqual(sorted(offered), sorted(known + ["--help"]))

    def check_files(self):
        rows = [
            (["check", ""], {"game.yaml", "old.yml", "a b.yaml"}),
            (["window", "--joystick", ""], {"game.yaml", "old.yml", "a b.yaml"}),
            (["window", "--replay", ""], {"walk.json"}),
            (["record", "play", ""], {"walk.json"}),
            (["record", "draw", "-o", ""], {"page.svg"}),
            (["draw", "-o", ""], {"page.svg", "shot.png"}),
            (["draw", "--background", ""], {"shot.png"}),
            (["simulate", ""], {"game.yaml", "old.yml", "a b.yaml", "play.txt"}),
        ]
        for words, files in rows:
            with self.subTest(" ".join(words)):
                offered = [word.rstrip("/") for word in self.offered(*words) if not word.startswith("-")]
                self.check_names(offered, files | {"maps"})

    def check_names(self, offered, files):
        self.assertEqual(set(offered), files)


@needs("bash")
class BashCompletion(Completion):
    SCRIPT = ('source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); COMPREPLY=(); _tavi; '
              'printf "%s\\n" "${COMPREPLY[@]}"')

    def offered(self, *words):
        outcome = run("bash", "-c", self.SCRIPT, "bash", COMPLETIONS / "tavi.bash", "tavi", *words, cwd=self.folder)
        self.assertEqual(outcome.stderr, "")
        return [line for line in outcome.stdout.split("\n") if line]

    def test_commands(self):
        self.check_commands()

    def test_options(self):
        self.check_options()

    def test_options_with_one_dash(self):
        self.assertIn("-o", self.offered("draw", "-"))

    def test_files(self):
        self.check_files()

    # Bash splits words at an equals sign.
    def test_values_behind_an_equals_sign(self):
        self.assertEqual(self.offered("window", "--replay", "="), ["maps", "walk.json"])
        self.assertEqual(self.offered("window", "--replay", "=", "w"), ["walk.json"])

    def test_sizes(self):
        self.assertIn("1920x1080", self.offered("window", "--size", ""))

    def test_nothing_for_a_number(self):
        self.assertEqual(self.offered("record", "merge", "walk.json", "--times", ""), [])

    def test_is_found_by_its_name(self):
        outcome = run("bash", "-c", 'source "$1"; complete -p tavi', "bash", COMPLETIONS / "tavi.bash")
        self.assertEqual(outcome.stdout.strip(), "complete -F _tavi tavi")


@needs("fish")
class FishCompletion(Completion):
    def offered(self, *words):
        line = " ".join(["tavi", *words[:-1], words[-1]])
        outcome = run("fish", "--no-config", "-c", 'source $argv[1]; complete -C $argv[2]', COMPLETIONS / "tavi.fish",
                      line, cwd=self.folder)
        self.assertEqual(outcome.stderr, "")
        # Names are escaped as in a typed command.
        return [entry.split("\t")[0].replace("\\ ", " ") for entry in outcome.stdout.splitlines()]

    def test_commands(self):
        self.check_commands()

    def test_options(self):
        self.check_options()

    def test_files(self):
        self.check_files()

    # Fish offers other names too, after the matching ones.
    def check_names(self, offered, files):
        self.assertLessEqual(files, set(offered))


@needs("zsh")
class ZshCompletion(unittest.TestCase):
    def test_is_free_of_faults(self):
        outcome = run("zsh", "-n", COMPLETIONS / "_tavi")
        self.assertEqual((outcome.returncode, outcome.stderr), (0, ""))

    def test_has_every_option(self):
        text = (COMPLETIONS / "_tavi").read_text(encoding="utf-8")
        for name, page in HELP.pages.items():
            part = text.split(f"\n    '{name}')\n")[1].split(";;")[0]
            self.assertEqual(re.findall(r"^ +'\*?(-[a-z-]+)\[", part, re.M),
                             [option.name for option in page.options] + ["--help"], name)


# The base class has no tests.
del Completion

if __name__ == "__main__":
    unittest.main()
