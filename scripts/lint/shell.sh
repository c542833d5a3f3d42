#!/bin/bash
# No shell script, whatever its name, has anything that the linter objects to.
set -euo pipefail
source scripts/lint/tracked.sh

here grep --files-with-matches --null -I --extended-regexp '^(#!/bin/(ba)?sh|# shellcheck shell=)' |
    xargs -0 shellcheck --external-sources
