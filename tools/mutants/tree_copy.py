"""The copy of the tree that mutants are made of: the checkout is never changed, and may change while they run."""
import subprocess
from pathlib import Path


def _own_files(checkout):
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=checkout,
                            check=True, stdout=subprocess.PIPE).stdout.decode()
    return {name for name in listed.split("\0") if name and (checkout / name).is_file()}


def update(checkout, copy):
    """Makes `copy` equal to `checkout`. Identical files keep their times, so that little is rebuilt."""
    names = _own_files(checkout)
    for name in names:
        source, target = checkout / name, copy / name
        content = source.read_bytes()
        if target.is_file() and target.read_bytes() == content:
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)
        target.chmod(source.stat().st_mode)
    for target in copy.rglob("*"):
        name = str(target.relative_to(copy))
        if target.is_file() and not name.startswith("build/") and name not in names:
            target.unlink()
