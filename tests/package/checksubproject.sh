#!/usr/bin/env bash
# checksubproject.sh SOURCE APPLICATION CONSUMER CMAKE CXX STANDARD QT GENERATOR
#
# Builds an application that has the library in its own tree, as a static one; installs that library
# and builds consumers of it.
set -euo pipefail
source=$1 application=$2 consumer=$3 cmake=$4 cxx=$5 standard=$6 qt=$7 generator=$8

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
build=$stage/build
name=quorlin-cwidget package=QuorlinCWidget
if [ "$qt" = 6 ]; then name+=-qt6 package+=Qt6; fi

# quietly COMMAND...: prints what the command says only when it fails.
quietly() {
    "$@" >"$stage/log" 2>&1 || { cat "$stage/log"; return 1; }
}

configure() {
    quietly "$cmake" -S "$application" -B "$build" -G "$generator" -DCMAKE_CXX_COMPILER="$cxx" \
        -DLIBRARY_SOURCE_DIR="$source" -DCWIDGET_QT_MAJOR="$qt" "$@"
}

echo "== configured by FetchContent: a shared library, and the build type left alone"
configure -DLIBRARY_BY_FETCHCONTENT=ON
grep -q "build type: '', library: SHARED_LIBRARY, flags: ''" "$stage/log"
rm -rf "$build"

echo "== built as a static library in a folder of the application"
configure -DBUILD_SHARED_LIBS=OFF
grep -q "build type: '', library: STATIC_LIBRARY, flags: ''" "$stage/log"
quietly "$cmake" --build "$build"
"$build/application" "$source/style/widget-style.xml"

echo "== nothing but the library is built, and nothing written beside the application"
test -f "$build/parts/quorlin/lib$name.a"
if find "$build" -name 'quorlin-gallery*' -type f -perm /1 -o -name 'cwidget-style*' -type f \
    -o -name 'tst_*' -o -name artwork -type f -perm /1 | grep .; then
    echo "more than the library was built" >&2
    exit 1
fi
if find "$build" -maxdepth 1 | grep -iE 'quorlin|forwarding|compile_commands'; then
    echo "the library writes into the application's build folder" >&2
    exit 1
fi
if "$cmake" --install "$build" --prefix "$stage/nothing" | grep -F Installing; then
    echo "the library installs itself unasked" >&2
    exit 1
fi

# check_static LIBDIR: consumers of the installed static library.
check_static() {
    local libdir=$1
    test -f "$libdir/lib$name.a"
    quietly "$cmake" -S "$consumer" -B "$stage/consumer" -G "$generator" --fresh \
        -DCMAKE_CXX_COMPILER="$cxx" -DPACKAGE="$package" \
        -D"${package}_DIR=$libdir/cmake/$package"
    quietly "$cmake" --build "$stage/consumer"
    "$stage/consumer/consumer" "$(cat "$stage/consumer/stylefile")"
    export PKG_CONFIG_PATH=$libdir/pkgconfig
    # shellcheck disable=SC2046
    "$cxx" -std=c++"$standard" "$consumer/main.cpp" -o "$stage/by-pkg-config" \
        $(pkg-config --cflags --libs --static "$name")
    "$stage/by-pkg-config" "$(pkg-config --variable=stylefile "$name")"
    if readelf -d "$stage/by-pkg-config" | grep -F "$name"; then
        echo "the consumer needs a shared library" >&2
        exit 1
    fi
}

echo "== installed when asked for"
configure -DBUILD_SHARED_LIBS=OFF -DCWIDGET_INSTALL=ON -DCMAKE_INSTALL_LIBDIR=lib/device
quietly "$cmake" --build "$build"
quietly "$cmake" --install "$build" --prefix "$stage/usr"
check_static "$stage/usr/lib/device"

echo "== with an absolute folder for libraries"
configure -DCMAKE_INSTALL_PREFIX="$stage/absolute" -DCMAKE_INSTALL_LIBDIR="$stage/elsewhere/lib"
quietly "$cmake" --build "$build"
quietly "$cmake" --install "$build"
check_static "$stage/elsewhere/lib"
export PKG_CONFIG_PATH=$stage/elsewhere/lib/pkgconfig
test "$(pkg-config --variable=libdir "$name")" = "$stage/elsewhere/lib"
test "$(pkg-config --variable=prefix "$name")" = "$stage/absolute"
echo "ok"
