#!/usr/bin/env bash
# checkpackage.sh BUILD CONSUMER CMAKE CXX STANDARD SANITIZE GENERATOR QT CLASSES QMAKE
#
# Installs what BUILD holds into a folder of its own, looks at it, builds and runs a consumer
# outside the tree against it, and takes all of it back.
# QMAKE is that of Qt 4, and left out for the other ones.
set -euo pipefail
build=$1 consumer=$2 cmake=$3 cxx=$4 standard=$5 sanitize=$6 generator=$7 qt=$8 classes=$9 qmake=${10:-}

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
prefix=$stage/opt/panel
name=quorlin-cwidget package=QuorlinCWidget
if [ "$qt" = 6 ]; then name+=-qt6 package+=Qt6; fi
include=$prefix/include/$name

flags=
if [ "$sanitize" = ON ]; then flags="-fsanitize=address,undefined"; fi

fail() {
    echo "$*" >&2
    exit 1
}

echo "== install"
# The tree may have been installed for use; what it notes about that stays.
manifest=$build/install_manifest.txt
if [ -f "$manifest" ]; then
    cp "$manifest" "$stage/manifest"
    trap 'cp "$stage/manifest" "$manifest"; rm -rf "$stage"' EXIT
fi
"$cmake" --install "$build" --prefix "$prefix" >"$stage/install.log"

echo "== what is there"
libdir=$(dirname "$(find "$prefix" -name "lib$name.so.1")")
test -e "$libdir/lib$name.so"
readelf -d "$libdir/lib$name.so.1" | grep -q "soname: \[lib$name.so.1\]"
for file in pushbutton:widgets global:style version:style; do
    test -f "$include/${file#*:}/${file%:*}.h"
done
if find "$prefix/include" -name '*_p.h' -o -name 'qtcompat.h' | grep .; then
    fail "private headers are installed"
fi
# Builds for two generations of Qt share a prefix: only what is for Qt 6 says so.
if [ "$qt" = 6 ]; then
    if find "$prefix" ! -type d | sed "s#$prefix/##" | grep -viE 'qt-?6'; then
        fail "these would overwrite what is built with Qt 5"
    fi
elif find "$prefix" ! -type d | sed "s#$prefix/##" | grep -iE 'quorlin-?cwidget-?qt6'; then
    fail "these belong to the build with Qt 6"
fi

echo "== what the components hold"
# check_component COMPONENT PATTERN...: it installs what matches each of the patterns.
check_component() {
    local component=$1 pattern
    rm -rf "$stage/component"
    "$cmake" --install "$build" --prefix "$stage/component" --component "$component" >/dev/null
    shift
    for pattern in "$@"; do
        (cd "$stage/component" && find . ! -type d) | grep -qE "$pattern" ||
            fail "the component $component lacks $pattern"
    done
    find "$stage/component" ! -type d | wc -l
}
runtime=$(check_component runtime "/lib$name\.so\.1\$" "/lib$name\.so\.1\.0\.0\$" \
    "/share/$name/widget-style\.xml\$")
translations=$(find "$build/translations" -name '*.qm' | wc -l)
test "$runtime" -eq $((3 + translations)) ||
    fail "the component runtime holds $runtime files instead of 3 and $translations translations"
check_component development "/lib$name\.so\$" "/$name\.pc\$" "/${package}Config\.cmake\$" \
    "/$name/CWidget\$" "/$name/style/global\.h\$" >/dev/null
rm -f "$build"/install_manifest_{runtime,development}.txt

echo "== every class by its own name"
for class in $classes; do
    echo "#include <$class>"
    echo "static_assert(sizeof($class) > 0, \"complete\");"
done >"$stage/classes.cpp"
test "$(grep -c include "$stage/classes.cpp")" -ge 35
export PKG_CONFIG_PATH=$libdir/pkgconfig
read -ra cflags < <(pkg-config --cflags "$name")
"$cxx" -std=c++"$standard" -fsyntax-only "$stage/classes.cpp" "${cflags[@]}"

