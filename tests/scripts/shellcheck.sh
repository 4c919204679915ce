#!/usr/bin/env bash
# Checks every shell script of the project with shellcheck. Run in the project's root.
set -euo pipefail
shellcheck=${1:?the shellcheck to use}
mapfile -t files < <(find . \( -path './build*' -o -path ./.git \) -prune -o -type f -print | sort)
mapfile -t scripts < <(awk 'FNR == 1 && /^#!.*(\/|env )(ba)?sh/ { print FILENAME } { nextfile }' \
    "${files[@]}")
if [ ${#scripts[@]} -lt 20 ]; then
    echo "only ${#scripts[@]} scripts found: this is not the project's root" >&2
    exit 1
fi
# What is sourced has no first line that names a shell.
mapfile -t sourced < <(printf '%s\n' "${files[@]}" | grep -E '\.(sh|bash)$' |
    grep -vxFf <(printf '%s\n' "${scripts[@]}"))
# Not asked about are quotes that keep a $ for another program, and A && B || C where B cannot fail.
options=(--external-sources "--exclude=SC2015,SC2016")
"$shellcheck" "${options[@]}" "${scripts[@]}"
"$shellcheck" "${options[@]}" --shell bash "${sourced[@]}"
echo "$((${#scripts[@]} + ${#sourced[@]})) scripts checked"
