#!/bin/bash
# No source file has more than 400 lines: one that grows past them is two things.
set -euo pipefail
source scripts/lint/tracked.sh

tracked '*.h' '*.cpp' '*.S' '*.py' '*.js' '*.mjs' '*.css' '*.html' '*.sh' '*.cmake' '*CMakeLists.txt' run test |
    xargs -0 awk '
        FNR == 401 { print FILENAME ": more than 400 lines"; found = 1 }
        END { exit found }'
