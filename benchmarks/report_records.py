#!/usr/bin/env python3
"""From the figures of tavi_bench_records to a table, and to what is missed.

    report_records.py RECORDS.json [--check]
"""
import argparse
import json
import sys
from pathlib import Path

LIMITS = {"load_to_parse": 2.5, "heap_bytes_per_action": 250}
TITLES = {
    "file_MiB": "size of the file (MiB)",
    "save_s": "saving (s)",
    "parse_s": "a bare QJsonDocument parse of its bytes (s)",
    "load_s": "loading (s)",
    "load_to_parse": "loading, times that parse",
    "heap_bytes_per_action": "heap in use after loading (bytes an action)",
    "walk_s": "walking all actions (s)",
    "replay_s": "replaying on the virtual clock (s)",
    "merge_two_s": "merging it with itself (s)",
    "peak_MiB": "peak memory of all of this (MiB)",
}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("records", type=Path)
    parser.add_argument("--check", action="store_true")
    arguments = parser.parse_args()
    figures = json.loads(arguments.records.read_text())

    print(f"| a record of {figures['actions']} actions | | limit |\n|---|---|---|")
    misses = []
    for name, title in TITLES.items():
        limit = LIMITS.get(name)
        print(f"| {title} | {figures[name]:.2f} | {limit or ''} |")
        if limit is not None and figures[name] > limit:
            misses.append(f"{title}: {figures[name]:.2f}, the limit is {limit}")
    if arguments.check:
        for miss in misses:
            print("missed: " + miss, file=sys.stderr)
    return 1 if arguments.check and misses else 0


if __name__ == "__main__":
    sys.exit(main())
