"""A machine that qemu boots from a kernel and a folder; it runs until its first process ends."""
import lzma
import os
import re
import subprocess

X86_64 = ["qemu-system-x86_64", "-machine", "q35", "-cpu", "max"]
# Skips the calibration of the clock and the kernel's self-tests.
KERNEL_LINE = "quiet panic=-1 mitigations=off nokaslr cryptomgr.notests tsc=reliable"
XZ_START = b"\xfd7zXZ\0"


def libraries(*programs, folder=None):
    """All files that the loader opens for the programs, and the loader. Searches `folder` before the system's."""
    environment = {**os.environ, "LD_LIBRARY_PATH": str(folder)} if folder else None
    text = "".join(subprocess.run(["ldd", program], check=True, capture_output=True, text=True, env=environment).stdout
                   for program in programs)
    return sorted(set(re.findall(r"(?:=> |^\s*)(/\S+)", text, re.MULTILINE)))


def pack(root, archive):
    """Packs the folder `root` as an initramfs; returns `archive`."""
    with open(archive, "wb") as file:
        subprocess.run("find . | cpio --quiet -o -H newc", shell=True, cwd=root, stdout=file, check=True)
    return archive


def unpacked(packed, target):
    """The ELF file inside a compressed x86 kernel: qemu can start it directly. Decompression in the machine would take
    as long as everything else."""
    content = packed.read_bytes()
    start = content.find(XZ_START)
    if start < 0:
        return packed
    target.write_bytes(lzma.LZMADecompressor().decompress(content[start:]))
    return target


def boot(kernel, archive, seconds, machine=X86_64, memory=768, console="ttyS0"):
    """The machine's output until it powers off. Raises subprocess.TimeoutExpired after `seconds`."""
    text = subprocess.run(
        [*machine, "-m", str(memory), "-nographic", "-no-reboot", "-nic", "none", "-kernel", kernel, "-initrd", archive,
         "-append", f"console={console} {KERNEL_LINE}"],
        stdin=subprocess.DEVNULL, capture_output=True, text=True, errors="replace", timeout=seconds).stdout
    return text.replace("\r", "")


def between_marks(text):
    """The output between "=== begin" and "=== end"."""
    if "=== begin\n" not in text or "=== end" not in text:
        raise AssertionError("the machine did not come to its end:\n" + text)
    return text.split("=== begin\n")[1].split("=== end")[0]
