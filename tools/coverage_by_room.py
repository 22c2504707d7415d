#!/usr/bin/env python3
"""Line coverage by folder, and every line that no test runs.

    coverage_by_room.py GCOVR_JSON LEAST_PERCENT      exits with 1 below it
"""
import collections
import json
import sys
from itertools import groupby


def spans(numbers):
    """Formats 1, 2, 3, 7 as "1-3 7"."""
    texts = []
    for _, group in groupby(enumerate(numbers), lambda pair: pair[1] - pair[0]):
        run = [number for _, number in group]
        texts.append(str(run[0]) if len(run) == 1 else f"{run[0]}-{run[-1]}")
    return " ".join(texts)


def main(report, least):
    rooms = collections.defaultdict(lambda: [0, 0])
    for file in sorted(json.load(open(report))["files"], key=lambda file: file["file"]):
        counts = {}
        for line in file["lines"]:
            if not line.get("gcovr/noncode"):
                counts[line["line_number"]] = counts.get(line["line_number"], 0) + line["count"]
        missed = sorted(number for number, count in counts.items() if count == 0)
        room = rooms[file["file"].split("/")[0]]
        room[0] += len(counts) - len(missed)
        room[1] += len(counts)
        if missed:
            print(f"{file['file']}: {spans(missed)}")
    rooms["all"] = [sum(room[i] for room in rooms.values()) for i in (0, 1)]
    for name, (run, lines) in rooms.items():
        print(f"{name:14} {run:6} of {lines:6} lines {100 * run / max(lines, 1):6.2f} %")
    run, lines = rooms["all"]
    return 0 if lines and 100 * run >= float(least) * lines else 1


sys.exit(main(*sys.argv[1:]))
