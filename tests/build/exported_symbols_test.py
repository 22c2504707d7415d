#!/usr/bin/env python3
"""The input manager library exports the functions of its header and no other symbol. Both libraries have
their version in their names and at each symbol.

    exported_symbols_test.py NM READELF LIBRARY KEYMAP_LIBRARY HEADER VERSION
"""
import re
import subprocess
import sys
import unittest
from pathlib import Path

NM, READELF, LIBRARY, KEYMAP_LIBRARY, HEADER, VERSION = sys.argv[1:7]
del sys.argv[1:7]
NAMESPACE = "taviinputmanager::"


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def exported(library):
    """(demangled name with arguments, version node) of what a library defines for others."""
    lines = output_of(NM, "--dynamic", "--defined-only", "--demangle", library).splitlines()
    symbols = [line.split(" ", 2)[1:] for line in lines]
    return [symbol.rsplit("@@", 1) if "@@" in symbol else [symbol, None] for kind, symbol in symbols if kind != "A"]


def declared():
    """The names of the functions that the header exports."""
    return re.findall(r"^TAVI_EXPORT\s+[^;(]*?(\w+)\(", Path(HEADER).read_text(encoding="utf-8"), re.MULTILINE)


class ExportedSymbols(unittest.TestCase):
    maxDiff = None

    def test_header_declares_46_functions(self):
        self.assertEqual(len(set(declared())), 46)
        self.assertEqual(len(declared()), 46, "no overloads")

    def test_library_exports_exactly_these(self):
        names = sorted(symbol.split("(")[0] for symbol, _ in exported(LIBRARY))
        self.assertEqual(names, sorted(NAMESPACE + name for name in declared()))

    def test_every_symbol_has_the_node_of_the_version(self):
        for library, node in [(LIBRARY, "TAVIINPUTMANAGER_"), (KEYMAP_LIBRARY, "TAVI_KEYMAPMANAGER_")]:
            self.assertEqual({version for _, version in exported(library)}, {node + VERSION}, library)

    def test_names_have_the_version_that_programs_ask_for(self):
        for library in [LIBRARY, KEYMAP_LIBRARY]:
            name = Path(library).name.split(".so")[0]
            self.assertIn(f"[{name}.so.{VERSION}]", output_of(READELF, "--dynamic", library))


if __name__ == "__main__":
    unittest.main()
