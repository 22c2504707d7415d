#!/usr/bin/env python3
"""The input manager library exports exactly the functions of its header, and a program can link each of them. Both
libraries have their version in their names and on each symbol.

    exported_symbols_test.py NM READELF LIBRARY KEYMAP_LIBRARY INCLUDE_DIR VERSION WORK_DIR COMPILER QT_CORE
        QT_INCLUDE_DIR...
"""
import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

from commands import run

NM, READELF, LIBRARY, KEYMAP_LIBRARY, INCLUDE, VERSION, WORK, COMPILER, QT_CORE, *QT = sys.argv[1:]
del sys.argv[1:]
NAMESPACE = "taviinputmanager::"
HEADER = "taviinputmanager/taviinputmanager.h"


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def exported(library):
    """(demangled name with arguments, version node) of each symbol that a library exports."""
    lines = output_of(NM, "--dynamic", "--defined-only", "--demangle", library).splitlines()
    symbols = [line.split(" ", 2)[1:] for line in lines]
    return [symbol.rsplit("@@", 1) if "@@" in symbol else [symbol, None] for kind, symbol in symbols if kind != "A"]


def declared():
    """The names of the functions that the header exports."""
    return re.findall(r"^TAVI_EXPORT\s+[^;(]*?(\w+)\(", Path(INCLUDE, HEADER).read_text(encoding="utf-8"), re.MULTILINE)


def program_of_all():
    """A program that takes the address of each declared function, with the types of this compiler and this Qt."""
    addresses = "".join(f"    reinterpret_cast<Function*>({NAMESPACE}{name}),\n" for name in declared())
    return (f'#include "{HEADER}"\nusing Function = void();\nFunction* const volatile functions[] = {{\n{addresses}}};\n'
            "int main() { return functions[0] ? 0 : 1; }\n")


class ExportedSymbols(unittest.TestCase):
    maxDiff = None

    def test_header_declares_46_functions(self):
        self.assertEqual(len(set(declared())), 46)
        self.assertEqual(len(declared()), 46, "no overloads")

    def test_library_exports_exactly_these(self):
        names = sorted(symbol.split("(")[0] for symbol, _ in exported(LIBRARY))
        self.assertEqual(names, sorted(NAMESPACE + name for name in declared()))

    def test_a_program_links_each(self):
        os.makedirs(WORK, exist_ok=True)
        source, program = Path(WORK, "all.cpp"), Path(WORK, "all")
        source.write_text(program_of_all(), encoding="utf-8")
        system = [word for folder in QT for word in ("-isystem", folder)]
        run(COMPILER, "-std=c++17", "-fPIC", f"-I{INCLUDE}", *system, source, LIBRARY, QT_CORE,
            f"-Wl,-rpath,{Path(LIBRARY).parent}", "-o", program)
        run(program, env={**os.environ, "LD_BIND_NOW": "1"})

    def test_every_symbol_has_the_node_of_the_version(self):
        for library, node in [(LIBRARY, "TAVIINPUTMANAGER_"), (KEYMAP_LIBRARY, "TAVI_KEYMAPMANAGER_")]:
            self.assertEqual({version for _, version in exported(library)}, {node + VERSION}, library)

    def test_names_have_the_version_that_programs_ask_for(self):
        for library in [LIBRARY, KEYMAP_LIBRARY]:
            name = Path(library).name.split(".so")[0]
            self.assertIn(f"[{name}.so.{VERSION}]", output_of(READELF, "--dynamic", library))


if __name__ == "__main__":
    unittest.main()
