#!/usr/bin/env bash
# Installs the dependencies of this tree on Debian 12 or 13. The only list of packages; asks apt only for missing ones.
#
#   tools/install-dependencies.sh [GROUP...]      without a group: build
#   tools/install-dependencies.sh names GROUP...  only prints the names of the packages
#
# Groups: arm64 arm64-libraries build test qt6 clang docs packaging lint bench plot guest guest-programs windows coverage
# valgrind fuzz mutants
set -euo pipefail

build=(g++ cmake ninja-build ccache pkg-config qtbase5-dev libqt5x11extras5-dev libxcb-xinput-dev libpoco-dev
  libyaml-dev libsdl2-dev libevdev-dev)
test=(groff-base libgtest-dev libxcb-xfixes0-dev libxcb-xtest0-dev python3 python3-jsonschema python3-yaml xvfb)
qt6=(qt6-base-dev)
clang=(clang)
docs=(doxygen)
packaging=(autopkgtest build-essential debhelper debootstrap dpkg-dev lintian)
lint=(clang-format-14 clang-tidy-14)
guest=(qemu-system-x86 qemu-system-arm busybox-static cpio)
guest_programs=(g++-aarch64-linux-gnu g++-arm-linux-gnueabihf qemu-user-static)
arm64=(g++-aarch64-linux-gnu qemu-user-static)
arm64_libraries=(libc6-dev libgtest-dev libpoco-dev libyaml-dev qtbase5-dev)
windows=(dpkg-dev fonts-dejavu-core googletest g++-mingw-w64-x86-64-posix wine wine64 zip)
coverage=(gcovr python3)
valgrind=(valgrind)
bench=(libbenchmark-dev valgrind python3)
plot=(python3 python3-matplotlib)
mutants=(binutils git python3)
fuzz=(clang-14 libclang-rt-14-dev llvm-14)

names=
if [ "${1:-}" = names ]; then
  names=yes
  shift
fi

packages=()
for group in "${@:-build}"; do
  case $group in
    build) packages+=("${build[@]}") ;;
    test) packages+=("${test[@]}") ;;
    qt6) packages+=("${qt6[@]}") ;;
    clang) packages+=("${clang[@]}") ;;
    docs) packages+=("${docs[@]}") ;;
    packaging) packages+=("${packaging[@]}") ;;
    lint) packages+=("${lint[@]}") ;;
    guest) packages+=("${guest[@]}") ;;
    guest-programs) packages+=("${guest_programs[@]}") ;;
    arm64) packages+=("${arm64[@]}") ;;
    arm64-libraries) packages+=("${arm64_libraries[@]}") ;;
    windows) packages+=("${windows[@]}") ;;
    coverage) packages+=("${coverage[@]}") ;;
    valgrind) packages+=("${valgrind[@]}") ;;
    bench) packages+=("${bench[@]}") ;;
    plot) packages+=("${plot[@]}") ;;
    mutants) packages+=("${mutants[@]}") ;;
    fuzz) packages+=("${fuzz[@]}") ;;
    *) echo "install-dependencies: no such group: $group" >&2; exit 2 ;;
  esac
done

if [ -n "$names" ]; then
  printf '%s\n' "${packages[@]}"
  exit 0
fi
if ! command -v apt-get >/dev/null; then
  echo "install-dependencies: not a Debian machine; these packages or their like have to be there: ${packages[*]}" >&2
  exit 0
fi

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

if [ "$(id -u)" -eq 0 ]; then
  as_root=(env)
elif command -v sudo >/dev/null; then
  as_root=(sudo)
else
  echo "install-dependencies: missing: ${missing[*]}" >&2
  echo "install-dependencies: neither root nor sudo is here; as root: apt-get install ${missing[*]}" >&2
  exit 1
fi

echo "Installing ${missing[*]}" >&2
apt=("${as_root[@]}" DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300)
"${apt[@]}" update >&2
"${apt[@]}" install -y --no-install-recommends "${missing[@]}" >&2
