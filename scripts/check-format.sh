#!/usr/bin/env bash
# Fails and names the files whose layout is not that of .clang-format.
set -euo pipefail
cd "$(dirname "$0")/.."
find src tests bench fuzz \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 clang-format --dry-run --Werror
