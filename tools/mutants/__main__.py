#!/usr/bin/env python3
"""Makes small changes to the library, one at a time, and prints those that no test detects.

    tools/mutants [N [SEED]]     N changes (30), drawn with SEED (a new one for each run)
    tools/mutants listed         the changes in tests/mutants/equivalent.txt: a test that detects one refutes it
    tools/mutants PATH:LINE      every change of a line
TAVI_MUTANTS_JOBS=4 tests four at a time.

Each change is built in build/mutants, separate from the checkout, and the tests that run its line are run, the nearest
first, until one fails. Results are kept: the same N and SEED continue after an interruption, and after new tests only
the changes that survived are tested again. Exits with 1 if less than 95 per cent of the observable changes were
detected, if a listed change was detected, or if an entry of that file no longer matches a line.
"""
import hashlib
import os
import random
import shutil
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor, as_completed
from itertools import islice
from pathlib import Path

sys.dont_write_bytecode = True

import changes
from build import LIBRARY, Build, BuildFailed, ChangedFile
from listed import Listed
from reach import Reach
from results import KILLED, NO_PROGRAM, SAME_CODE, SURVIVED, UNSEEN, Count, Results
from running import Runner, list_tests

LEAST_PERCENT = 95
JOBS = int(os.environ.get("TAVI_MUTANTS_JOBS", 1))
CHECKOUT = Path(__file__).resolve().parents[2]
WORK = CHECKOUT / "build" / "mutants"
LIST = CHECKOUT / "tests" / "mutants" / "equivalent.txt"


def tell(text):
    print(text, flush=True)


class Trial:
    """Builds changes and runs the tests that can reach them, on threads of a pool."""

    def __init__(self, build, reach):
        self._build, self._reach = build, reach

    def run(self, change):
        """The verdict, and the test that gave it."""
        own = WORK / "changed" / str(threading.get_ident())
        changed = ChangedFile(change.path, change.line, change.apply((self._build.root / change.path).read_text()),
                              own / "built")
        runner = Runner(own / "scratch")
        tests = self._reach.tests_of(change)
        try:
            verdict, by = self._meet(changed, runner, tests, [LIBRARY])
            if verdict == SURVIVED and change.path.endswith(".h"):
                # Test programs have their own copy of inline functions, and may run only that: the library's trace does
                # not show it.
                tests = list(dict.fromkeys([*self._reach.tests_that_include(change), *tests]))
                programs = sorted({os.path.relpath(test.program, self._build.folder) for test in tests})
                verdict, by = self._meet(changed, runner, tests, [LIBRARY, *programs])
            if verdict == SURVIVED and self._build.is_same_when_optimised(changed):
                return SAME_CODE, ""
        except BuildFailed:
            return NO_PROGRAM, ""
        return verdict, by

    def _meet(self, changed, runner, tests, targets):
        replaced = self._build.make(changed, targets)
        if not replaced:
            return SAME_CODE, ""
        for test in tests:
            ending, _ = runner.run(test, self._reach.limit(test), replaced)
            if ending != "passed":
                return KILLED, test.name if ending == "failed" else f"{test.name} ({ending})"
        return SURVIVED, f"{len(tests)} tests"


def drawn(offered, words):
    """The changes to try, in order, and the number of changes wanted."""
    if words and ":" in words[0]:
        path, line = words[0].rsplit(":", 1)
        wanted = [change for change in offered if change.path == path and change.line == int(line)]
        return wanted, len(wanted)
    count = int(words[0]) if words else 30
    seed = int(words[1]) if len(words) > 1 else int(time.time()) % 100000
    tell(f"{count} of {len(offered)} changes, seed {seed}")
    return random.Random(seed).sample(offered, len(offered)), count


def show(number, change, verdict, by):
    tell(f"{number:4} {verdict:10} {change.path}:{change.line}:{change.column} {change.label}  {by}")
    if verdict == SURVIVED:
        tell(f"- {change.before}\n+ {change.after}")


def try_all(trial, results, tried, wanted, unseen):
    """Tries changes until the wanted number of them compiled. `unseen` are not tried, and count as such."""

    def verdict_of(change):
        return (UNSEEN, "") if change in unseen else results.get(change) or trial.run(change)

    count, tried = Count(), iter(tried)
    pool = ThreadPoolExecutor(JOBS)
    try:
        while some := list(islice(tried, wanted - count.sampled())):
            running = {pool.submit(verdict_of, change): change for change in some}
            for done in as_completed(running):
                change, (verdict, by) = running[done], done.result()
                results.add(change, verdict, by)
                count.add(verdict)
                if verdict in (KILLED, SURVIVED, UNSEEN):
                    show(count.sampled(), change, verdict, by)
    finally:
        pool.shutdown(cancel_futures=True)  # an interrupted run finishes only the changes in progress
    return count


def prepare():
    WORK.mkdir(parents=True, exist_ok=True)
    build = Build(CHECKOUT, WORK)
    build.update()
    tests = list_tests(build.folder)
    shutil.rmtree(WORK / "changed", ignore_errors=True)
    reach = Reach(build, tests, WORK)
    failed = reach.collect(JOBS, tell)
    if failed:
        sys.exit("mutants: these fail, though nothing was changed: " + " ".join(failed))
    state = hashlib.sha256(build.library().read_bytes()).hexdigest()
    return build, Trial(build, reach), Results(WORK / "results.jsonl", state, reach.state())


def main(words):
    build, trial, results = prepare()
    offered = [change for path in build.sources() for change in changes.find(path, (build.root / path).read_text())]
    listed = Listed(LIST.read_text())
    stale = listed.stale(offered)
    for file, function, before, after in stale:
        tell(f"mutants: no longer a change of the tree:\n{file} {function}\n- {before}\n+ {after}")
    if words == ["listed"]:
        tried = [change for change in offered if change in listed]
        count = try_all(trial, results, tried, len(tried), ())
        wrong = count.number(KILLED) > 0
    else:
        count = try_all(trial, results, *drawn(offered, words), listed)
        wrong = count.percent() < LEAST_PERCENT
    tell(str(count))
    return 1 if stale or wrong else 0


sys.exit(main(sys.argv[1:]))
