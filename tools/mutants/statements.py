"""Finds the statements of function bodies that may be deleted, and the conditions of `if` and `while`, in the tokens."""

_NOT_AN_EXPRESSION = {
    "alignas", "auto", "bool", "case", "char", "class", "const", "constexpr", "default", "do", "double", "else", "enum",
    "for", "friend", "goto", "if", "int", "long", "private", "protected", "public", "return", "short", "signed",
    "static", "static_assert", "struct", "switch", "template", "thread_local", "try", "typedef", "typename", "union",
    "unsigned", "using", "void", "while"}
_STATEMENTS_OF_TWO_WORDS = {"Q_EMIT", "delete", "throw"}
_BODY_FOLLOWS = {")", "]", "const", "override", "noexcept", "mutable", "else", "do", "try"}


def _block_depths(source):
    """For each token, how many blocks of the innermost function contain it: 0 outside functions, and in brackets."""
    tokens = source.tokens
    stack, depths = [0], []
    head = set()  # words since the last end of a statement
    for index, token in enumerate(tokens):
        depths.append(stack[-1])
        if token.kind == "sign" and token.text in "([":
            stack.append(0)
        elif token.text in (")", "]"):
            stack.pop()
        elif token.text == "{":
            stack.append(stack[-1] + 1 if _opens_block(tokens, index, stack[-1], head) else 0)
            head &= {":"}
        elif token.text == "}":
            stack.pop()
            head &= {":"}
        elif token.text == ";":
            head.clear()
        else:
            head.add(token.text)
    return depths


def _opens_block(tokens, index, depth, head):
    before = tokens[index - 1].text if index else ""
    if before in _BODY_FOLLOWS or (depth and before in (";", "{", "}", ":")):
        return True
    # A constructor's body after its last initialiser.
    return before == "}" and ":" in head and not head & {"class", "struct", "enum", "namespace"}


def _begins_statement(source, index):
    tokens = source.tokens
    before = tokens[index - 1]
    if before.text in (";", "{", "}", "else", "do"):
        return True
    if before.text == ":":  # a label's, not the one of ?: or of a loop
        return index >= 2 and any(tokens[i].text in ("case", "default") for i in range(max(index - 6, 0), index - 1))
    return before.text == ")" and _follows_condition(source, index)


def _follows_condition(source, index):
    """Whether the bracket before closes the condition of an if or a loop."""
    opening = source.partner.get(index - 1, 0)
    return source.tokens[opening - 1].text in ("if", "for", "while")


def _end_of_statement(source, index):
    """The index of its semicolon, or None."""
    tokens = source.tokens
    while index < len(tokens):
        text = tokens[index].text
        if text == ";":
            return index
        if text in ("}", ")", "]"):
            return None
        index = source.partner.get(index, index) + 1
    return None


def _is_declaration(source, index):
    """Whether a type and a name begin the statement: two words in a row, or a type's arguments, star or ampersand."""
    tokens = source.tokens
    if tokens[index].text in _STATEMENTS_OF_TWO_WORDS:
        return False
    while tokens[index].kind == "word" and tokens[index + 1].text == "::":
        index += 2
    following = tokens[index + 1]
    if following.kind == "word":
        return True
    return following.text in ("<", "*", "&", "&&") and not source.stands_free(index + 1)


def _is_deletable(source, index, depth):
    tokens = source.tokens
    first = tokens[index]
    if first.text == "return":  # the last one of a function is its result
        return depth > 1 or tokens[index - 1].text == ")"
    if first.text in ("++", "--", "*", "("):
        return True
    return first.kind == "word" and first.text not in _NOT_AN_EXPRESSION and not _is_declaration(source, index)


def deletable(source):
    """Pairs of token indexes, first and semicolon, of statements that are no declarations."""
    for index, depth in enumerate(_block_depths(source)):
        if depth == 0 or not _begins_statement(source, index) or not _is_deletable(source, index, depth):
            continue
        end = _end_of_statement(source, index)
        if end is not None:
            yield index, end


def conditions(source):
    """Pairs of token indexes, first and last, of the conditions of `if` and `while`."""
    tokens = source.tokens
    for index, token in enumerate(tokens[:-2]):
        if token.text not in ("if", "while") or tokens[index + 1].text != "(":
            continue
        first, last = index + 2, source.partner[index + 1] - 1
        semicolons = [i for i in range(first, last) if tokens[i].text == ";"]
        if semicolons:
            yield semicolons[-1] + 1, last
        elif tokens[first].text not in _NOT_AN_EXPRESSION and not _is_declaration(source, first):
            yield first, last
