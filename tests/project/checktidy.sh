#!/usr/bin/env bash
# checktidy.sh CLANG-TIDY BUILD: checks the library's sources as .clang-tidy wants it. Run in the
# project's root. That takes seconds for each source, so one that was right is looked at again only
# when it, a header or the checks have changed.
set -euo pipefail
clang_tidy=${1:?the clang-tidy to use}
build=${2:?the build folder}
folders=(style widgets pages parm keypad hotplug accessibility)
mapfile -t sources < <(find "${folders[@]}" -name '*.cpp' | sort)
if [ ${#sources[@]} -lt 45 ]; then
    echo "only ${#sources[@]} sources found: this is not the project's root" >&2
    exit 1
fi
# Some tests compile sources of the library again, in their own way, with a header that GCC compiled.
mkdir -p "$build/tidy"
awk '/^{/  { entry = ""; wanted = 0 }
     /-DCWIDGET_BUILD_LIBRARY / { wanted = 1 }
     /^[{ ]/ { entry = entry $0 "\n" }
     /^}/  { if (wanted) printf "%s%s}", (count++ ? ",\n" : "[\n"), entry }
     END   { print "\n]" }' "$build/compile_commands.json" >"$build/tidy/compile_commands.json"
common=$({
    "$clang_tidy" --version
    find "${folders[@]}" -name '*.h' | sort | xargs cat .clang-tidy
} | sha256sum)

# check SOURCE: unless its stamp says that all of it is as it was when it was right.
check() {
    local stamp=$build/tidy/$1 state
    state="$common $(sha256sum <"$1")"
    if [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$state" ]; then return; fi
    "$clang_tidy" -p "$build/tidy" --quiet "$1" 2>/dev/null || return
    mkdir -p "$(dirname "$stamp")"
    echo "$state" >"$stamp"
}
export -f check
export clang_tidy build common
printf '%s\0' "${sources[@]}" | xargs -0 -n 1 -P "$(nproc)" bash -c 'check "$1"' check
echo "${#sources[@]} sources checked"
