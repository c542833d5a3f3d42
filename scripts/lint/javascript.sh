#!/bin/bash
# usage: javascript.sh FOLDER
#
# No script of the page or of its tests has anything that eslint objects to. FOLDER gets eslint, if
# it is not there already as package-lock.json names it.
set -euo pipefail
source scripts/lint/tracked.sh
folder=$(realpath --canonicalize-missing "$1")
lock=scripts/lint/package-lock.json
installed=$folder/node_modules/installed # a copy of the lock that it was installed by

if ! cmp --silent $lock "$installed"; then
    mkdir -p "$folder"
    cp scripts/lint/package.json $lock "$folder"
    (cd "$folder" && npm ci --ignore-scripts --no-audit --no-fund --loglevel=error)
    cp $lock "$installed"
fi

export DOZEWELL_NODE_MODULES=$folder/node_modules
tracked '*.js' '*.mjs' |
    xargs -0 node "$folder/node_modules/eslint/bin/eslint.js" --max-warnings 0 \
        --config scripts/lint/eslint.config.mjs
