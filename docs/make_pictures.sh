#!/usr/bin/env bash
# Takes the pictures of keymaps and of the window in docs/pictures: starts the window on a display of its own and uses it
# like a person.
#
#   docs/make_pictures.sh [TAVI]    TAVI is the program, build/release/host/tavi unless given
#
# Needs Xvfb, xvfb-run and xdotool (Debian: xvfb, xauth, xdotool), fonts-dejavu-core for the letters, and a compiler and
# SDL2 (g++, libsdl2-dev) for the gamepad, which is held_gamepad.cpp.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
tavi=$(realpath "${1:-$root/build/release/host/tavi}")
pictures=$root/docs/pictures
keymaps=$root/examples/keymaps

if [ -z "${MAKE_PICTURES_DISPLAY:-}" ]; then
  export MAKE_PICTURES_DISPLAY=own
  exec xvfb-run -a -s "-screen 0 1440x900x24" "$0" "$tavi"
fi

# Places are fractions of the window: the guest view keeps its place in it, whatever fonts there are.
move_to() { xdotool mousemove --window "$window" "$(awk "BEGIN { print int(1360 * $1) }")" "$(awk "BEGIN { print int(760 * $2) }")"; }

# drag STEPS DX DY: moves the pointer on, as a hand does
drag() {
  local step
  for ((step = 0; step < $1; ++step)); do
    xdotool mousemove_relative -- "$2" "$3"
    sleep 0.02
  done
}

# picture NAME AFTER_MS KEYMAP USE [OPTION...]: starts the window, with what `environment` holds in its environment, calls
# the function USE once it has the keys, and waits for the picture, which the window takes of itself.
environment=()
picture() {
  (cd "$keymaps" && exec env "${environment[@]}" "$tavi" window "$3" --fresh --look dark --picture "$pictures/$1.png" --after "$2" "${@:5}") &
  local program=$!
  window=$(xdotool search --sync --onlyvisible --pid "$program" --name tavi | head -n 1)
  xdotool windowfocus --sync "$window"
  sleep 0.5
  "$4"
  wait "$program"
  echo "$pictures/$1.png"
}

# Switches view control on, walks, reloads, and fires while it turns.
play_shooter() {
  move_to 0.30 0.40
  xdotool key grave
  sleep 0.3
  xdotool keydown w keydown d keydown r
  drag 8 6 -3
  xdotool mousedown 1
  drag 60 -4 -1
}

# Walks towards the pointer and aims the first skill.
play_battle() {
  move_to 0.42 0.36
  xdotool mousedown 3
  sleep 0.5
  xdotool keydown q
  drag 60 4 2
}

# Saves a key that does not exist, and a field that is spelt wrong, and clicks the first diagnostic.
break_keymap() {
  sed -i 's/label: Crouch, key: C,/label: Crouch, key: Contrl,/; s/label: Map, key: M,/label: Map, kee: M,/' \
    "$keymaps/shooter.yaml"
  sleep 1.8
  move_to 0.15 0.138
  xdotool click 1
}

# Switches the mapping off: what was mapped is plain input.
pause_mapping() {
  move_to 0.40 0.50
  xdotool key F12
  sleep 0.3
  xdotool keydown w keydown space
  drag 4 6 -3
}

# What each event becomes: view control, a walk, a tap, turns of the wheel, an unmapped key.
watch_events() {
  move_to 0.30 0.30
  xdotool key grave
  sleep 0.2
  xdotool keydown w
  sleep 0.2
  xdotool key r
  drag 5 6 -3
  xdotool key p
  xdotool key grave
  sleep 0.2
  xdotool click 4
  move_to 0.36 0.36
  xdotool mousedown 1
}

# A landscape with a sun, instead of a game.
make_landscape() {
  awk 'BEGIN {
    print "P3 1280 720 255"
    for (j = 0; j < 720; ++j) for (i = 0; i < 1280; ++i) {
      x = i / 2; y = j / 2
      far = 190 + 22 * sin(x / 61) + 12 * sin(x / 23); near = 262 + 26 * sin(x / 97 + 2) + 9 * sin(x / 31)
      if (y > near) print int(24 + y / 12), int(66 - y / 12), 44
      else if (y > far) print 58, int(84 - y / 9), 92
      else if ((x - 450) ^ 2 + (y - 92) ^ 2 < 900) print 250, 226, 168
      else print int(58 + y / 1.6), int(78 + y / 2.4), int(132 + y / 5)
    }
  }' > "$1"
}

