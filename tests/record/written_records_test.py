#!/usr/bin/env python3
"""Every record that the library saves in its own tests is valid by the schema.

usage: written_records_test.py TEST_RECORD SCHEMA

Runs the tests that save records, each in a process of its own, and looks at the files that they leave. Merged records
are left out: those tests merge what is no record on purpose. Needs python3-jsonschema; without it the test is skipped.
"""
import json
import os
import subprocess
import sys
import tempfile
from pathlib import Path

try:
    import jsonschema
except ImportError:
    print("skipped: python3-jsonschema is not installed")
    sys.exit(77)

# Except two whose actions are invented.
FILTER = "SaveRecord.*:RecordManager*-SaveRecord.TheTotalIsASumOf64Bits:SaveRecord.IsReadBackAsItWas"
FEWEST_RECORDS = 5  # fewer, and the filter has lost its tests


def test_names(binary):
    listed = subprocess.run([binary, "--gtest_list_tests", "--gtest_filter=" + FILTER], check=True, capture_output=True,
                            text=True).stdout
    suite = ""
    for line in listed.splitlines():
        if line.startswith("  "):
            yield suite + line.split()[0]
        elif line.split() and line.split()[0].endswith("."):
            suite = line.split()[0]


def written_by(binary, name):
    """[(file name, bytes)]"""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([binary, "--gtest_filter=" + name], check=False, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, env={**os.environ, "TAVI_WRITTEN_RECORDS": folder})
        return [(file.name, file.read_bytes()) for file in sorted(Path(folder).iterdir()) if file.is_file()]


def main():
    binary, schema = sys.argv[1], json.loads(Path(sys.argv[2]).read_text(encoding="utf-8"))
    validator = jsonschema.Draft7Validator(schema)
    records = 0
    faults = []
    for name in test_names(binary):
        for file, content in written_by(binary, name):
            records += 1
            try:
                errors = [error.message for error in validator.iter_errors(json.loads(content))]
            except ValueError as error:
                errors = [str(error)]
            faults += [f"{name}: {file}: {error}" for error in errors]
    print(f"{records} records")
    if records < FEWEST_RECORDS:
        faults.append(f"only {records} records were saved")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
