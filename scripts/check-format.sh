#!/usr/bin/env bash
# Fails and names the files whose layout is not that of .clang-format.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'bench/*.cpp' 'fuzz/*.cpp' 'fuzz/*.h' |
    xargs clang-format --dry-run --Werror
