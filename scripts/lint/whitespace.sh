#!/bin/bash
# No line ends in white space, and no file has tabs.
set -euo pipefail
source scripts/lint/tracked.sh

status=0
here grep --line-number -I --perl-regexp '[ \t\r]+$|\t' || status=$?
[ $status -eq 1 ]  # nothing found
