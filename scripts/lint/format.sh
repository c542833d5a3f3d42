#!/bin/bash
# Every C++ file is as clang-format would write it.
set -euo pipefail
source scripts/lint/tracked.sh

tracked '*.h' '*.cpp' | xargs -0 clang-format-14 --dry-run -Werror
