"""Builds the copy of the tree, and, outside that build, the targets that a change of one of its files requires.

The state of the build is read once and never changes: any number of threads may try changes, each in a folder of its
own.
"""
import json
import os
import re
import shutil
import subprocess
from dataclasses import dataclass, replace
from pathlib import Path

import listing
import tree_copy

LIBRARY = "taviinputmanager"
# Folders of the library in which changes are made, including their subfolders.
FOLDERS = ("core", "slots", "simulators", "handlers", "record", "entry")


class BuildFailed(Exception):
    pass


def _run(command, folder):
    """Runs a command line of the build, without the compiler cache: this is never built again."""
    environment = dict(os.environ, CCACHE_DISABLE="1", LC_ALL="C")
    if subprocess.run(command, shell=True, cwd=folder, env=environment, stdout=subprocess.DEVNULL,
                      stderr=subprocess.DEVNULL).returncode != 0:
        raise BuildFailed


def _output_of(command):
    return re.search(r" -o (\S+)", command).group(1)


@dataclass
class ChangedFile:
    """A file of the tree and its new content. Builds from it go to `spare`."""
    path: str  # from the root
    line: int  # the changed one
    text: str
    spare: Path

    def compiled(self, command, root):
        """A compiler's command for an object, made to read this file. All includes begin at the root, so that a header
        is found in the folder that comes first."""
        own_root = self.spare / "source"
        file = own_root / self.path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(self.text)
        return command.replace(f" -c {root / self.path}", f" -c {file}").replace(" -o ", f" -iquote {own_root} -o ", 1)


class Build:
    """`root` is the copy; `folder` its build."""

    def __init__(self, checkout, work):
        self.checkout = checkout
        self.root = work / "tree"
        self.folder = self.root / "build" / "mutants"

    def update(self):
        tree_copy.update(self.checkout, self.root)
        subprocess.run(["cmake", "--preset", "mutants"], cwd=self.root, check=True, stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", "--preset", "mutants"], cwd=self.root, check=True)
        self._read_commands()

    def sources(self):
        """The library's files that this platform compiles, relative to the root."""
        files = [file for folder in FOLDERS for file in (self.root / folder).rglob("*") if file.suffix in (".h", ".cpp")]
        return [str(file.relative_to(self.root)) for file in sorted(files) if not file.stem.endswith("_windows")]

    def library(self):
        return self.folder / _output_of(self._link_command(LIBRARY))

    def make(self, changed, targets):
        """Links `targets` with the changed file: each file that the build had linked, with the new one. Empty if no
        object becomes another one. BuildFailed if it is no program."""
        shutil.rmtree(changed.spare, ignore_errors=True)
        objects = {}
        for name in {name for target in targets for name in self._objects_of(changed, target)}:
            made = changed.spare / name
            self._compile(name, changed, made)
            if self._code(made) != self._code(self.folder / name, changed.spare):
                objects[name] = made
        return {self.folder / _output_of(self._link_command(target)): self._link(target, objects, changed.spare)
                for target in targets if objects.keys() & set(self._link_command(target).split())}

    def includes(self, program, path):
        """Whether the program compiles the file itself, and not only the library does."""
        folder = f"/CMakeFiles/{program.name}.dir/"
        return any(folder in f"/{name}" for name in self._dependents.get(path, ()))

    def is_same_when_optimised(self, changed):
        """Whether the optimizer generates the same code from the changed file: then no test can detect the change."""
        text = (self.root / changed.path).read_text()
        return self._optimised(replace(changed, text=text)) == self._optimised(changed)

    # ---- Queries about the build ----

    def _read_commands(self):
        entries = json.loads((self.folder / "compile_commands.json").read_text())
        self._compile_commands = {_output_of(entry["command"]): entry["command"] for entry in entries}
        self._link_commands = {}
        self._defined = {}
        self._functions = listing.functions_of_lines(self.library(), self.root)
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

    # ---- A changed file ----

    def _objects_of(self, changed, target):
        """The target's objects that a change affects. A header's function is in many objects, of which the linker uses
        the first: rebuilding that one is enough. A header's constant may be anywhere."""
        linked = self._link_command(target).split()
        dependents = [name for name in self._dependents.get(changed.path, ()) if name in linked]
        functions = self._functions.get(f"{changed.path}:{changed.line}", ())
        if changed.path.endswith(".cpp") or not functions:
            return dependents
        makers = [[name for name in dependents if function in self._defined_in(name) and "/mocs_" not in name]
                  for function in functions]
        return {names[0] for names in makers if names}

    def _defined_in(self, name):
        if name not in self._defined:
            command = ["nm", "--defined-only", "--format=just-symbols", name]
            listed = subprocess.run(command, cwd=self.folder, check=True, stdout=subprocess.PIPE)
            self._defined[name] = set(listed.stdout.decode().split("\n"))
        return self._defined[name]

    def _compile(self, name, changed, made):
        made.parent.mkdir(parents=True, exist_ok=True)
        command = changed.compiled(self._compile_commands[name], self.root)
        _run(command.replace(f" -o {name}", f" -o {made}"), self.folder)

    def _optimised(self, changed):
        """The code of the library's objects that the change concerns. The precompiled header is for unoptimised code;
        the trace of blocks would keep them apart."""
        codes, made = [], changed.spare / "optimised.o"
        for name in self._objects_of(changed, LIBRARY):
            command = changed.compiled(self._compile_commands[name], self.root)
            command = re.sub(r" -include \S+cmake_pch\.hxx| -fsanitize-coverage=\S+", "", command)
            _run(command.replace(f" -o {name}", f" -O2 -g0 -o {made}"), self.folder)
            codes.append(self._code(made))
        return codes

    @staticmethod
    def _code(file, folder=None):
        """An object's content without line numbers."""
        bare = (folder or file.parent) / "bare.o"
        subprocess.run(["objcopy", "--strip-debug", file, bare], check=True)
        return bare.read_bytes()

    def _link(self, target, objects, spare):
        """New objects come first: if several define a function, the linker takes the first."""
        command = self._link_command(target)
        output = _output_of(command)
        soname = re.search(r"-soname,(\S+)", command)
        made = spare / "linked" / (soname.group(1) if soname else output)
        made.parent.mkdir(parents=True, exist_ok=True)
        words = command.split()
        new = [str(objects[word]) for word in words if word in objects]
        at = words.index(output)
        others = [word for word in words[at + 1:] if word not in objects]
        _run(" ".join([*words[:at], str(made), *new, *others]), self.folder)
        return made
