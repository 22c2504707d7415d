"""The manual page of `tavi`, generated from its help pages."""
import re

HEAD = r'''.\" Made by tools/make_command_files.py of what tavi --help says.
.TH TAVI 1 "" "tavi @VERSION@" "User Commands"
.SH NAME
tavi \- shows, plays, checks and draws keymaps for an Android guest
'''
TAIL = r'''.SH EXIT STATUS
.TP
.B 0
All went well.
.TP
.B 1
A command found something wrong, or could not finish.
.TP
.B 2
The command line, or a file that it names, cannot be used.
.SH ENVIRONMENT
.TP
.B QT_QPA_PLATFORM
The window system that
.B tavi window
uses, as for every program of Qt. The other commands need none.
.TP
.B SDL_GAMECONTROLLERCONFIG
Descriptions of gamepads that
.B tavi window
does not know by itself.
.SH SEE ALSO
.BR evtest (1),
.BR xev (1)
'''


def escaped(text):
    text = text.replace("\\", r"\e").replace("-", r"\-").replace("'", r"\(aq").replace("`", r"\(ga")
    return re.sub(r"^\.", r"\\&.", text, flags=re.M)


def literal(lines):
    return ".P\n.RS 4\n.EX\n" + "".join(f"{escaped(line)}\n" for line in lines) + ".EE\n.RE\n"


def entry(term, words):
    return f".TP\n{term}\n{escaped(words)}\n"


def term_of(line):
    """An option in bold, its value in italics; any other word in bold."""
    option, _, value = line.partition(" ")
    return f".BI {escaped(option)} \" {value}\"" if value else f".B {escaped(option)}"


def indented(lines):
    """A list if the words are in two columns, otherwise literal."""
    if not any(re.match(r"^  \S.*?  +\S", line) for line in lines):
        return literal([line.strip() for line in lines])
    out = []
    for line in lines:
        match = re.match(r"^  (\S.*?)(?:  +(\S.*))?$", line)
        if match:
            out.append([match[1], match[2] or ""])
        else:
            out[-1][1] = f"{out[-1][1]} {line.strip()}".strip()
    return "".join(entry(term_of(term), words) for term, words in out)


def paragraph(text):
    out, lines = "", text.splitlines()
    while lines:
        is_indented = lines[0].startswith("  ")
        count = next((i for i, line in enumerate(lines) if line.startswith("  ") != is_indented), len(lines))
        part, lines = lines[:count], lines[count:]
        out += indented(part) if is_indented else ".P\n" + escaped("\n".join(part)) + "\n"
    return out


def section(page):
    out = f".SS tavi {escaped(page.command)}\n"
    for usage in page.usage:
        out += f".P\n.B {escaped(usage)}\n"
    out += "".join(paragraph(text) for text in page.body)
    return out + ".P\nExample:\n" + literal(page.example.rstrip("\n").split("\n"))


def man_page(pages):
    overview = pages.overview
    out = HEAD.replace("@VERSION@", pages.version) + ".SH SYNOPSIS\n"
    out += "".join(f".B {escaped(page.usage[0])}\n.br\n" for page in pages.pages.values())
    out += ".B tavi help\n.I COMMAND\n.br\n.B tavi \\-\\-version\n"
    out += ".SH DESCRIPTION\n" + paragraph(overview.body[0]).replace(".P\n", "", 1)
    out += ".SH OPTIONS\n" + "".join(entry(f".B {escaped(option.name)}", option.text) for option in overview.options)
    out += ".SH COMMANDS\n" + "".join(section(page) for page in pages.pages.values())
    return out + TAIL
