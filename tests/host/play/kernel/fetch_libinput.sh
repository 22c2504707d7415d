#!/usr/bin/env bash
# Downloads Debian's udev and libinput, without installing them, and unpacks what kernel_play_test.py boots with.
#
#   fetch_libinput.sh DIR      makes DIR/libinput, unless it is there
set -euo pipefail
mkdir -p "$1"
cd "$1"
[ -e libinput/usr/libexec/libinput/libinput-debug-events ] && [ -e libinput/bin/udevadm ] && exit 0

rm -rf libinput libinput.part packages
mkdir packages
(cd packages && apt-get -q download udev libinput-tools libinput10 libinput-bin libwacom9 libgudev-1.0-0 libmtdev1)
for package in packages/*.deb; do dpkg-deb --extract "$package" libinput.part; done
rm -r packages
mv libinput.part libinput
