"""The tokens of a C++ source: comments, preprocessor lines and the text of literals are excluded from changes."""
import re
from bisect import bisect_right
from dataclasses import dataclass

_PATTERN = re.compile(r"""
    (?P<skip>    //[^\n]* | /\*.*?\*/ | ^[ \t]*\#(?:[^\n\\]|\\.)* | \s+ )
  | (?P<text>    (?:u8|[uULR])?"(?:[^"\\\n]|\\.)*" | [uUL]?'(?:[^'\\\n]|\\.)*' )
  | (?P<number>  \.?\d(?:[eEpP][+-]|['\w.])* )
  | (?P<word>    [A-Za-z_]\w* )
  | (?P<sign>    <<=|>>=|<=>|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|. )
""", re.VERBOSE | re.DOTALL | re.MULTILINE)


@dataclass(frozen=True)
class Token:
    kind: str  # text, number, word or sign
    text: str
    start: int
    end: int


class Source:
    """A file's text, its tokens, and the bracket that closes each bracket (by index of token, both ways)."""

    def __init__(self, text):
        self.text = text
        self.tokens = [Token(match.lastgroup, match.group(), match.start(), match.end())
                       for match in _PATTERN.finditer(text) if match.lastgroup != "skip"]
        self._line_starts = [0] + [match.end() for match in re.finditer("\n", text)]
        self.partner = self._pair_brackets()

    def position(self, offset):
        """Line and column, both from 1 on."""
        line = bisect_right(self._line_starts, offset)
        return line, offset - self._line_starts[line - 1] + 1

    def span_of_lines(self, start, end):
        """Where the lines begin and end that hold text[start:end]."""
        last = self.text.find("\n", end)
        return self.text.rfind("\n", 0, start) + 1, len(self.text) if last < 0 else last

    def stands_free(self, index):
        """Whether there is white space on both sides: the form of every binary operator here. Without it, `<` opens
        template arguments, and `*` and `&` belong to a type."""
        token = self.tokens[index]
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()

    def _pair_brackets(self):
        partner, open_ones = {}, []
        for index, token in enumerate(self.tokens):
            if token.kind != "sign":
                continue
            if token.text in "([{":
                open_ones.append(index)
            elif token.text in ")]}" and open_ones:
                partner[index] = open_ones.pop()
                partner[partner[index]] = index
        return partner
