#!/usr/bin/env bash
# Runs in a fresh system that has the packages in /test: installs them, builds programs against them,
# runs what they bring, and purges them. Ends with 77 when apt cannot reach its sources.
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/test/runtime
cd /test
# shellcheck source=tests/debian/traces.sh
source ./traces.sh
mkdir -m 700 runtime
names=$(for deb in ./*.deb; do dpkg-deb --field "$deb" Package; done)

fail() {
    echo "$*" >&2
    exit 1
}

# quietly COMMAND...: prints what the command says only when it fails.
quietly() {
    "$@" >log 2>&1 || { tail -n 30 log; fail "$* fails"; }
}

# apt keeps what it fetches, for the next time.
apt_get() {
    quietly apt-get -y -o Dpkg::Use-Pty=0 -o Binary::apt-get::APT::Keep-Downloaded-Packages=true \
        -o APT::Keep-Downloaded-Packages=true --no-install-recommends "$@"
}

echo "-- what the packages depend on, and a compiler"
if ! apt-get -o APT::Update::Error-Mode=any update >log 2>&1; then
    echo "skipped: packages in a fresh system: apt-get update: $(grep -m 1 '^E:' log)"
    exit 77
fi
others=$(apt-get --simulate --no-install-recommends install ./*.deb | awk '$1 == "Inst" { print $2 }' |
    grep -vxF "$names")
# shellcheck disable=SC2086
apt_get install $others g++ ninja-build cmake pkg-config fonts-liberation
traces_paths "" >before

echo "-- install"
apt_get install ./*.deb
grep -q ' 0 to remove' log
test "$(grep -c '^Setting up ' log)" -eq "$(wc -w <<<"$names")" ||
    fail "more is installed than the packages and what they depend on: $(grep '^Setting up ' log)"

echo "-- the consumer with CMake"
quietly cmake -S consumer -B with-cmake -G Ninja
quietly cmake --build with-cmake
test "$(cat with-cmake/stylefile)" = /usr/share/quorlin-cwidget/widget-style.xml
quietly with-cmake/consumer "$(cat with-cmake/stylefile)"

echo "-- the consumer with pkg-config"
# shellcheck disable=SC2046
g++ -std=c++11 consumer/main.cpp -o with-pkg-config $(pkg-config --cflags --libs quorlin-cwidget)
quietly ./with-pkg-config "$(pkg-config --variable=stylefile quorlin-cwidget)"

echo "-- the sources of the examples, as a project"
quietly cmake -S /usr/share/doc/quorlin-cwidget-examples/examples -B examples -G Ninja
quietly cmake --build examples --target settings-page designed-panel

# run COMMAND...: each starts, says nothing, and is still there two seconds later.
run() {
    local number=0 command
    mkdir runs
    for command in "$@"; do
        number=$((number + 1))
        {
            status=0
            # shellcheck disable=SC2086
            timeout 2 $command || status=$?
            [ $status -eq 124 ] || echo "$command ends with $status"
        } >runs/$number 2>&1 &
    done
    wait
    cat runs/*
    test -z "$(cat runs/*)" || fail "not every program runs"
    rm -r runs
}

echo "-- the programs"
quietly quorlin-gallery --shots shots
shots=$(find shots -name '*.png' -size +1k | wc -l)
test "$shots" -ge 8 || fail "only $shots pictures of the gallery"
style=/usr/share/quorlin-cwidget/widget-style.xml
quietly cwidget-style check --strict --ignore-fonts $style
examples=/usr/libexec/quorlin-cwidget
run $examples/{appliance,designed-panel,paged-chooser,settings-page} \
    $examples/tutorial-step{1,2,3,4}\ $style examples/{settings-page/settings-page,designed-panel/designed-panel}

echo "-- the plugin, where Qt Designer looks for it"
plugin=$(qmake -qt=5 -query QT_INSTALL_PLUGINS)/designer/quorlin-cwidget-designer.so
ldd "$plugin" >log
if grep -F 'not found' log; then fail "the plugin misses a library"; fi

echo "-- purge"
rm -rf /root/.cache /root/.config /root/.local
# shellcheck disable=SC2086
apt_get purge $names
traces_paths "" >after
left=$(traces_left before after '*quorlin*') || fail "$left"
