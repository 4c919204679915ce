#!/usr/bin/env bash
# Checks that every source stands as .clang-format wants it. Run in the project's root.
set -euo pipefail
clang_format=${1:?the clang-format to use}
mapfile -t sources < <(find . \( -path './build*' -o -path ./debian -o -path ./.git \) -prune -o \
    \( -name '*.h' -o -name '*.cpp' \) -print | sort)
if [ ${#sources[@]} -lt 30 ]; then
    echo "only ${#sources[@]} sources found: this is not the project's root" >&2
    exit 1
fi
"$clang_format" --dry-run --Werror "${sources[@]}"
echo "${#sources[@]} sources checked"
