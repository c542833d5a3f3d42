#!/bin/bash
# usage: scripts/screenshots.sh [BUILD-FOLDER]
#
# Makes the pictures of docs/pictures again, from a served phone in the distribution's Chromium. Needs
# a build of preset dev, or of the folder that is named.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$PWD/${1:-build/dev}

export DOZEWELL_SIMULATOR=$build/simulator/dozewell-simulator
export DOZEWELL_NODE_MODULES=$build/tests/web/node_modules
DOZEWELL_CHROMIUM=$(command -v chromium-headless-shell)
export DOZEWELL_CHROMIUM
mkdir -p docs/pictures
node tests/web/pictures/pictures.mjs docs/pictures
