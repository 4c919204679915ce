#!/usr/bin/env bash
# insystem.sh SOURCE BUILD [--only TARGET | CTEST-ARGUMENT...]: runs in the system for arm64; builds,
# runs the tests but for those that skipped.txt names, and says which were skipped.
set -euo pipefail
source=$1 build=$2
shift 2
target=
if [ "${1:-}" = --only ]; then target=$2; fi
cd "$source"
source tools/build.sh

# Where pkg-config finds Qt for arm64.
export PKG_CONFIG_LIBDIR=/usr/lib/aarch64-linux-gnu/pkgconfig:/usr/share/pkgconfig
emulator="$(command -v qemu-aarch64-static);-E;LD_PRELOAD=$build/tests/cross/oldkernel.so"
cwidget_build "$build" "$target" --toolchain "$source/cmake/arm64.cmake" \
    -DCMAKE_CROSSCOMPILING_EMULATOR="$emulator" \
    -DCMAKE_BUILD_TYPE=Release -DCWIDGET_WERROR=ON
if [ -n "$target" ]; then exit; fi

skipped=tests/cross/skipped.txt
names=$(sed -n 's/^\([^# ][^ ]*\) .*/\1/p' "$skipped" | paste -sd '|')
status=0
(cd "$build" && ctest --output-on-failure -j "$(nproc)" -E "^($names)\$" "$@") || status=$?
tools/skipped.sh "$build/Testing/Temporary/LastTest.log"
sed -n 's/^\([^# ][^ ]*\)  *\(.*\)/skipped: \1: \2/p' "$skipped"
exit $status
