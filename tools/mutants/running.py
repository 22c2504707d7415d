"""The tests as ctest lists them, each run in a separate process."""
import json
import os
import resource
import shutil
import signal
import subprocess
import time
from dataclasses import dataclass, field
from pathlib import Path

# They build other trees, boot other systems, or take minutes.
_LEFT_OUT = ("Build.", "KernelGuest", "Windows", "Soak", "WrittenRecords", "KeymapSchema")
_MEMORY = 4 << 30
_FILE = 1 << 28


@dataclass(frozen=True)
class Test:
    name: str
    command: tuple
    folder: str = field(compare=False)
    environment: dict = field(compare=False)
    skipped: int = field(compare=False)  # exit status of a test that does not apply here

    @property
    def program(self):
        return Path(self.command[0])


def _read(entry):
    properties = {each["name"]: each["value"] for each in entry.get("properties", [])}
    environment = dict(text.split("=", 1) for text in properties.get("ENVIRONMENT", []))
    name = entry["name"].split("  # ")[0]  # followed by the value of a parameter
    return Test(name, tuple(entry["command"]), properties.get("WORKING_DIRECTORY", "."), environment,
                int(properties.get("SKIP_RETURN_CODE", 0)))


def list_tests(build_folder):
    listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=build_folder, check=True, stdout=subprocess.PIPE)
    return [_read(entry) for entry in json.loads(listed.stdout)["tests"] if not entry["name"].startswith(_LEFT_OUT)]


def _bound():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_AS, (_MEMORY, _MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (_FILE, _FILE))


class Runner:
    """What tests write goes to `scratch`, which is empty at the beginning."""

    def __init__(self, scratch):
        self._scratch = scratch
        shutil.rmtree(scratch, ignore_errors=True)
        scratch.mkdir(parents=True)

    def run(self, test, limit, replaced=None, **environment):
        """How it ended and in how many seconds: "passed", "failed", "crashed" or "hung". `replaced` names files that
        replace others: shared libraries, and the program itself."""
        replaced = replaced or {}
        libraries = ":".join(str(made.parent) for made in replaced.values() if ".so" in made.name)
        everything = dict(os.environ, TMPDIR=str(self._scratch), HOME=str(self._scratch), LD_LIBRARY_PATH=libraries,
                          **test.environment, **environment)
        command = [str(replaced.get(test.program, test.program)), *test.command[1:]]
        start = time.monotonic()
        process = subprocess.Popen(command, cwd=test.folder, env=everything, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True,
                                   preexec_fn=_bound)
        try:
            status = process.wait(limit)
            ending = "passed" if status in (0, test.skipped) else "failed" if status > 0 else "crashed"
        except subprocess.TimeoutExpired:
            ending = "hung"
        finally:
            self._end_group(process)
        return ending, time.monotonic() - start

    @staticmethod
    def _end_group(process):
        """Also ends the processes that the test left behind."""
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        process.wait()
