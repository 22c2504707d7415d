#!/usr/bin/env python3
"""The input manager library exports the functions of its header and no other symbol.

    exported_symbols_test.py NM LIBRARY HEADER
"""
import re
import subprocess
import sys
import unittest
from pathlib import Path

NM, LIBRARY, HEADER = sys.argv[1:4]
del sys.argv[1:4]
NAMESPACE = "taviinputmanager::"


def exported():
    """Demangled names, arguments included, of what the library defines for others."""
    lines = subprocess.run([NM, "--dynamic", "--defined-only", "--demangle", LIBRARY],
                           check=True, capture_output=True, text=True).stdout.splitlines()
    return [line.split(" ", 2)[2] for line in lines]


def declared():
    """Names of the functions that the header marks as exported."""
    return re.findall(r"^TAVI_EXPORT\s+[^;(]*?(\w+)\(", Path(HEADER).read_text(encoding="utf-8"), re.MULTILINE)


class ExportedSymbols(unittest.TestCase):
    maxDiff = None

    def test_header_declares_46_functions(self):
        self.assertEqual(len(set(declared())), 46)
        self.assertEqual(len(declared()), 46, "no overloads")

    def test_library_exports_exactly_these(self):
        names = sorted(symbol.split("(")[0] for symbol in exported())
        self.assertEqual(names, sorted(NAMESPACE + name for name in declared()))


if __name__ == "__main__":
    unittest.main()
