"""All small changes that a source file offers: one operator, one constant, one condition, or one statement less."""
import re
from dataclasses import dataclass

import statements
from tokens import Source

_BINARY = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
    "&&": ("||",), "||": ("&&",),
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",),
    "|": ("&",), "&": ("|",), "<<": (">>",), ">>": ("<<",),
    "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",), "|=": ("&=",), "&=": ("|=",),
}
_STEPS = {"++": "--", "--": "++"}
_WORDS = {"true": "false", "false": "true"}
# A minus or a star after one of these is unary.
_NO_OPERAND = {"(", "[", "{", ",", "=", "return", "?", ":", "<", ">", "<=", ">=", "==", "!=", "&&", "||", "+", "-", "*",
               "/", "%", "case"}


@dataclass(frozen=True)
class Change:
    path: str    # of the file, from the root of the tree
    line: int    # from 1 on, like the column
    column: int
    start: int   # text[start:end] becomes `by`
    end: int
    by: str
    label: str   # the change in a few words
    before: str  # the lines that change, as one line
    after: str
    function: str  # whose body it is in; empty in a class

    def apply(self, text):
        return text[:self.start] + self.by + text[self.end:]

    @property
    def key(self):
        """Its identity, independent of folder and line: names of file and function, lines before and after."""
        return self.path.rsplit("/", 1)[-1], self.function, self.before, self.after


def _numbers(text):
    """Neighbours of a literal, in the same notation."""
    digits = text.replace("'", "")
    try:
        if any(sign in digits for sign in ".eE") and not digits.startswith("0x"):
            return [repr(float(digits) + 1)]
        value = int(digits, 0)
    except ValueError:
        return []  # it has a suffix
    write = hex if digits.startswith("0x") else str
    return [write(value + 1)] + ([write(value - 1)] if value else [])


def _is_pure(source, index):
    """The zero of a pure virtual function."""
    texts = [token.text for token in source.tokens[max(index - 2, 0):index]]
    return texts[-1:] == ["="] and texts[0] in (")", "const", "override", "noexcept")


def _of_token(source, index):
    """Pairs of replacement and label for one token."""
    token = source.tokens[index]
    before = source.tokens[index - 1].text if index else ""
    if token.kind == "number" and not _is_pure(source, index):
        return [(by, f"`{token.text}` -> `{by}`") for by in _numbers(token.text)]
    if token.text in _WORDS and token.kind == "word":
        return [(_WORDS[token.text], f"`{token.text}` -> `{_WORDS[token.text]}`")]
    if token.kind != "sign" or before == "operator":
        return []
    if token.text in _STEPS:
        return [(_STEPS[token.text], f"`{token.text}` -> `{_STEPS[token.text]}`")]
    if token.text == "!" or (token.text == "-" and before in _NO_OPERAND):
        return [("", f"`{token.text}` dropped")]
    if token.text in _BINARY and source.stands_free(index):
        return [(by, f"`{token.text}` -> `{by}`") for by in _BINARY[token.text]]
    return []


def _is_negated_by_its_sign(condition):
    """Whether replacing its only sign negates it, which another change already does."""
    texts = {token.text for token in condition}
    return not texts & {"&&", "||"} and (condition[0].text == "!" or bool(texts & {"<", "<=", ">", ">=", "==", "!="}))


def _spans(source):
    """Start, end, replacement and label of every change."""
    tokens = source.tokens
    for index, token in enumerate(tokens):
        for by, label in _of_token(source, index):
            yield token.start, token.end, by, label
    for first, last in statements.conditions(source):
        if _is_negated_by_its_sign(tokens[first:last + 1]):
            continue
        start, end = tokens[first].start, tokens[last].end
        yield start, end, f"!({source.text[start:end]})", "condition negated"
    for first, semicolon in statements.deletable(source):
        start, end = tokens[first].start, tokens[semicolon].start
        yield start, end, "", "statement deleted"
        if tokens[first].text == "return" and any(token.text == "(" for token in tokens[first:semicolon]):
            yield start, tokens[first + 1].start, "", "`return` dropped"


def _function_at(text, start):
    """Namespaces indent nothing: the head of a function begins at the margin."""
    heads = re.findall(r"^[A-Za-z][^\n;=]*?([~\w]+)\(", text[:start], re.MULTILINE)
    return heads[-1] if heads else ""


def find(path, text):
    """Every Change of a file."""
    source = Source(text)
    for start, end, by, label in _spans(source):
        first, last = source.span_of_lines(start, end)
        line, column = source.position(start)
        yield Change(path, line, column, start, end, by, label, before=" ".join(text[first:last].split()),
                     after=" ".join((text[first:start] + by + text[end:last]).split()),
                     function=_function_at(text, start))
