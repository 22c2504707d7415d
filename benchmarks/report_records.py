#!/usr/bin/env python3
"""Prints the figures of tavi_bench_records as a table, and the goals that they miss.

    report_records.py RECORDS.json [--check]
"""
import argparse
import json
import sys
from pathlib import Path

# The measurements, in the order of the table, with their limits.
ROWS = [
    ("file_MiB", "size of the file (MiB)", None),
    ("parse_s", "a bare QJsonDocument parse of its bytes (s)", None),
    ("save_s", "`StopRecord` (s)", None),
    ("save_to_parse", "the same, times that parse", 0.25),
    ("start_s", "`StartReplay` (s)", None),
    ("start_to_parse", "the same, times that parse", 0.4),
    ("info_to_parse", "`GetRecordInfo`, times that parse", 0.2),
    ("names_to_parse", "`GetScriptAppAndPackage`, times that parse", 0.2),
    ("merge_two_s", "`MergeRecord` of it with itself (s)", None),
    ("merge_two_to_parse", "the same, times that parse", 1.0),
    ("stamp_s", "`UpdateRecordTimestamp` (s)", None),
    ("stamp_to_parse", "the same, times that parse", 0.6),
    ("save_MiB", "memory beyond the actions: saving (MiB)", 16),
    ("load_MiB", "loading", 16),
    ("info_MiB", "the header", 16),
    ("merge_MiB", "merging", 64),
    ("stamp_MiB", "the timestamp", 64),
    ("heap_bytes_per_action", "heap in use after loading (bytes an action)", 130),
    ("walk_s", "walking all actions (s)", None),
    ("replay_s", "replaying on the virtual clock (s)", None),
]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("records", type=Path)
    parser.add_argument("--check", action="store_true")
    arguments = parser.parse_args()
    figures = json.loads(arguments.records.read_text())

    print(f"| a record of {figures['actions']} actions | | limit |\n|---|---|---|")
    misses = []
    for name, title, limit in ROWS:
        print(f"| {title} | {figures[name]:.2f} | {'' if limit is None else limit} |")
        if limit is not None and figures[name] > limit:
            misses.append(f"{name}: {figures[name]:.2f}, the limit is {limit}")
    if arguments.check:
        for miss in misses:
            print("missed: " + miss, file=sys.stderr)
    return 1 if arguments.check and misses else 0


if __name__ == "__main__":
    sys.exit(main())
