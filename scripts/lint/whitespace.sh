#!/bin/bash
# No line ends in white space, and no file has tabs. Inputs of fuzzers are not ours to tidy: the
# lines of a web request end in \r.
set -euo pipefail
source scripts/lint/tracked.sh

status=0
here grep --line-number -I --perl-regexp '[ \t\r]+$|\t' -- ':!tests/fuzz/corpus' || status=$?
[ $status -eq 1 ]  # nothing found
