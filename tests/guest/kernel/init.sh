#!/bin/busybox sh
# The first process of the small machine that kernel_guest_test.py boots: plays /timeline on the kernel's devices and
# prints what their readers see.
bb=/bin/busybox
$bb mkdir -p /proc /sys /dev
$bb mount -t devtmpfs none /dev
$bb mount -t proc none /proc
$bb mount -t sysfs none /sys
$bb insmod /evdev.ko
$bb insmod /uinput.ko

$bb mkfifo /lines
/tavi guest-uinput --timeline --input /lines >/places 2>/errors &
guest=$!
until [ "$($bb wc -l </places)" = 5 ] || [ -s /errors ]; do $bb sleep 0.02; done
/read_devices </places >/events &
reader=$!
until $bb grep -q reading /events; do $bb sleep 0.02; done

# The devices stay until the pipe has no writer, so it is kept open until everything is read.
exec 3>/lines
$bb cat /timeline >&3
wait $reader
exec 3>&-
wait $guest
status=$?

echo "=== begin"
$bb cat /places /errors /events
echo "status $status"
echo "=== end"
$bb poweroff -f
