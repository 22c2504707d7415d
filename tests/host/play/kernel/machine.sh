# Sourced by the first processes of the small machine: sets up its devices, the player's input, and a reader of the
# events that other programs see.
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

# wait_for WORDS FILE: waits until the file has a line with the words, at most a minute
wait_for() {
  tries=0
  until $bb grep -q "$1" "$2"; do
    $bb sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 1200 ] || { echo "no \"$1\" in $2" >>/log/problems; return; }
  done
}
# step NAME: starts a step, to which all further events belong. Waits first until the readers have logged the earlier
# ones.
step() {
  seen=
  until [ "$seen" = "$($bb wc -c /log/eyes /log/libinput)" ]; do
    seen=$($bb wc -c /log/eyes /log/libinput)
    $bb sleep 0.3
  done
  for name in eyes libinput client; do echo "step $1" >>/log/$name; done
}
# wait_state WORDS: waits until the state printed last begins with the words, at most a minute
wait_state() {
  tries=0
  until $bb tail -n 1 /log/play | $bb grep -q "^$1"; do
    $bb sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 1200 ] || { echo "the state is not \"$1\"" >>/log/problems; return; }
  done
}
# wait_touch STEP: waits until a contact is pressed in this step, at most a minute
wait_touch() {
  tries=0
  until $bb sed -n "/^step $1\$/,\$p" /log/eyes | $bb grep -q "tavi screen|1 330 1"; do
    $bb sleep 0.05
    tries=$((tries + 1))
    [ $tries -lt 1200 ] || { echo "no finger in step $1" >>/log/problems; return; }
  done
}
# do_by_hand COMMANDS...: runs commands of the player's hands, and returns when they are done
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
# The second keyboard is the machine's own.
start_play() {
  : >/log/play
  /tavi play --size 1280x720 "$@" /keymap.yaml >>/log/play 2>>/log/news 4>&- &
  play=$!
  wait_for "^mapping on, keymap.yaml.*2 keyboards, 1 mouse" /log/play
}
# kill_while_walking SIGNAL: kills the player while a contact is down, and returns when other programs have seen the
# result
kill_while_walking() {
  step "$1"
  wait_state "mapping on"
  do_by_hand "key 17 1" "wait 300"
  wait_touch "$1"
  $bb kill -$1 $play
  wait $play
  echo "after SIG$1 $?" >>/log/status
  $bb sleep 0.5
  do_by_hand "key 17 0" "wait 100"
}
ask() { echo "$1: $(/tavi play --control "$1" 2>&1)" >>/log/answers; }

# tell FILES: prints the files between the marks that the test looks for, and powers off
tell() {
  echo "=== begin"
  for name in "$@"; do
    echo "=== file $name"
    $bb cat /log/$name
  done
  echo "=== end"
  $bb poweroff -f
}

$bb mkdir /log
for name in eyes libinput client hands play news answers problems list rights status; do : >/log/$name; done
take_hands
wait_for ready /log/hands
/bin/udevadm settle
/eyes "Test Board" "tavi screen" "tavi keyboard" "bare screen" >>/log/eyes 2>>/log/problems 4>&- &
eyes=$!
