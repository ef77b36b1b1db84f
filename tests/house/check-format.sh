#!/usr/bin/env bash
# check-format.sh CLANG-FORMAT FOLDER: fails, with place and line, where a source is not laid out as .clang-format says.
set -euo pipefail
cd "$2"
find src tests fuzz bench examples \( -name '*.cpp' -o -name '*.h' \) -print0 \
    | xargs -0 -n 40 -P 2 "$1" --dry-run -Werror
