#!/usr/bin/env bash
# checkbeside.sh BUILD OTHER CONSUMER CMAKE CXX GENERATOR
#
# Installs the library of BUILD, for Qt 6, and that of OTHER, for Qt 5, into one prefix, and builds
# and runs a consumer of each.
set -euo pipefail
build=$1 other=$2 consumer=$3 cmake=$4 cxx=$5 generator=$6

if [ ! -f "$other/libquorlin-cwidget.so.1" ]; then
    echo "SKIP   : the library for Qt 5 is not there; ./test.sh builds it"
    exit 77
fi
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT

# install BUILD PREFIX: prints how many files that are.
install() {
    for component in runtime development; do
        "$cmake" --install "$1" --prefix "$2" --component $component >/dev/null
        cat "$1/install_manifest_$component.txt" && echo
        rm "$1/install_manifest_$component.txt"
    done | grep -c .
}

# consume QT STANDARD NAME PACKAGE: both ways, with the library of this generation and no other.
consume() {
    local qt=$1 standard=$2 name=$3 package=$4
    {
        "$cmake" -S "$consumer" -B "$stage/qt$qt" -G "$generator" -DCMAKE_CXX_COMPILER="$cxx" \
            -DCMAKE_PREFIX_PATH="$stage/opt" -DPACKAGE="$package" && "$cmake" --build "$stage/qt$qt"
    } >"$stage/log" 2>&1 || { cat "$stage/log"; return 1; }
    # shellcheck disable=SC2046
    "$cxx" -std=c++"$standard" "$consumer/main.cpp" -o "$stage/qt$qt/by-pkg-config" \
        $(pkg-config --cflags --libs "$name")
    test "$(cat "$stage/qt$qt/stylefile")" = "$stage/opt/share/$name/widget-style.xml"
    test "$(realpath "$(pkg-config --variable=stylefile "$name")")" = "$(cat "$stage/qt$qt/stylefile")"
    for program in consumer by-pkg-config; do
        LD_LIBRARY_PATH=$libdir "$stage/qt$qt/$program" "$(cat "$stage/qt$qt/stylefile")"
        readelf --dynamic "$stage/qt$qt/$program" | grep -oE 'lib(quorlin|Qt).*\.so' | sort >"$stage/log"
        grep -qx "lib$name.so" "$stage/log"
        if grep -vE "^lib($name|Qt$qt.*)\.so$" "$stage/log"; then
            echo "$program for Qt $qt needs these, too" >&2
            return 1
        fi
    done
}

echo "== side by side"
files=$(($(install "$other" "$stage/opt") + $(install "$build" "$stage/opt")))
test "$files" -ge 100
test "$(find "$stage/opt" ! -type d | wc -l)" -eq "$files" ||
    { echo "one generation overwrites files of the other" >&2; exit 1; }
libdir=$(dirname "$(find "$stage/opt" -name libquorlin-cwidget.so.1)")
export PKG_CONFIG_PATH=$libdir/pkgconfig

echo "== a consumer of each"
consume 5 11 quorlin-cwidget QuorlinCWidget
consume 6 17 quorlin-cwidget-qt6 QuorlinCWidgetQt6
echo "ok"
