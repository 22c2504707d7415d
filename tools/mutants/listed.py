"""Changes without an observable effect, with the reason: tests/mutants/equivalent.txt. Paragraphs between empty lines:

    clock.cpp Sleep
    - if (ms < 0) ms = 0;
    + if (ms <= 0) ms = 0;
    Zero becomes zero.

The name of the file, whatever its folder, and of the function, if it is in one; the line before the change and after
it, without the blanks around; the reason. It holds for every equal line of the function. Lines that begin with # are
comments.
"""


class Listed:
    def __init__(self, text):
        self._reasons = {}
        lines = "\n".join(line for line in text.splitlines() if not line.startswith("#"))
        for paragraph in filter(None, (part.strip() for part in lines.split("\n\n"))):
            place, before, after, *reason = paragraph.split("\n")
            if not (before.startswith("- ") and after.startswith("+ ") and reason):
                raise ValueError(f"not a place, two lines and a reason:\n{paragraph}")
            file, _, function = place.partition(" ")
            self._reasons[file, function, before[2:], after[2:]] = " ".join(reason)

    def __contains__(self, change):
        return change.key in self._reasons

    def stale(self, changes):
        """Entries that no longer match a change of the tree."""
        offered = {change.key for change in changes}
        return [key for key in self._reasons if key not in offered]
