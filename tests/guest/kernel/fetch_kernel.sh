#!/usr/bin/env bash
# Downloads Debian's kernel, without installing it, and unpacks the files that the tests boot.
#
#   fetch_kernel.sh DIR [ARCH]     makes DIR/vmlinuz, DIR/evdev.ko and DIR/uinput.ko, unless they are there; ARCH is
#                                  amd64 (as without it) or arm64
set -euo pipefail
arch=${2:-amd64}
mkdir -p "$1"
cd "$1"
[ -e vmlinuz ] && [ -e evdev.ko ] && [ -e uinput.ko ] && exit 0

# Lists of our own, so that the machine's stay as they are, whichever architecture it knows.
mkdir -p apt/lists/partial apt/cache/archives/partial
: >apt/status
apt=(-q -o Dir::State::status="$PWD/apt/status" -o Dir::State::lists="$PWD/apt/lists" -o Dir::Cache="$PWD/apt/cache"
  -o APT::Architecture="$arch" -o APT::Architectures="$arch" -o Acquire::Languages=none)
apt-get "${apt[@]}" update

package=$(apt-cache "${apt[@]}" depends "linux-image-$arch" | sed -n 's/^ *Depends: \(linux-image-[^ ]*\)$/\1/p' | head -n 1)
package=${package%:*}
apt-get "${apt[@]}" download "${package:?"apt knows no linux-image-$arch"}"
dpkg-deb --fsys-tarfile "$package"_*.deb | tar -x --wildcards './boot/vmlinuz-*' '*/evdev.ko' '*/uinput.ko'
find lib -name '*.ko' -exec mv {} . \;
mv boot/vmlinuz-* vmlinuz
rm -r boot lib apt "$package"_*.deb
