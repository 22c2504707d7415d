#!/usr/bin/env python3
"""Generates files from the help pages: the manual page and the shell completions.

    tools/make_command_files.py TAVI

TAVI is the program. Run it when a command or an option has changed; a test fails if you forget it.
"""
import sys
from pathlib import Path

sys.dont_write_bytecode = True

from completions import bash, fish, zsh  # noqa: E402
from help_pages import Help  # noqa: E402
from man_page import man_page  # noqa: E402

ROOT = Path(__file__).resolve().parent.parent
MAKERS = {
    "docs/man/tavi.1": man_page,
    "completions/tavi.bash": bash,
    "completions/_tavi": zsh,
    "completions/tavi.fish": fish,
}


def main():
    pages = Help(sys.argv[1])
    for name, make in MAKERS.items():
        (ROOT / name).write_text(make(pages), encoding="utf-8")


if __name__ == "__main__":
    main()
