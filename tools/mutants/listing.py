"""The lines of the library, from its disassembly."""
import os
import re
import subprocess

_ANNOTATION = re.compile(r"^(\S+\.(?:cpp|h)):(\d+)(?: \(discriminator \d+\))?$")
_INSTRUCTION = re.compile(r"^\s*([0-9a-f]+):\t(.*)$")
_FUNCTION = re.compile(r"^[0-9a-f]+ <(.+)>:$")
_TRACE_CALL = "<__sanitizer_cov_trace_pc"


def _read(library, root):
    """Steps through the code: ("function", its symbol), ("line", "path:line") and ("code", address, instruction)."""
    listed = subprocess.run(["objdump", "-d", "-l", "--no-show-raw-insn", library], check=True, cwd=library.parent,
                            stdout=subprocess.PIPE).stdout.decode(errors="replace")
    for text in listed.split("\n"):
        if instruction := _INSTRUCTION.match(text):
            yield "code", int(instruction.group(1), 16), instruction.group(2)
        elif function := _FUNCTION.match(text):
            yield "function", function.group(1)
        elif annotation := _ANNOTATION.match(text):
            path = os.path.relpath(os.path.normpath(library.parent / annotation.group(1)), root)
            yield "line", f"{path}:{annotation.group(2)}"


def lines_of_blocks(library, root):
    """For each return address of a block's trace call, the lines of the block: those up to the next call. A function's
    first instructions precede its first call."""
    blocks, block, line = {}, set(), ""
    in_prologue = is_call_before = False
    for kind, what, *more in _read(library, root):
        if kind == "function":
            block, in_prologue, line = set(), True, ""
        elif kind == "line":
            line = what
            block.add(line)
        else:
            if is_call_before:
                block = blocks.setdefault(what, block if in_prologue else {line})
                in_prologue = False
            is_call_before = _TRACE_CALL in more[0]
    return {address: {line for line in lines if line and not line.startswith("..")}  # of the tree
            for address, lines in blocks.items()}


def functions_of_lines(library, root):
    """For each line with code, the symbols of the functions that it is part of."""
    functions, symbol = {}, ""
    for kind, what, *_ in _read(library, root):
        if kind == "function":
            symbol = what
        elif kind == "line":
            functions.setdefault(what, set()).add(symbol)
    return functions
