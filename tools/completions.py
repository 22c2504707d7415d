"""Completion of `tavi` for shells, generated from its help pages."""

# The endings of file names, by command and by the placeholder for the name in its usage or options.
KEYMAPS, RECORDS, PICTURES = ("yaml", "yml"), ("json",), ("png", "jpg", "jpeg", "webp", "bmp")
FILES = {
    "KEYMAP": KEYMAPS,
    "SCRIPT": ("txt",),
    "check FILE": KEYMAPS,
    "record info FILE": RECORDS,
    "record play FILE": RECORDS,
    "record merge FILE": RECORDS,
    "record merge TARGET": RECORDS,
    "record draw FILE": RECORDS,
    "record draw PICTURE": ("svg",),
    "draw PICTURE": ("svg", "png"),
    "--joystick": KEYMAPS,
    "--record": RECORDS,
    "--replay": RECORDS,
    "--svg": ("svg",),
    "--picture": ("png",),
    "--background": PICTURES,
    "--input": (),  # any
}
# The choices for other values, by their placeholder.
WORDS = {
    "WxH": "1280x720 1920x1080 2560x1440",
    "SYSTEM": "linux android",
    "DEG": "0 90 180 270",
}
MADE = "# Made by tools/make_command_files.py of what tavi --help says."


def endings(command, option, value):
    """The endings of a file name, () for any; None if the value is not a file."""
    for key in (option, f"{command} {value}", value):
        if key in FILES:
            return FILES[key]
    return () if value == "FILE" else None


def operand(page):
    """The arguments after a command's options: the endings of its files, or None."""
    words = page.usage[0].replace("[", " ").replace("]", " ").replace("...", " ").split()
    known = [endings(page.command, "", word) for word in words if word in ("KEYMAP", "SCRIPT", "FILE")]
    return tuple(ending for found in known for ending in found or ()) if known else None


def first_words(pages):
    return list(dict.fromkeys(name.split()[0] for name in pages.pages))


def second_words(pages, group):
    return [name.split()[1] for name in pages.pages if name.startswith(group + " ")]


# ---- bash

BASH = r'''@MADE@
# bash completion for tavi. Words are completed from the help pages, files by the endings of their names.

_tavi_words() { mapfile -t COMPREPLY < <(compgen -W "$1" -- "$cur"); }

# Folders, and files whose names have one of these endings; without any, all files.
_tavi_files() {
  local name ending
  mapfile -t COMPREPLY < <(compgen -d -- "$cur")
  while IFS= read -r name; do
    [ -d "$name" ] && continue
    [ $# -eq 0 ] && COMPREPLY+=("$name")
    for ending in "$@"; do
      [[ ${name,,} == *."$ending" ]] && COMPREPLY+=("$name")
    done
  done < <(compgen -f -- "$cur")
  compopt -o filenames 2>/dev/null || true  # fails outside a completion
}

_tavi_value() {
  case "$1 $2" in
@VALUES@
    *) return 1 ;;
  esac
}

_tavi_options() {
  case $1 in
@OPTIONS@
  esac
}

_tavi_operand() {
  case $1 in
@OPERANDS@
  esac
}

_tavi() {
  local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} first=2
  COMPREPLY=()
  # Bash splits "--size=1280x720" into three words.
  [ "$cur" = = ] && cur=
  [ "$previous" = = ] && previous=${COMP_WORDS[COMP_CWORD - 2]}
  if [ "$COMP_CWORD" -eq 1 ]; then
    _tavi_words "@FIRST@ help --help --version"
    return
  fi
  if [ "$command" = help ]; then
    command=${COMP_WORDS[2]}
    [ "$COMP_CWORD" -eq 2 ] && _tavi_words "@FIRST@"
    [ "$COMP_CWORD" -eq 3 ] && _tavi_group "$command"
    return
  fi
  if _tavi_is_group "$command"; then
    if [ "$COMP_CWORD" -eq 2 ]; then
      _tavi_group "$command" --help
      return
    fi
    command="$command ${COMP_WORDS[2]}"
    first=3
  fi
  [ "$COMP_CWORD" -gt "$first" ] && _tavi_value "$command" "$previous" && return
  case $cur in
    -*) _tavi_words "$(_tavi_options "$command") --help" ;;
    *) _tavi_operand "$command" ;;
  esac
}

_tavi_is_group() {
  case $1 in
    @GROUPS@) return 0 ;;
    *) return 1 ;;
  esac
}

_tavi_group() {
  case $1 in
@GROUP_WORDS@
  esac
}

complete -F _tavi tavi
'''


def bash_value(command, option):
    found = endings(command, option.name, option.value)
    if found is not None:
        return " ".join(["_tavi_files", *found])
    if option.value in WORDS:
        return f'_tavi_words "{WORDS[option.value]}"'
    return "return 0"  # a number or a name: nothing to offer


def bash(pages):
    values, options, operands = [], [], []
    for name, page in pages.pages.items():
        offered = list(page.options)
        values += [f'    "{name} {option.name}") {bash_value(name, option)} ;;' for option in offered if option.value]
        options.append(f'    "{name}") echo "{" ".join(option.name for option in offered)}" ;;')
        if operand(page) is not None:
            operands.append(f'    "{name}") {" ".join(["_tavi_files", *operand(page)])} ;;')
    words = [f'    {group}) _tavi_words "{" ".join(second_words(pages, group))} $2" ;;' for group in pages.groups]
    return (BASH.replace("@MADE@", MADE).replace("@VALUES@", "\n".join(values))
            .replace("@OPTIONS@", "\n".join(options)).replace("@OPERANDS@", "\n".join(operands))
            .replace("@GROUP_WORDS@", "\n".join(words)).replace("@GROUPS@", "|".join(pages.groups))
            .replace("@FIRST@", " ".join(first_words(pages))))