# Fingers on a picture of the guest's screen.
play_on_picture() {
  move_to 0.30 0.40
  xdotool keydown w keydown d keydown space
  sleep 0.6
}

# A record plays on a view of its own, while the player taps beside it.
watch_replay() {
  sleep 0.5
  xdotool keydown w
  sleep 0.5
  xdotool keydown d
}

# The gamepad walks, looks, jumps and fires.
hold_gamepad() {
  touch "$folder/gamepad_is_held"
  sleep 1
}

# Plays in a window that sends its lines to another one.
play_for_both() {
  move_to 0.30 0.40
  xdotool keydown w keydown d keydown space
  drag 20 6 -3
}

# Types into a text field of the guest while everything is recorded.
type_text() {
  move_to 0.314 0.022
  xdotool click 1
  sleep 0.3
  xdotool type --delay 30 "good game"
}

# Switches the editor on, selects the walk, and takes it by its rim.
edit_walk() {
  move_to 0.1765 0.022
  xdotool click 1
  sleep 0.5
  move_to 0.147 0.69
  xdotool click 1
  sleep 0.3
  move_to 0.211 0.69
}

# Shows the walk as the file writes it, and spells one of its keys wrong.
edit_as_text() {
  edit_walk
  move_to 0.825 0.911
  xdotool click 1
  sleep 0.4
  move_to 0.846 0.526
  xdotool click 1
  sleep 0.2
  xdotool key End x ctrl+Return
  sleep 0.3
}

# picture_on SCREEN NAME [VARIABLE...]: the window at its first size on a screen of that size, nobody playing.
picture_on() {
  (cd "$keymaps" && xvfb-run -a -s "-screen 0 $1x24" env "${@:3}" "$tavi" window shooter.yaml --fresh --look dark \
    --picture "$pictures/$2.png" --after 2500)
  echo "$pictures/$2.png"
}

mkdir -p "$pictures"
"$tavi" draw -o "$pictures/shooter_keymap.svg" "$keymaps/shooter.yaml"
echo "$pictures/shooter_keymap.svg"
"$tavi" simulate --svg "$pictures/timeline.svg" "$keymaps/shooter.yaml" "$root/examples/scripts/tour.txt" >/dev/null
echo "$pictures/timeline.svg"
picture shooter 3500 shooter.yaml play_shooter
picture light 3500 shooter.yaml play_shooter --look light
picture_on 1024x640 small
picture_on 1920x1080 double QT_SCALE_FACTOR=2
picture hero_battle 3500 hero_battle.yaml play_battle
picture editor 3000 shooter.yaml edit_walk
picture editor_text 4500 shooter.yaml edit_as_text

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$tavi" record merge -o "$folder/walks.json" "$root/examples/records/walk.json" --times 5 --delay 200 >/dev/null
picture typing 2600 shooter.yaml type_text --record "$folder/typed.json"
picture replay 2600 shooter.yaml watch_replay --second-view --replay "$folder/walks.json"

c++ -shared -fPIC -o "$folder/held_gamepad.so" "$root/docs/held_gamepad.cpp" $(pkg-config --cflags --libs sdl2)
environment=("LD_PRELOAD=$folder/held_gamepad.so" "HELD_GAMEPAD=$folder/gamepad_is_held")
picture gamepad 2600 shooter.yaml hold_gamepad --joystick shooter_gamepad.yaml
environment=(XDG_SESSION_TYPE=wayland QT_QPA_PLATFORM=xcb)
picture wayland 1500 shooter.yaml true
environment=()

# One window plays, the other gets its lines. A window leaves with its picture, so each is taken while the other stays.
pictures=$folder picture mirrored 6000 shooter.yaml true --listen left >/dev/null &
sleep 1.5
picture mirror 2600 shooter.yaml play_for_both --mirror left
wait
picture mirrored 4000 shooter.yaml true --listen left &
sleep 1.5
pictures=$folder picture mirror 6000 shooter.yaml play_for_both --mirror left >/dev/null
wait

picture paused 2600 shooter.yaml pause_mapping
picture events 4000 shooter.yaml watch_events --events

# The surface of a phone, turned by a quarter.
make_landscape "$folder/landscape.ppm"
picture background 3200 shooter.yaml play_on_picture --background "$folder/landscape.ppm" --size 720x1280 \
  --rotation 90

cp "$keymaps/shooter.yaml" "$folder"
keymaps=$folder
picture findings 4000 shooter.yaml break_keymap
