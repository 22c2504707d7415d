#!/usr/bin/env bash
# Downloads Debian's kernel, without installing it, and unpacks what kernel_guest_test.py boots.
#
#   fetch_kernel.sh DIR      makes DIR/vmlinuz, DIR/evdev.ko and DIR/uinput.ko, unless they are there
set -euo pipefail
mkdir -p "$1"
cd "$1"
[ -e vmlinuz ] && [ -e evdev.ko ] && [ -e uinput.ko ] && exit 0

package=$(apt-cache depends linux-image-amd64 | sed -n 's/^ *Depends: \(linux-image-[^ ]*\)$/\1/p' | head -n 1)
apt-get -q download "${package:?"apt knows no linux-image-amd64"}"
dpkg-deb --fsys-tarfile "$package"_*.deb | tar -x --wildcards './boot/vmlinuz-*' '*/evdev.ko' '*/uinput.ko'
find lib -name '*.ko' -exec mv {} . \;
mv boot/vmlinuz-* vmlinuz
rm -r boot lib "$package"_*.deb
