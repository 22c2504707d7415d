#!/usr/bin/env bash
# Downloads Debian's udev, libinput and a compositor, without installing them, and unpacks the parts that
# kernel_play_test.py boots with.
#
#   fetch_libinput.sh DIR      makes DIR/libinput, unless it is there
set -euo pipefail
mkdir -p "$1"
cd "$1"
[ -e libinput/usr/bin/cage ] && exit 0  # the last that came to be needed

rm -rf libinput libinput.part packages
mkdir packages
(cd packages && apt-get -q download udev libinput-tools libinput10 libinput-bin libwacom9 libgudev-1.0-0 libmtdev1 \
  cage wev seatd libseat1 libwlroots10 libwayland-server0 libwayland-client0 libxcb-composite0 libxcb-res0 xkb-data)
for package in packages/*.deb; do dpkg-deb --extract "$package" libinput.part; done
rm -r packages
mv libinput.part libinput
