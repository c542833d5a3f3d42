#!/bin/bash
# usage: install.sh SECTION...
#
# Installs the packages of these sections of packages.txt that the machine lacks. Says and does
# nothing if it lacks none. Exit status 2: it needs you to install them, and has said how.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/quietly.sh
source scripts/wanted.sh

# Node.js from elsewhere brings its npm along, and cannot be there together with the package of it.
installed() {
    dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' |
        awk '$2 == "installed" { print $1 }'
    ! command -v npm >/dev/null || echo npm
}

if ! command -v apt-get >/dev/null; then
    echo "This machine has no apt-get. Install by its own means what these Debian 12 packages hold,"
    echo "then start again with --no-install:"
    wanted "$@"
    exit 2
fi >&2

mapfile -t missing < <(comm -23 <(wanted "$@" | sort -u) <(installed | sort -u))
[ ${#missing[@]} -gt 0 ] || exit 0

if [ "$(id -u)" -ne 0 ]; then
    echo "Some packages are missing. Please type this, then start again:"
    echo
    echo "    sudo apt-get update && sudo apt-get install --no-install-recommends ${missing[*]}"
    exit 2
fi >&2

export DEBIAN_FRONTEND=noninteractive
# Another apt-get may be at work, as on a machine that has just started.
apt=(apt-get -o DPkg::Lock::Timeout=300 --yes)
echo "Installing ${missing[*]} ..."
quietly build/logs/apt-update.log "${apt[@]}" update
quietly build/logs/apt-install.log "${apt[@]}" install --no-install-recommends "${missing[@]}"
