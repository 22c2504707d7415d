"""The help pages of `tavi` as data, for the files generated from them and for tests."""
import os
import re
import subprocess
from dataclasses import dataclass


@dataclass
class Option:
    name: str   # with its dashes
    value: str  # the placeholder for its value; "" for a flag
    text: str   # its description, on one line


class Page:
    """One help page. Empty lines separate its paragraphs; indented lines are lists or literal."""

    OPTION = re.compile(r"^  (--?[a-z-]+)(?:, -[a-z])?(?: ([A-Za-z]+))?(?:  +(.*))?$")

    def __init__(self, command, text):
        self.command = command  # "check", "record play"
        self.text = text

    @property
    def summary(self):
        return re.match(r"tavi [\w -]+? - (.+)\n", self.text).group(1)

    @property
    def usage(self):
        """The lines after "Usage: "."""
        return re.search(r"^Usage: (.+(?:\n       .+)*)", self.text, re.M).group(1).split("\n       ")

    @property
    def body(self):
        """The paragraphs between usage and example."""
        paragraphs = self.text.split("\n\nExample: ")[0].split("\n\n")
        return paragraphs[next(i for i, text in enumerate(paragraphs) if text.startswith("Usage: ")) + 1:]

    @property
    def options(self):
        found = []
        for line in self.text.splitlines():
            match = self.OPTION.match(line)
            if match:
                found.append(Option(match[1], match[2] or "", match[3] or ""))
            elif found and re.match(r"^ {6,}\S", line):
                found[-1].text = f"{found[-1].text} {line.strip()}".strip()
            elif not line.startswith("  "):
                yield from found
                found = []
        yield from found

    @property
    def example(self):
        """For a shell: everything after the word."""
        return self.text.split("\n\nExample: ", 1)[1]


class Help:
    """All pages of a program."""

    def __init__(self, tavi, environment=None):
        self.tavi = tavi
        self.environment = environment or {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
        self.overview = Page("", self.run("--help").stdout)
        commands = self.overview.text.split("\nCommands:\n")[1].split("\n\n")[0]
        names = re.findall(r"^  ([a-z-]+(?: [a-z]+)?)  +\S", commands, re.M)
        self.pages = {name: Page(name, self.run(*name.split(), "--help").stdout) for name in names}
        self.version = self.run("--version").stdout.split()[1]

    @property
    def groups(self):
        """The first words of two-word commands."""
        return list(dict.fromkeys(name.split()[0] for name in self.pages if " " in name))

    def run(self, *arguments):
        return subprocess.run([self.tavi, *arguments], env=self.environment, capture_output=True, text=True, timeout=60)