# ---- zsh

def zsh_quoted(text):
    return text.replace("'", "'\\''").replace("[", "\\[").replace("]", "\\]").replace(":", "\\:")


def zsh_files(found):
    return f'_files -g "*.({"|".join(found)})"' if found else "_files"


def zsh_value(command, option):
    found = endings(command, option.name, option.value)
    if found is not None:
        return f":{option.value}:{zsh_files(found)}"
    if option.value in WORDS:
        return f":{option.value}:({WORDS[option.value]})"
    return f":{option.value}:" if option.value else ""


def zsh_arguments(page):
    again = "*" if "[OPTIONS]]..." in page.usage[0] else ""  # once for each file
    lines = [f"      '{again}{option.name}[{zsh_quoted(option.text)}]{zsh_value(page.command, option)}'"
             for option in page.options]
    lines.append("      '--help[shows the help page]'")
    if operand(page) is not None:
        lines.append(f"      '*:file:{zsh_files(operand(page))}'")
    return f"    '{page.command}')\n      _arguments \\\n  " + " \\\n  ".join(lines) + " ;;\n"


def zsh_described(words):
    return " ".join(f"'{word}:{zsh_quoted(text)}'" for word, text in words)


def zsh(pages):
    first = [(name, page.summary) for name, page in pages.pages.items() if " " not in name]
    first += [(group, "works with records") for group in pages.groups] + [("help", "shows the help page of a command")]
    out = f"#compdef tavi\n{MADE}\n\n_tavi() {{\n  local command=$words[2]\n  if (( CURRENT == 2 )); then\n"
    out += f"    local -a commands=({zsh_described(first)})\n"
    out += "    _describe command commands\n    _arguments '--help[lists the commands]' '--version[prints the version]'\n"
    out += "    return\n  fi\n"
    out += f"  if [[ $command == help ]]; then\n    local -a commands=({zsh_described(first[:-1])})\n"
    out += "    (( CURRENT == 3 )) && _describe command commands\n    return\n  fi\n"
    for group in pages.groups:
        second = [(word, pages.pages[f"{group} {word}"].summary) for word in second_words(pages, group)]
        out += f"  if [[ $command == {group} ]]; then\n    if (( CURRENT == 3 )); then\n"
        out += f"      local -a commands=({zsh_described(second)})\n      _describe command commands\n      return\n"
        out += "    fi\n    command=\"$words[2] $words[3]\"\n    shift words\n    (( CURRENT-- ))\n  fi\n"
    out += "  shift words\n  (( CURRENT-- ))\n  case $command in\n"
    out += "".join(zsh_arguments(page) for page in pages.pages.values())
    return out + "  esac\n}\n\n_tavi \"$@\"\n"


# ---- fish

def fish_quoted(text):
    return "'" + text.replace("\\", "\\\\").replace("'", "\\'") + "'"


def fish_files(found):
    return " ".join(f"__fish_complete_suffix .{ending};" for ending in found)


def fish_line(condition, rest, text):
    return f"complete -c tavi -n '{condition}' {rest} -d {fish_quoted(text)}\n"


def fish_option(condition, command, option):
    flag = f"-l {option.name[2:]}" if option.name.startswith("--") else f"-s {option.name[1:]}"
    found = endings(command, option.name, option.value)
    if found:
        flag += f" -x -a {fish_quoted('(' + fish_files(found) + ')')}"
    elif found is not None:
        flag += " -r"
    elif option.value in WORDS:
        flag += f" -x -a {fish_quoted(WORDS[option.value])}"
    elif option.value:
        flag += " -x"
    return fish_line(condition, flag, option.text)


def fish_condition(pages, name):
    if " " in name:
        group, word = name.split()
        return f"__fish_seen_subcommand_from {group}; and __fish_seen_subcommand_from {word}"
    others = " ".join(pages.groups)
    return f"__fish_seen_subcommand_from {name}; and not __fish_seen_subcommand_from {others} help"


def fish(pages):
    out = f"{MADE}\ncomplete -c tavi -f\n"
    none = "__fish_use_subcommand"
    out += fish_line(none, "-l help", "lists the commands") + fish_line(none, "-l version", "prints the version")
    for name, page in pages.pages.items():
        if " " not in name:
            out += fish_line(none, f"-a {name}", page.summary)
    for group in pages.groups:
        words = second_words(pages, group)
        out += fish_line(none, f"-a {group}", "works with records")
        condition = f"__fish_seen_subcommand_from {group}; and not __fish_seen_subcommand_from {' '.join(words)}"
        for word in words:
            out += fish_line(condition, f"-a {word}", pages.pages[f"{group} {word}"].summary)
    out += fish_line(none, "-a help", "shows the help page of a command")
    out += f"complete -c tavi -n '__fish_seen_subcommand_from help' -a {fish_quoted(' '.join(first_words(pages)))}\n"
    for name, page in pages.pages.items():
        condition = fish_condition(pages, name)
        out += "".join(fish_option(condition, name, option) for option in page.options)
        out += fish_line(condition, "-l help", "shows the help page")
        found = operand(page)
        if found:
            out += fish_line(condition, f"-k -x -a {fish_quoted('(' + fish_files(found) + ')')}", "file")
    return out
