#!/usr/bin/env python3
"""Instructions of each side and path under callgrind, per round, as JSON on standard output.

    count_instructions.py TAVI_BENCH

Two runs of different length each: their difference leaves out the start.
"""
import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

SHORT, LONG = 200, 1200  # rounds


def collected(binary, name, rounds):
    command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", binary, f"--events={name}:{rounds}"]
    run = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, check=True)
    return int(re.search(r"Collected : (\d+)", run.stderr)[1])


def per_round(binary, name):
    return (collected(binary, name, LONG) - collected(binary, name, SHORT)) / (LONG - SHORT)


def main(binary):
    names = subprocess.run([binary, "--list"], stdout=subprocess.PIPE, text=True, check=True).stdout.split()
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        counts = dict(zip(names, pool.map(lambda name: per_round(binary, name), names)))
    json.dump(counts, sys.stdout, indent=1)


main(sys.argv[1])
