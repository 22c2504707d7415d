# Made by tools/make_command_files.py of what tavi --help says.
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
    "window --joystick") _tavi_files yaml yml ;;
    "window --size") _tavi_words "1280x720 1920x1080 2560x1440" ;;
    "window --rotation") _tavi_words "0 90 180 270" ;;
    "window --pixel-ratio") return 0 ;;
    "window --background") _tavi_files png jpg jpeg webp bmp ;;
    "window --look") return 0 ;;
    "window --pause-key") return 0 ;;
    "window --panic-key") return 0 ;;
    "window --controls-key") return 0 ;;
    "window --record") _tavi_files json ;;
    "window --replay") _tavi_files json ;;
    "window --guest") return 0 ;;
    "window --listen") return 0 ;;
    "window --mirror") return 0 ;;
    "window --picture") _tavi_files png ;;
    "window --after") return 0 ;;
    "play --joystick") _tavi_files yaml yml ;;
    "play --device") return 0 ;;
    "play --guest") return 0 ;;
    "play --size") _tavi_words "1280x720 1920x1080 2560x1440" ;;
    "play --rotation") _tavi_words "0 90 180 270" ;;
    "play --speed") return 0 ;;
    "play --pause-key") return 0 ;;
    "play --panic-key") return 0 ;;
    "play --keymaps") return 0 ;;
    "play --name") return 0 ;;
    "play --control") return 0 ;;
    "simulate --svg") _tavi_files svg ;;
    "simulate --record") _tavi_files json ;;
    "simulate --package") return 0 ;;
    "draw -o") _tavi_files svg png ;;
    "draw --size") _tavi_words "1280x720 1920x1080 2560x1440" ;;
    "draw --background") _tavi_files png jpg jpeg webp bmp ;;
    "draw --joystick") _tavi_files yaml yml ;;
    "record play --speed") return 0 ;;
    "record play --size") _tavi_words "1280x720 1920x1080 2560x1440" ;;
    "record play --guest") return 0 ;;
    "record merge -o") _tavi_files json ;;
    "record merge --times") return 0 ;;
    "record merge --delay") return 0 ;;
    "record merge --speed") return 0 ;;
    "record merge --gap") return 0 ;;
    "record draw -o") _tavi_files svg ;;
    "guest-uinput --input") _tavi_files ;;
    "guest-uinput --listen") return 0 ;;
    "guest-uinput --size") _tavi_words "1280x720 1920x1080 2560x1440" ;;
    "guest-uinput --display") return 0 ;;
    "guest-uinput --for") _tavi_words "linux android" ;;
    "guest-uinput --name") return 0 ;;
    *) return 1 ;;
  esac
}

_tavi_options() {
  case $1 in
    "window") echo "--joystick --size --rotation --pixel-ratio --background --look --pause-key --panic-key --controls-key --paused --fresh --events --record --replay --second-view --guest --allow-remote --listen --mirror --picture --after" ;;
    "play") echo "--joystick --device --guest --allow-remote --size --rotation --speed --pause-key --panic-key --paused --keymaps --name --control --list" ;;
    "simulate") echo "--svg --record --package" ;;
    "check") echo "" ;;
    "draw") echo "-o --size --background --joystick" ;;
    "keys") echo "--joystick --json" ;;
    "record info") echo "" ;;
    "record play") echo "--speed --emulation --size --live --guest --allow-remote" ;;
    "record merge") echo "-o --times --delay --speed --gap" ;;
    "record draw") echo "-o" ;;
    "guest-uinput") echo "--input --listen --size --display --for --keyboard --name --timeline --dry-run" ;;
  esac
}

_tavi_operand() {
  case $1 in
    "window") _tavi_files yaml yml ;;
    "play") _tavi_files yaml yml ;;
    "simulate") _tavi_files yaml yml txt ;;
    "check") _tavi_files yaml yml ;;
    "draw") _tavi_files yaml yml ;;
    "record info") _tavi_files json ;;
    "record play") _tavi_files json ;;
    "record merge") _tavi_files json json ;;
    "record draw") _tavi_files json ;;
  esac
}

_tavi() {
  local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]} first=2
  COMPREPLY=()
  # Bash splits "--size=1280x720" into three words.
  [ "$cur" = = ] && cur=
  [ "$previous" = = ] && previous=${COMP_WORDS[COMP_CWORD - 2]}
  if [ "$COMP_CWORD" -eq 1 ]; then
    _tavi_words "window play simulate check draw keys record guest-uinput help --help --version"
    return
  fi
  if [ "$command" = help ]; then
    command=${COMP_WORDS[2]}
    [ "$COMP_CWORD" -eq 2 ] && _tavi_words "window play simulate check draw keys record guest-uinput"
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
    record) return 0 ;;
    *) return 1 ;;
  esac
}

_tavi_group() {
  case $1 in
    record) _tavi_words "info play merge draw $2" ;;
  esac
}

complete -F _tavi tavi
