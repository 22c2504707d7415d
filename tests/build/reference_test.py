#!/usr/bin/env python3
"""Doxygen finds a comment on every part of the public headers, and no error in any.

    reference_test.py SOURCE_DIR WORK_DIR

Exit status 77 where doxygen is not installed.
"""
import re
import shutil
import subprocess
import sys
from pathlib import Path

SOURCE, WORK = [Path(argument).resolve() for argument in sys.argv[1:3]]


def main():
    if not shutil.which("doxygen"):
        print("skipped: doxygen is not installed (Debian: doxygen)")
        return 77
    shutil.rmtree(WORK, ignore_errors=True)
    WORK.mkdir(parents=True)
    configuration = (SOURCE / "docs" / "Doxyfile").read_text(encoding="utf-8")
    configuration += f"OUTPUT_DIRECTORY = {WORK}\nGENERATE_HTML = NO\nGENERATE_XML = YES\n"
    run = subprocess.run(["doxygen", "-"], input=configuration, cwd=SOURCE, text=True, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT, check=False)
    print(run.stdout)
    if run.returncode != 0:
        return 1
    pages = "".join(page.read_text(encoding="utf-8") for page in (WORK / "xml").glob("*.xml"))
    header = (SOURCE / "include" / "taviinputmanager" / "taviinputmanager.h").read_text(encoding="utf-8")
    functions = re.findall(r"^TAVI_EXPORT .*?(\w+)\(", header, re.MULTILINE)
    missing = [name for name in functions if f"<name>{name}</name>" not in pages]
    print(f"{len(functions)} functions, not in the reference: {missing}")
    return 1 if missing or len(functions) != 46 else 0


if __name__ == "__main__":
    sys.exit(main())
