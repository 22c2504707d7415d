#!/usr/bin/env python3
"""Prints the figures of tavi_bench as a table, and the goals that they miss.

    report.py TIMES.json REPORT.json [--instructions COUNTS.json] [--check]

TIMES.json is what Google Benchmark writes, with repetitions. COUNTS.json holds instructions per round by side and path.
Both sides of a path are of the same run. REPORT.json gets everything that the table shows.
"""
import argparse
import json
import statistics
import sys
from pathlib import Path

LIMITS = Path(__file__).with_name("limits.json")
ALLOCATION_TOLERANCE = 0.01  # allocations at the start, spread over a run


def read_sides(times):
    """{name: {"ns": [a figure each repetition], "allocations", "events", "lines"}}, of a whole round."""
    sides = {}
    for run in times["benchmarks"]:
        if run.get("run_type") != "iteration":
            continue
        name = "/".join(run["name"].split("/")[:2])
        side = sides.setdefault(name, {"ns": []})
        side["ns"].append(run["cpu_time"])
        for counter in ("allocations", "events", "lines"):
            side[counter] = run[counter]
    return sides


def row_of(limit, sides, counts):
    path, floor = sides["path/" + limit["path"]], sides["floor/" + limit["path"]]
    lines = path["lines"] or path["events"]
    against, against_lines = floor, lines
    if "against" in limit:
        against = sides["path/" + limit["against"]]
        against_lines = against["lines"]
    row = {
        "path": limit["path"],
        "title": limit["title"],
        "ns_per_line": min(path["ns"]) / lines,
        "ns_per_line_median": statistics.median(path["ns"]) / lines,
        "floor_ns_per_line": min(floor["ns"]) / lines,
        "ratio": (min(path["ns"]) / lines) / (min(against["ns"]) / against_lines),
        "ratio_of_medians": statistics.median(path["ns"]) / lines / (statistics.median(against["ns"]) / against_lines),
        "limit": limit.get("ratio"),
        "against": limit.get("against", "floor"),
        "allocations": path["allocations"],
        "allocations_limit": limit.get("allocations"),
    }
    if counts:
        row["instructions"] = counts["path/" + limit["path"]] / path["events"]
        row["floor_instructions"] = counts["floor/" + limit["path"]] / path["events"]
    return row


def misses_of(row):
    if row["limit"] is not None and row["ratio"] > row["limit"]:
        yield f"{row['title']}: {row['ratio']:.2f} times {row['against']}, the limit is {row['limit']}"
    limit = row["allocations_limit"]
    if limit is not None and row["allocations"] > limit + ALLOCATION_TOLERANCE:
        yield f"{row['title']}: {row['allocations']:.2f} allocations an event, the limit is {limit}"


def bounded(value, limit, digits):
    return f"{value:.{digits}f}" + (f" / {limit}" if limit is not None else "")


def table_of(rows):
    head = ["path", "ns a line", "floor", "ratio / limit", "of medians", "allocations / limit"]
    has_counts = any("instructions" in row for row in rows)
    if has_counts:
        head += ["instructions an event", "floor"]
    cells = [head]
    for row in rows:
        ratio = bounded(row["ratio"], row["limit"], 2) + (" of " + row["against"] if row["against"] != "floor" else "")
        cells.append([row["title"], f"{row['ns_per_line']:.1f}", f"{row['floor_ns_per_line']:.1f}", ratio,
                      f"{row['ratio_of_medians']:.2f}", bounded(row["allocations"], row["allocations_limit"], 1)])
        if has_counts:
            cells[-1] += [f"{row['instructions']:.0f}", f"{row['floor_instructions']:.0f}"]
    widths = [max(len(line[i]) for line in cells) for i in range(len(head))]
    lines = ["| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |" for line in cells]
    lines.insert(1, "|" + "|".join("-" * (width + 2) for width in widths) + "|")
    return "\n".join(lines)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("times", type=Path)
    parser.add_argument("report", type=Path)
    parser.add_argument("--instructions", type=Path)
    parser.add_argument("--check", action="store_true")
    arguments = parser.parse_args()

    sides = read_sides(json.loads(arguments.times.read_text()))
    counts = json.loads(arguments.instructions.read_text()) if arguments.instructions else {}
    rows = [row_of(limit, sides, counts) for limit in json.loads(LIMITS.read_text())]
    arguments.report.write_text(json.dumps(rows, indent=1) + "\n")
    print(table_of(rows))

    misses = [miss for row in rows for miss in misses_of(row)]
    if arguments.check:
        for miss in misses:
            print("missed: " + miss, file=sys.stderr)
        return 1 if misses else 0
    return 0


if __name__ == "__main__":
    sys.exit(main())
