"""The result of each change, kept across runs: an interrupted run continues where it stopped."""
import collections
import json

KILLED, SURVIVED, UNSEEN, SAME_CODE, NO_PROGRAM = "killed", "survived", "unseen", "same code", "no program"


class Results:
    """A kill is valid for a state of the library; any other result, for a state of the library and the tests."""

    def __init__(self, file, library, tests):
        self._file, self._library, self._tests = file, library, tests
        self._known = {}
        for line in file.read_text().splitlines() if file.exists() else []:
            entry = json.loads(line)
            if entry["library"] == library and (entry["verdict"] != SURVIVED or entry["tests"] == tests):
                self._known[entry["change"]] = (entry["verdict"], entry["by"])

    def get(self, change):
        return self._known.get(self._name(change))

    def add(self, change, verdict, by):
        if verdict == UNSEEN or self.get(change):
            return
        self._known[self._name(change)] = (verdict, by)
        entry = {"change": self._name(change), "verdict": verdict, "by": by, "library": self._library,
                 "tests": self._tests}
        with self._file.open("a") as file:
            file.write(json.dumps(entry) + "\n")

    @staticmethod
    def _name(change):
        return f"{change.path}:{change.line}:{change.column} {change.label}"


class Count:
    """How many of which verdict. Changes that make no program, or the same one, are no part of a sample."""

    def __init__(self):
        self._of = collections.Counter()

    def add(self, verdict):
        self._of[verdict] += 1

    def number(self, verdict):
        return self._of[verdict]

    def sampled(self):
        return sum(self._of[verdict] for verdict in (KILLED, SURVIVED, UNSEEN))

    def percent(self):
        visible = self._of[KILLED] + self._of[SURVIVED]
        return 100.0 * self._of[KILLED] / visible if visible else 100.0

    def __str__(self):
        return (f"{self.sampled()} changes: {self._of[KILLED]} killed, {self._of[SURVIVED]} survived, "
                f"{self._of[UNSEEN]} that nobody can see; {self.percent():.1f} % of those that can be seen are killed "
                f"(left out: {self._of[SAME_CODE]} that give the same code, {self._of[NO_PROGRAM]} that give none)")
