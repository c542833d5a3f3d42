#!/bin/bash
# usage: aarch64-libraries.sh
#
# Puts what preset aarch64 links into build/aarch64-libraries: the packages of section "aarch64" of
# packages.txt for that architecture, downloaded from where this machine gets its own and unpacked.
# Nothing is installed, so root is not needed, and the system learns of no other architecture.
# Says and does nothing if they are there.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/quietly.sh
source scripts/wanted.sh

root=$PWD/build/aarch64-libraries
mapfile -t packages < <(wanted aarch64)
[ "$(cat "$root/packages" 2>/dev/null)" != "${packages[*]}" ] || exit 0

source scripts/apt-for-aarch64.sh
echo "Downloading libraries for aarch64 ..."
quietly build/logs/aarch64-update.log apt-get update
quietly build/logs/aarch64-download.log \
    env --chdir="$work/packages" apt-get download "${packages[@]}"
rm -rf "$root"
mkdir -p "$root/usr/lib"
# Some packages say lib, others usr/lib.
ln -s usr/lib "$root/lib"
for package in "$work"/packages/*.deb; do
    dpkg-deb --fsys-tarfile "$package" |
        tar --extract --directory="$root" --keep-directory-symlink --exclude=./usr/share
done
# What HarfBuzz was built with is only loaded.
for library in freetype2 glib-2.0 graphite2; do
    printf 'Name: %s\nDescription: loaded by HarfBuzz\nVersion: 99\n' $library \
        >"$root/usr/lib/aarch64-linux-gnu/pkgconfig/$library.pc"
done
echo "${packages[*]}" >"$root/packages"
