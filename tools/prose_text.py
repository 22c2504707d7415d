"""The prose of a file of this tree: the text for its readers, without the code."""
import re
from typing import NamedTuple

FENCE = re.compile(r"^ *```")
NOT_PROSE_LINE = re.compile(r"^(#|\||<!--|!\[|    \S)")
LIST_MARK = re.compile(r"^\s*(?:[-*]|\d+\.) ")
TABLE_RULE = re.compile(r"^\|[-| ]+\|$")
COMMENT = re.compile(r"^(?P<code>(?:[^\"'/]|/(?!/)|\"(?:[^\"\\]|\\.)*\"|'(?:[^'\\]|\\.)*')*)//(?P<text>.*)$")
RULE = re.compile(r"-{4}")
HASH_COMMENT = re.compile(r"^\s*#(?:!.*| ?(.*))$")
DOCSTRING = re.compile(r'"""(.*?)"""', re.DOTALL)
LITERAL = re.compile(r'R"\((.*?)\)"|"((?:[^"\\\n]|\\.)*)"', re.DOTALL)


class Passage(NamedTuple):
    line: int  # where it starts, from 1
    text: str  # on one line
    is_running: bool  # sentences, not a heading, a cell or a note beside code


def joined(lines):
    return " ".join(" ".join(lines).split())


def markdown_passages(text):
    start, lines, in_fence = 0, [], False

    def taken():
        passage = Passage(start, joined(lines), True)
        lines.clear()
        return [passage] if passage.text else []

    for number, line in enumerate(text.splitlines(), 1):
        if FENCE.match(line):
            in_fence = not in_fence
            yield from taken()
        elif in_fence or not line.strip():
            yield from taken()
        elif NOT_PROSE_LINE.match(line):
            yield from taken()
            cells = line.strip("|").split(" | ") if line.startswith("|") and not TABLE_RULE.match(line) else []
            yield from (Passage(number, cell.strip(), False) for cell in cells or [line.lstrip("# ")] if cell.strip("|- "))
        else:
            if LIST_MARK.match(line):
                yield from taken()
            if not lines:
                start = number
            lines.append(LIST_MARK.sub("", line))
    yield from taken()


def comment_passages(text):
    start, lines = 0, []
    for number, line in enumerate([*text.splitlines(), ""], 1):
        found = COMMENT.match(line)
        is_block = found and not found["code"].strip()
        words = found["text"].strip() if found and not RULE.search(found["text"]) else ""
        if lines and not (is_block and words and not words.startswith("- ")):
            yield Passage(start, joined(lines), True)
            lines.clear()
        if found and not is_block:
            yield Passage(number, words, False)
        elif words:
            start = start if lines else number
            lines.append(words.removeprefix("- "))


def literal_passages(text):
    """The texts in a program's source: string literals of several words; adjacent literals are one text."""
    code = "\n".join("" if line.lstrip().startswith(("#include", "//")) else line for line in text.split("\n"))
    end, start, parts = 0, 0, []
    for found in [*LITERAL.finditer(code), None]:
        if parts and (not found or code[end:found.start()].strip()):
            words = joined("".join(parts).replace("\\n", "\n").split("\n"))
            if " " in words:
                yield Passage(start, words, False)
            parts = []
        if found:
            if not parts:
                start = code.count("\n", 0, found.start()) + 1
            parts.append(found[1] or found[2] or "")
            end = found.end()


def hash_passages(text):
    """The comments of a script and of CMake, and the docstrings of Python."""
    for found in DOCSTRING.finditer(text):
        yield Passage(text.count("\n", 0, found.start()) + 1, joined(found[1].split("\n")), False)
    start, lines = 0, []
    for number, line in enumerate([*text.splitlines(), ""], 1):
        found = HASH_COMMENT.match(line)
        if lines and not (found and found[1]):
            yield Passage(start, joined(lines), False)
            lines.clear()
        if found and found[1]:
            start = start if lines else number
            lines.append(found[1])


KINDS = {".md": [markdown_passages], ".h": [comment_passages], ".cpp": [comment_passages, literal_passages],
         ".py": [hash_passages], ".sh": [hash_passages], ".cmake": [hash_passages], ".txt": [hash_passages],
         ".yaml": [hash_passages], "": [hash_passages]}


def passages(path):
    text = path.read_text(encoding="utf-8")
    return [passage for kind in KINDS[path.suffix] for passage in kind(text)]


# A full stop before a lower-case letter belongs to an abbreviation.
SENTENCE_END = re.compile(r"(?<=[\w`)\"*\]][.!?]) +(?=[A-Z0-9`\"*\[(])")
WORD = re.compile(r"\w+")
LINK = re.compile(r"\[[^]]*\]\([^)]*\)")


def sentences(path):
    """Where each sentence of the running text starts, and the sentence."""
    for passage in passages(path):
        if passage.is_running:
            yield from ((passage.line, part) for part in SENTENCE_END.split(passage.text)
                        if len(WORD.findall(LINK.sub("", part))) > 2)
