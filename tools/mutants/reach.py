"""Which tests run which lines of the library, and how long each takes. Cached next to the build."""
import functools
import hashlib
import json
import re
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import listing
from running import Runner

_FIRST_LIMIT_S = 300


class Reach:
    def __init__(self, build, tests, work):
        self._tests = tests
        self._seconds = {}  # by name of test
        self._by_line = {}  # "path:line" -> names of tests
        self._lines_run = {}  # by name of test, how many
        self._cache = work / "reach"
        self._build = build
        self._keys = []

    def collect(self, jobs, tell):
        """Runs the tests that are not known yet, in parallel. Returns the names of those that fail without any
        change."""
        self._cache.mkdir(exist_ok=True)
        library, failed = hashlib.sha256(self._build.library().read_bytes()).hexdigest(), []
        for program in sorted({test.program for test in self._tests}):
            own = [test for test in self._tests if test.program == program]
            key = hashlib.sha256(program.read_bytes() + library.encode()).hexdigest()
            file = self._cache / f"{program.name}.json"
            known = json.loads(file.read_text()) if file.exists() else {}
            if known.get("key") != key:
                tell(f"tracing {len(own)} tests of {program.name}")
                known = {"key": key, "tests": self._trace_all(own, jobs, failed)}
                if not failed:
                    file.write_text(json.dumps(known))
            self._keys.append(key)
            self._take(known["tests"])
        return failed

    def state(self):
        """Changes whenever the tests or the library change."""
        return hashlib.sha256("".join(self._keys).encode()).hexdigest()

    def limit(self, test):
        """Seconds after which the test counts as hanging. Other work may slow the machine down a lot."""
        return 10 + 10 * self._seconds[test.name]

    def tests_of(self, change):
        """Tests that run the changed line, the nearest first. For a line without code, such as a constant, all tests
        that run any line of the file."""
        names = self._by_line.get(f"{change.path}:{change.line}")
        for above in range(1, 4):
            names = names or self._by_line.get(f"{change.path}:{change.line - above}")
        names = names or self._in_file.get(change.path, set())
        tests = [test for test in self._tests if test.name in names]
        return sorted(tests, key=lambda test: self._distance(change, test))

    def tests_that_include(self, change):
        """Tests of the programs that compile the changed file themselves, the nearest first."""
        tests = [test for test in self._tests if self._build.includes(test.program, change.path)]
        return sorted(tests, key=lambda test: self._distance(change, test))

    @staticmethod
    def _is_of_folder(test, change):
        return test.program.name == "test_" + change.path.rsplit("/", 1)[0].replace("/", "_")

    def _distance(self, change, test):
        """A test of the same folder is near, and so is one that runs little else."""
        return not self._is_of_folder(test, change), self._lines_run[test.name], test.name

    @functools.cached_property
    def _blocks(self):
        return listing.lines_of_blocks(self._build.library(), self._build.root)

    def _trace_all(self, tests, jobs, failed):
        blocks, traced = self._blocks, {}
        with ThreadPoolExecutor(jobs) as pool:
            for test, (ending, seconds, lines) in zip(tests, pool.map(lambda test: self._trace(test, blocks), tests)):
                traced[test.name] = {"seconds": seconds, "lines": sorted(lines)}
                if ending != "passed":
                    failed.append(test.name)
        return traced

    def _trace(self, test, blocks):
        """How a run of it ends, in how many seconds, and the lines that it runs."""
        lines = set()
        with tempfile.TemporaryDirectory(dir=self._cache) as folder:
            ending, seconds = Runner(Path(folder) / "scratch").run(test, _FIRST_LIMIT_S, TAVI_TRACE_RUNS=folder)
            for file in filter(Path.is_file, Path(folder).iterdir()):  # one a process
                for run in re.finditer(rb"[^\0]", file.read_bytes()):
                    lines |= blocks.get(run.start(), set())
        return ending, seconds, lines

    def _take(self, known):
        for name, test in known.items():
            self._seconds[name] = test["seconds"]
            self._lines_run[name] = len(test["lines"])
            for line in test["lines"]:
                self._by_line.setdefault(line, set()).add(name)
        self._in_file = {}
        for line, names in self._by_line.items():
            self._in_file.setdefault(line.rsplit(":", 1)[0], set()).update(names)
