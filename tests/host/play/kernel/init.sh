#!/bin/busybox sh
# The first process of the small machine that kernel_play_test.py boots: a player's hands play `tavi play`, and what
# others see of it is printed at the end, file by file. Each step writes its name into what is seen.
bb=/bin/busybox
PATH=/bin
$bb mkdir -p /proc /sys /dev /run /tmp
$bb mount -t devtmpfs none /dev
$bb mount -t proc none /proc
$bb mount -t sysfs none /sys
$bb mount -t tmpfs none /run
$bb mount -t tmpfs none /tmp
export HOME=/tmp XDG_RUNTIME_DIR=/run/player QT_NO_GLIB=1
$bb mkdir -m 700 /run/player
$bb ip link set lo up
$bb insmod /evdev.ko
$bb insmod /uinput.ko
/lib/systemd/systemd-udevd --daemon --resolve-names=early
/bin/udevadm trigger --action=add --subsystem-match=input
/bin/udevadm trigger --action=add --subsystem-match=misc --sysname-match=uinput
/bin/udevadm settle

# wait_for WORDS FILE: until the file has a line with the words, or a minute is over
wait_for() {
  tries=0
  until $bb grep -q "$1" "$2"; do
    $bb sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 1200 ] || { echo "no \"$1\" in $2" >>/log/problems; return; }
  done
}
# step NAME: what is seen belongs to it from here on. Readers have come to the end of what was before.
step() {
  seen=
  until [ "$seen" = "$($bb wc -c /log/eyes /log/libinput)" ]; do
    seen=$($bb wc -c /log/eyes /log/libinput)
    $bb sleep 0.3
  done
  echo "step $1" >>/log/eyes
  echo "step $1" >>/log/libinput
}
# wait_state WORDS: until the state that was told last begins so, or a minute is over
wait_state() {
  tries=0
  until $bb tail -n 1 /log/play | $bb grep -q "^$1"; do
    $bb sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 1200 ] || { echo "the state is not \"$1\"" >>/log/problems; return; }
  done
}
# wait_touch STEP: until a finger is put down in this step, or a minute is over
wait_touch() {
  tries=0
  until $bb sed -n "/^step $1\$/,\$p" /log/eyes | $bb grep -q "tavi screen|1 330 1"; do
    $bb sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 1200 ] || { echo "no finger in step $1" >>/log/problems; return; }
  done
}
# do_by_hand COMMANDS...: and returns when they are done
done_count=0
do_by_hand() {
  done_count=$((done_count + 1))
  { for command in "$@"; do echo "$command"; done; echo "done d$done_count."; } >&4
  wait_for "d$done_count\\." /log/hands
}
take_hands() {
  $bb rm -f /hands_in
  $bb mkfifo /hands_in
  /hands </hands_in >>/log/hands 2>>/log/problems &
  hands=$!
  exec 4>/hands_in
}
# The machine has a keyboard of its own, too.
start_play() {
  : >/log/play
  /tavi play --size 1280x720 "$@" /keymap.yaml >>/log/play 2>>/log/news 4>&- &
  play=$!
  wait_for "^mapping on, keymap.yaml.*2 keyboards, 1 mouse" /log/play
}
ask() { echo "$1: $(/tavi play --control "$1" 2>&1)" >>/log/answers; }

$bb mkdir /log
for name in eyes libinput hands play news answers problems list rights status; do : >/log/$name; done
take_hands
wait_for ready /log/hands
/bin/udevadm settle
/eyes "Test Board" "tavi screen" "tavi keyboard" "bare screen" >>/log/eyes 2>>/log/problems 4>&- &
eyes=$!
/usr/libexec/libinput/libinput-debug-events >>/log/libinput 2>>/log/problems 4>&- &
libinput=$!
/tavi play --list >>/log/list 2>&1

# Somebody without rights, and somebody in the group that the rule of udev is for.
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

step unplug
do_by_hand "key 17 1" "wait 300"
wait_touch unplug
do_by_hand "unplug" "wait 500"
exec 4>&-
wait $hands
: >/log/play
take_hands
wait_for "2 keyboards, 1 mouse" /log/play

step term
wait_state "mapping on"
do_by_hand "key 17 1" "wait 300"
wait_touch term
$bb kill -TERM $play
wait $play
echo "after SIGTERM $?" >>/log/status
do_by_hand "key 17 0" "wait 100"

start_play
step kill
wait_state "mapping on"
do_by_hand "key 17 1" "wait 300"
wait_touch kill
$bb kill -KILL $play
wait $play
echo "after SIGKILL $?" >>/log/status
$bb sleep 0.5
do_by_hand "key 17 0" "wait 100"
# Rounds of a race between the player and the least that there can be; only for programs that are built to be fast.
race() {
  step "race $1"
  echo "race $1" >>/log/hands
  do_by_hand "race 57 150" "wait 200"
}
if [ -e /race ]; then
  for round in 1 2 3 4; do
    /bare 2>>/log/problems 4>&- &
    bare=$!
    $bb sleep 1
    race bare
    $bb kill $bare
    start_play
    $bb sleep 1
    race play
    $bb kill $play
    wait $play
  done
fi
step end
$bb sleep 0.3
$bb kill -INT $libinput
wait $libinput
$bb kill $eyes

echo "=== begin"
for name in problems list rights news answers status hands eyes libinput; do
  echo "=== file $name"
  $bb cat /log/$name
done
echo "=== end"
$bb poweroff -f
