#!/usr/bin/env bash
# checkpackage.sh BUILD CONSUMER CMAKE CXX STANDARD SANITIZE GENERATOR QMAKE
#
# QMAKE is that of Qt 4, and empty for the other ones.
set -euo pipefail
build=$1 consumer=$2 cmake=$3 cxx=$4 standard=$5 sanitize=$6 generator=$7 qmake=$8

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
prefix=$stage/opt/panel

flags=
if [ "$sanitize" = ON ]; then flags="-fsanitize=address,undefined"; fi

echo "== install"
"$cmake" --install "$build" --prefix "$prefix" >"$stage/install.log"

echo "== what is there"
libdir=$(dirname "$(find "$prefix" -name 'libquorlin-cwidget.so.1')")
test -e "$libdir/libquorlin-cwidget.so"
readelf -d "$libdir/libquorlin-cwidget.so.1" | grep -q 'soname: \[libquorlin-cwidget.so.1\]'
test -f "$prefix/include/quorlin-cwidget/CPushButton"
test -f "$prefix/include/quorlin-cwidget/widgets/pushbutton.h"
test -f "$prefix/include/quorlin-cwidget/style/global.h"
if find "$prefix/include" -name '*_p.h' -o -name 'qtcompat.h' | grep .; then
    echo "private headers are installed" >&2
    exit 1
fi

echo "== every installed header compiles by itself"
export PKG_CONFIG_PATH=$libdir/pkgconfig
read -ra cflags < <(pkg-config --cflags quorlin-cwidget)
for header in "$prefix"/include/quorlin-cwidget/*/*.h; do
    "$cxx" -std=c++"$standard" -fsyntax-only -x c++ "$header" "${cflags[@]}"
done

echo "== all classes by their names"
for class in "$prefix"/include/quorlin-cwidget/[A-Z]*; do
    echo "#include <$(basename "$class")>"
done >"$stage/all.cpp"
test "$(wc -l <"$stage/all.cpp")" -ge 30
"$cxx" -std=c++"$standard" -fsyntax-only "$stage/all.cpp" "${cflags[@]}"

echo "== a consumer with CMake"
"$cmake" -S "$consumer" -B "$stage/cmake" -G "$generator" -DCMAKE_CXX_COMPILER="$cxx" \
    -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_FLAGS="$flags" \
    ${qmake:+"-DQT_QMAKE_EXECUTABLE=$qmake"} >"$stage/cmake.log" ||
    { cat "$stage/cmake.log"; exit 1; }
"$cmake" --build "$stage/cmake" >"$stage/build.log" || { cat "$stage/build.log"; exit 1; }
"$stage/cmake/consumer" "$(cat "$stage/cmake/stylefile")"

echo "== a consumer with pkg-config"
# shellcheck disable=SC2046,SC2086
"$cxx" -std=c++"$standard" $flags "$consumer/main.cpp" -o "$stage/consumer" \
    $(pkg-config --cflags --libs quorlin-cwidget)
LD_LIBRARY_PATH=$libdir "$stage/consumer" "$(pkg-config --variable=stylefile quorlin-cwidget)"

echo "== a moved installation"
mv "$prefix" "$stage/moved"
export PKG_CONFIG_PATH=${libdir/#$prefix/$stage/moved}/pkgconfig
test -f "$(pkg-config --variable=stylefile quorlin-cwidget)"
echo "ok"
