#!/usr/bin/env python3
"""Draws how cost grows: keymap size, live workers, mirrors and the length of a record.

    plot.py TIMES.json RECORDS.jsonl PICTURE.svg

TIMES.json is what Google Benchmark writes for the benchmarks "growth/...", with repetitions; the least of each is
drawn. RECORDS.jsonl has what tavi_bench_records prints, a line for each length.
"""
import json
import sys
from pathlib import Path

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams["svg.hashsalt"] = "performance"  # the same figures give the same file
import matplotlib.pyplot as plt  # noqa: E402

TITLES = {
    "tap": "mapped tap, a line",
    "pass_through": "unmapped key passed through, a line",
    "walk_tick": "tick of a walk, event loop included",
}
LINES = {"tap": 2, "pass_through": 2, "walk_tick": 1}
AXES = {
    "items": "items of the keymap",
    "workers": "macros asleep beside it",
    "targets": "mirrors",
    "actions": "actions of a record",
}
RECORD_TITLES = {
    "save_s": "saving, an action",
    "parse_s": "bare parse of its bytes, an action",
    "load_s": "loading, an action",
    "replay_s": "replaying, an action",
}


def read_curves(times):
    """{by: {what: {size: ns a line}}}"""
    curves = {}
    for run in times["benchmarks"]:
        if run.get("run_type") != "iteration" or not run["name"].startswith("growth/"):
            continue
        what, by, size = run["name"].split("/")[1:4]
        curve = curves.setdefault(by, {}).setdefault(what, {})
        ns = run["cpu_time"] / LINES[what]
        curve[int(size)] = min(ns, curve.get(int(size), ns))
    return curves


def read_record_curves(lines):
    """{what: {actions: ns an action}}"""
    runs = [json.loads(line) for line in lines]
    return {what: {run["actions"]: run[what] * 1e9 / run["actions"] for run in runs} for what in RECORD_TITLES}


def draw(curves, picture):
    titles = {**TITLES, **RECORD_TITLES}
    figure, panels = plt.subplots(1, len(AXES), figsize=(18, 3.8), layout="constrained")
    for panel, (by, title) in zip(panels, AXES.items()):
        for what, curve in sorted(curves[by].items()):
            sizes = sorted(curve)
            panel.plot(sizes, [curve[size] for size in sizes], marker="o", label=titles[what])
        panel.set_xscale("log")
        panel.set_xlabel(title)
        panel.set_ylabel("ns")
        panel.set_ylim(bottom=0)
        panel.grid(True, alpha=0.3)
        panel.legend()
    figure.savefig(picture, metadata={"Date": None})


times, records, picture = sys.argv[1:]
curves = read_curves(json.loads(Path(times).read_text()))
curves["actions"] = read_record_curves(Path(records).read_text().splitlines())
draw(curves, picture)
