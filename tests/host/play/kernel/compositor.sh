#!/bin/busybox sh
# The first process of a small machine with a headless wlroots compositor. A Wayland client sees the contacts there,
# like a program on a player's desktop.
. /machine.sh

$bb mkdir -m 1777 /dev/shm
$bb mount -t tmpfs -o mode=1777 none /dev/shm
$bb mkdir -m 700 /run/of_player
$bb chown player /run/of_player
SEATD_VTBOUND=0 /usr/sbin/seatd -u player -l error >>/log/desktop 2>&1 4>&- &
tries=0
until [ -e /run/seatd.sock ] || [ $tries = 100 ]; do
  $bb sleep 0.05
  tries=$((tries + 1))
done
# The client buffers its output; the log of its connection is written at once.
$bb chmod 666 /log/client
$bb su -s /bin/sh player -c "export XDG_RUNTIME_DIR=/run/of_player LIBSEAT_BACKEND=seatd WLR_RENDERER=pixman \
  WLR_BACKENDS=headless,libinput WLR_LIBINPUT_NO_DEVICES=1 WAYLAND_DEBUG=client; \
  exec /usr/bin/cage -- /bin/sh -c 'exec /usr/bin/wev 2>>/log/client'" >>/log/desktop 2>&1 4>&- &
wait_for "xdg_toplevel@[0-9]*.configure" /log/client

start_play
kill_while_walking TERM
start_play
kill_while_walking KILL
step end
tell problems client eyes desktop news