echo "== every installed header compiles by itself, without a warning"
# The application's own headers of the same names, which must not be taken for ours.
decoys=$stage/application
(cd "$include" && find . -name '*.h') | while read -r header; do
    mkdir -p "$decoys/$(dirname "$header")"
    echo "#error this is the header of the application" >"$decoys/$header"
done
# Qt's headers are not ours to judge.
read -ra strict < <(pkg-config --cflags "$name" | sed 's/-I\([^ ]*\/qt[0-9]\)/-isystem \1/g')
strict=(-std=c++"$standard" -Werror -Wall -Wextra -Wpedantic -Wconversion -Wshadow
        -Wold-style-cast -Wzero-as-null-pointer-constant -fsyntax-only -x c++ -I"$decoys"
        "${strict[@]}")
find "$include" -name '*.h' -print0 |
    xargs -0 -P 2 -I{} "$cxx" "${strict[@]}" -include {} /dev/null
if command -v clang++-14 >/dev/null; then # in both orders, as headers can rely on those before them
    for sort in "sort" "sort -r"; do
        find "$include" -name '*.h' | $sort | sed 's/.*/#include "&"/' | clang++-14 "${strict[@]}" -
    done
fi

echo "== a consumer with CMake"
"$cmake" -S "$consumer" -B "$stage/cmake" -G "$generator" -DCMAKE_CXX_COMPILER="$cxx" \
    -DCMAKE_PREFIX_PATH="$prefix" -DPACKAGE="$package" -DCMAKE_CXX_FLAGS="$flags" \
    ${qmake:+"-DQT_QMAKE_EXECUTABLE=$qmake"} >"$stage/cmake.log" || { cat "$stage/cmake.log"; exit 1; }
"$cmake" --build "$stage/cmake" >"$stage/build.log" || { cat "$stage/build.log"; exit 1; }
"$stage/cmake/consumer" "$(cat "$stage/cmake/stylefile")"

if [ "$qt" != 6 ]; then # the examples ask for the library's usual name
    echo "== the examples, as a project"
    "$cmake" -S "$consumer/../../../examples" -B "$stage/examples" -G "$generator" \
        -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_PREFIX_PATH="$prefix" \
        ${qmake:+"-DQT_QMAKE_EXECUTABLE=$qmake"} >"$stage/examples.log" 2>&1 ||
        { cat "$stage/examples.log"; exit 1; }
fi

echo "== a consumer with pkg-config"
for module in Core Gui Widgets Xml; do
    if [ "$qt" = 4 ] && [ $module = Widgets ]; then continue; fi
    pkg-config --print-requires "$name" | grep -qE "^Qt($qt)?$module\$" ||
        fail "the pkg-config file does not require $module of Qt"
done
# shellcheck disable=SC2046,SC2086
"$cxx" -std=c++"$standard" $flags "$consumer/main.cpp" -o "$stage/consumer" \
    $(pkg-config --cflags --libs "$name")
LD_LIBRARY_PATH=$libdir "$stage/consumer" "$(pkg-config --variable=stylefile "$name")"

echo "== uninstall, and nothing is left"
mkdir "$stage/kept"
mv "$prefix" "$stage/kept/panel"
cp -a "$stage/kept/panel" "$prefix"
touch "$include/of-the-user"
"$cmake" --build "$build" --target uninstall >"$stage/uninstall.log"
test "$(find "$prefix" ! -type d)" = "$include/of-the-user" ||
    fail "uninstall leaves $(find "$prefix" ! -type d)"
rm "$include/of-the-user"
test "$(find "$prefix" -iname '*quorlin*')" = "$include" ||
    fail "uninstall leaves $(find "$prefix" -iname '*quorlin*')"

echo "== a moved installation"
rm -rf "$prefix"
export PKG_CONFIG_PATH=${libdir/#$prefix/$stage/kept/panel}/pkgconfig
test -f "$(pkg-config --variable=stylefile "$name")"
echo "ok"
