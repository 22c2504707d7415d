#!/usr/bin/env python3
"""Draws how cost grows: keymap size and live workers.

    plot.py TIMES.json PICTURE.svg

TIMES.json is what Google Benchmark writes for the benchmarks "growth/...", with repetitions; the least of each is
drawn.
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
AXES = {"items": "items of the keymap", "workers": "macros asleep beside it"}


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


def draw(curves, picture):
    figure, panels = plt.subplots(1, len(AXES), figsize=(10, 3.8), layout="constrained")
    for panel, (by, title) in zip(panels, AXES.items()):
        for what, curve in sorted(curves[by].items()):
            sizes = sorted(curve)
            panel.plot(sizes, [curve[size] for size in sizes], marker="o", label=TITLES[what])
        panel.set_xscale("log")
        panel.set_xlabel(title)
        panel.set_ylabel("ns")
        panel.set_ylim(bottom=0)
        panel.grid(True, alpha=0.3)
        panel.legend()
    figure.savefig(picture, metadata={"Date": None})


draw(read_curves(json.loads(Path(sys.argv[1]).read_text())), sys.argv[2])
