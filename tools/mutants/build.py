"""Builds the copy of the tree, and what a change of one of its files makes anew, beside that build.

The state of the build is read once and never changes: any number of threads may try changes, each in a folder of its
own.
"""
import contextlib
import json
import os
import re
import shutil
import subprocess
import threading
from dataclasses import dataclass
from pathlib import Path

import tree_copy

LIBRARY = "taviinputmanager"
# Folders of the library's rooms, in which changes are made. A room's own folders belong to it.
ROOMS = ("core", "slots", "simulators", "handlers", "record")


class BuildFailed(Exception):
    pass


def _run(command, folder):
    """Runs a command line of the build, without the compiler's cache: nobody will build this again."""
    environment = dict(os.environ, CCACHE_DISABLE="1", LC_ALL="C")
    if subprocess.run(command, shell=True, cwd=folder, env=environment, stdout=subprocess.DEVNULL,
                      stderr=subprocess.DEVNULL).returncode != 0:
        raise BuildFailed


def _output_of(command):
    return re.search(r" -o (\S+)", command).group(1)


class SharedTree:
    """Who compiles a source of its own reads the headers; who changes a header is alone."""

    def __init__(self):
        self._condition = threading.Condition()
        self._readers = 0

    @contextlib.contextmanager
    def reading(self):
        with self._condition:
            self._readers += 1
        try:
            yield
        finally:
            with self._condition:
                self._readers -= 1
                self._condition.notify_all()

    @contextlib.contextmanager
    def alone(self):
        with self._condition:
            self._condition.wait_for(lambda: self._readers == 0)
            yield


@dataclass
class ChangedFile:
    """A file of the tree and what it is to hold instead. What is built of it goes to `spare`."""
    path: str  # from the root
    text: str
    spare: Path

    @property
    def own_file(self):
        """Where a source is compiled from. The name stays: a compiler writes it into objects."""
        return self.spare / Path(self.path).name


class Build:
    """`root` is the copy; `folder` its build."""

    def __init__(self, checkout, work):
        self.checkout = checkout
        self.root = work / "tree"
        self.folder = self.root / "build" / "mutants"
        self._tree = SharedTree()

    def update(self):
        tree_copy.update(self.checkout, self.root)
        subprocess.run(["cmake", "--preset", "mutants"], cwd=self.root, check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", "--preset", "mutants"], cwd=self.root, check=True)
        self._read_commands()

    def sources(self):
        """Files of the rooms that this platform compiles, from the root."""
        files = [file for room in ROOMS for file in (self.root / room).rglob("*") if file.suffix in (".h", ".cpp")]
        return [str(file.relative_to(self.root)) for file in sorted(files) if not file.stem.endswith("_windows")]

    def library(self):
        return self.folder / _output_of(self._link_command(LIBRARY))

    def make(self, changed, targets):
        """Links `targets` with the changed file: each file that the build had linked, with the new one. Empty if no
        object becomes another one. BuildFailed if it is no program."""
        shutil.rmtree(changed.spare, ignore_errors=True)
        objects = {}
        with self._in_place(changed):
            for name in self._objects_of(changed.path, targets):
                made = changed.spare / name
                self._compile(name, changed, made)
                if self._code(made) != self._code(self.folder / name, changed.spare):
                    objects[name] = made
        return {self.folder / _output_of(self._link_command(target)): self._link(target, objects, changed.spare)
                for target in targets if objects.keys() & set(self._link_command(target).split())}

    def is_same_when_optimised(self, changed):
        """Whether the optimiser makes the same code of the changed file: then nothing can tell them apart."""
        original = ChangedFile(changed.path, (self.root / changed.path).read_text(), changed.spare)
        return self._optimised(original) == self._optimised(changed)

    # ---- What the build says of itself ----

    def _read_commands(self):
        entries = json.loads((self.folder / "compile_commands.json").read_text())
        self._compile_commands = {_output_of(entry["command"]): entry["command"] for entry in entries}
        self._link_commands = {}
        self._dependents = {}  # objects that read a file
        for paragraph in self._ninja("-t", "deps").split("\n\n"):
            head, *files = paragraph.strip().split("\n")
            for file in files:
                path = os.path.relpath(os.path.normpath(self.folder / file.strip()), self.root)
                self._dependents.setdefault(path, []).append(head.split(":")[0])

    def _link_command(self, target):
        if target not in self._link_commands:
            commands = self._ninja("-t", "commands", target).strip().split("\n")
            self._link_commands[target] = [text for text in commands if text.startswith(": && ")][-1].split(" && ")[1]
        return self._link_commands[target]

    def _ninja(self, *arguments):
        return subprocess.run(["ninja", *arguments], cwd=self.folder, check=True,
                              stdout=subprocess.PIPE).stdout.decode()

    def _objects_of(self, path, targets):
        linked = {word for target in targets for word in self._link_command(target).split()}
        return [name for name in self._dependents.get(path, []) if name in linked]

    # ---- A changed file ----

    @contextlib.contextmanager
    def _in_place(self, changed):
        """A source is compiled from a file of its own. A header has to be where it was: others include it."""
        if changed.path.endswith(".cpp"):
            changed.spare.mkdir(parents=True, exist_ok=True)
            changed.own_file.write_text(changed.text)
            with self._tree.reading():
                yield
            return
        file = self.root / changed.path
        with self._tree.alone():
            original, times = file.read_bytes(), file.stat()
            try:
                file.write_text(changed.text)
                yield
            finally:
                file.write_bytes(original)
                os.utime(file, ns=(times.st_atime_ns, times.st_mtime_ns))

    def _compile(self, name, changed, made):
        made.parent.mkdir(parents=True, exist_ok=True)
        _run(self._command_for(name, changed).replace(f" -o {name}", f" -o {made}"), self.folder)

    def _command_for(self, name, changed):
        command = self._compile_commands[name]
        if changed.path.endswith(".cpp"):
            command = command.replace(f" -c {self.root / changed.path}", f" -c {changed.own_file}")
        return command

    def _optimised(self, changed):
        """The code of the library's objects that read the file. The precompiled header is for unoptimised code; the
        trace of blocks would keep them apart."""
        codes, made = [], changed.spare / "optimised.o"
        with self._in_place(changed):
            for name in self._objects_of(changed.path, [LIBRARY]):
                command = self._command_for(name, changed)
                command = re.sub(r" -include \S+cmake_pch\.hxx| -fsanitize-coverage=\S+", "", command)
                _run(command.replace(f" -o {name}", f" -O2 -g0 -o {made}"), self.folder)
                codes.append(self._code(made))
        return codes

    @staticmethod
    def _code(file, folder=None):
        """An object's content without numbers of lines."""
        bare = (folder or file.parent) / "bare.o"
        subprocess.run(["objcopy", "--strip-debug", file, bare], check=True)
        return bare.read_bytes()

    def _link(self, target, objects, spare):
        command = self._link_command(target)
        output = _output_of(command)
        soname = re.search(r"-soname,(\S+)", command)
        made = spare / "linked" / (soname.group(1) if soname else output)
        made.parent.mkdir(parents=True, exist_ok=True)
        words = [str(objects.get(word, made if word == output else word)) for word in command.split()]
        _run(" ".join(words), self.folder)
        return made
