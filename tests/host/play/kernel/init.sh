#!/bin/busybox sh
# The first process of the small machine that kernel_play_test.py boots: a simulated player uses `tavi play`, and the
# events that other programs see are printed at the end, file by file. Each step writes its name into these files.
. /machine.sh
/usr/libexec/libinput/libinput-debug-events >>/log/libinput 2>>/log/problems 4>&- &
libinput=$!
/tavi play --list >>/log/list 2>&1

# A user without rights, and one in the group of the udev rule.
for name in nobody player; do
  echo "$name" >>/log/rights
  $bb mkdir -p "/run/of_$name" && $bb chown "$name" "/run/of_$name" && $bb chmod 700 "/run/of_$name"
  $bb su -s /bin/sh "$name" -c "export XDG_RUNTIME_DIR=/run/of_$name; /tavi play --list; echo list \$?; /tavi play --control state; echo control \$?" \
    >>/log/rights 2>&1
done
$bb su -s /bin/sh nobody -c "export XDG_RUNTIME_DIR=/run/of_nobody; /tavi play /keymap.yaml; echo play \$?" >>/log/rights 2>&1

do_by_hand_script() {
  done_count=$((done_count + 1))
  { $bb cat "$1"; echo "done d$done_count."; } >&4
  wait_for "d$done_count\\." /log/hands
}
start_play --joystick /pad.yaml
/tavi play --list >>/log/list 2>&1
step script
do_by_hand_script /script

step typed
ask "text on"
do_by_hand_script /typed_script
ask "text off"
step pad
do_by_hand plug_pad
wait_for "1 mouse, 1 gamepad" /log/play
do_by_hand_script /pad_script
do_by_hand unplug_pad
wait_state "mapping on.*no gamepad"

step pause
do_by_hand "key 88 1" "wait 30" "key 88 0" "wait 200"
wait_state "mapping off"
do_by_hand "key 57 1" "wait 50" "key 57 0" "wait 200"
step resume
do_by_hand "key 88 1" "wait 100" "key 88 0" "wait 100"
wait_state "mapping on"
do_by_hand "key 57 1" "wait 50" "key 57 0" "wait 200"
wait_touch resume
step panic
do_by_hand "key 17 1" "wait 200"
wait_touch panic
do_by_hand "key 29 1" "key 56 1" "key 14 1" "wait 200" "key 14 0" "key 56 0" "key 29 0" "key 17 0" "wait 100"
wait_state "mapping off"
do_by_hand "key 57 1" "wait 50" "key 57 0" "wait 200"
step control
ask state
ask resume
ask "keymap /other.yaml"
ask "kemap /other.yaml"
wait_state "mapping on"
do_by_hand "key 57 1" "wait 50" "key 57 0" "wait 200"
wait_touch control
ask "keymap /keymap.yaml"

step wheel
do_by_hand "wheel 40" "wheel 40" "wait 200" "wheel 40" "wait 300"
wait_touch wheel
do_by_hand "wheel 90" "wheel -30" "wheel 30" "wait 300"
# More events than the kernel buffers for a reader: the keys that are down at the next read count.
step lost
do_by_hand "key 17 1" "wait 200"
wait_touch lost
$bb kill -STOP $play
do_by_hand "key 17 0" "key 57 1" "flood 183 50"
$bb kill -CONT $play
do_by_hand "wait 500" "key 57 0" "wait 300"
# If new devices cannot be made, the old ones stay in use.
step size
$bb mv /dev/uinput /dev/uinput.away
ask "size 640x360"
$bb mv /dev/uinput.away /dev/uinput
do_by_hand "key 57 1" "wait 50" "key 57 0" "wait 200"
wait_touch size
ask "size 640x360"
step smaller
do_by_hand "key 57 1" "wait 50" "key 57 0" "wait 200"
wait_touch smaller
ask "size 1280x720"

step unplug
do_by_hand "key 17 1" "wait 300"
wait_touch unplug
do_by_hand "unplug" "wait 500"
exec 4>&-
wait $hands
: >/log/play
take_hands
wait_for "2 keyboards, 1 mouse" /log/play

kill_while_walking TERM
start_play
kill_while_walking KILL

# An endless macro blocks the player's event loop: the player ends by itself, and at once on a signal. $1: stuck, or
# stuck at SIGTERM.
stick() {
  start_play
  ask "keymap /endless.yaml"
  step "$1"
  wait_state "mapping on, endless.yaml"
  do_by_hand "key 30 1" "wait 300"
  wait_touch "$1"
  do_by_hand "key 57 1" "wait 300"
  [ "$1" = stuck ] || $bb kill -TERM $play
  wait $play
  echo "$1 $?" >>/log/status
  do_by_hand "key 57 0" "key 30 0" "wait 100" "key 57 1" "key 57 0" "wait 100"
}
stick stuck
stick "stuck at SIGTERM"

# Other commands that send lines to this kernel. The window's replay does not wait for the devices: its first tap may be
# lost.
step record
/tavi record play --live --guest uinput /record.json >/dev/null 2>>/log/news
echo "record $?" >>/log/status
step window
QT_QPA_PLATFORM=offscreen /tavi window --fresh --guest uinput --replay /record.json /keymap.yaml >>/log/news 2>&1 4>&- &
window=$!
wait_touch window
$bb sleep 6
$bb kill -TERM $window
wait $window
echo "window $?" >>/log/status

step end
$bb sleep 0.3
$bb kill -INT $libinput
wait $libinput
$bb kill $eyes

tell problems list rights news answers status hands eyes libinput
