#!/bin/bash
# usage: aarch64-machine.sh
#
# Could an aarch64 machine run ./run and ./test? Asks this machine's sources for all packages that they
# install there, with what those need. Exit status: 0 if all are to be had.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/quietly.sh
source scripts/wanted.sh
source scripts/apt-for-aarch64.sh

quietly build/logs/aarch64-update.log apt-get update
mapfile -t packages < <(wanted run test)
quietly build/logs/aarch64-machine.log \
    apt-get install --simulate --no-install-recommends "${packages[@]}"
echo "An aarch64 machine finds all ${#packages[@]} packages."
