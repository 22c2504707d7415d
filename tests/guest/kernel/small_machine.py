"""A machine that qemu boots from a kernel and a folder, for as long as its first process runs."""
import lzma
import os
import re
import subprocess

X86_64 = ["qemu-system-x86_64", "-machine", "q35", "-cpu", "max"]
# No clock is waited for and no test of the kernel's own is run.
KERNEL_LINE = "quiet panic=-1 mitigations=off nokaslr cryptomgr.notests tsc=reliable"
XZ_START = b"\xfd7zXZ\0"


def libraries(*programs, folder=None):
    """All that the loader opens for the programs, itself included; libraries of `folder` before the system's."""
    environment = {**os.environ, "LD_LIBRARY_PATH": str(folder)} if folder else None
    text = "".join(subprocess.run(["ldd", program], check=True, capture_output=True, text=True, env=environment).stdout
                   for program in programs)
    return sorted(set(re.findall(r"(?:=> |^\s*)(/\S+)", text, re.MULTILINE)))


def pack(root, archive):
    """Makes the file system that a kernel unpacks of the folder `root`; returns `archive`."""
    with open(archive, "wb") as file:
        subprocess.run("find . | cpio --quiet -o -H newc", shell=True, cwd=root, stdout=file, check=True)
    return archive


def unpacked(packed, target):
    """An x86 kernel without its own unpacking, which takes as long as all the rest: qemu starts an ELF file as it
    is."""
    content = packed.read_bytes()
    start = content.find(XZ_START)
    if start < 0:
        return packed
    target.write_bytes(lzma.LZMADecompressor().decompress(content[start:]))
    return target


def boot(kernel, archive, seconds, machine=X86_64, memory=768, console="ttyS0"):
    """All that the machine prints until it is off. subprocess.TimeoutExpired when that takes more than `seconds`."""
    text = subprocess.run(
        [*machine, "-m", str(memory), "-nographic", "-no-reboot", "-nic", "none", "-kernel", kernel, "-initrd", archive,
         "-append", f"console={console} {KERNEL_LINE}"],
        stdin=subprocess.DEVNULL, capture_output=True, text=True, errors="replace", timeout=seconds).stdout
    return text.replace("\r", "")


def between_marks(text):
    """What was printed from "=== begin" to "=== end"."""
    if "=== begin\n" not in text or "=== end" not in text:
        raise AssertionError("the machine did not come to its end:\n" + text)
    return text.split("=== begin\n")[1].split("=== end")[0]
