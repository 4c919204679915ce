#!/usr/bin/env bash
# checkscripts.sh SOURCE
#
# Runs the scripts of the project's root with stubs of cmake and ctest, and sees that what fails
# gives a failing exit code, and what they say.
set -euo pipefail
source=$1

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
mkdir -p "$stage"/tests/{device,debian,cross} "$stage/resources"
cp -r "$source/test.sh" "$source/gallery.sh" "$source/.ci" "$source/tools" "$stage"
cp "$source/tests/scripts/stubs/package" "$stage/package.sh"
cp "$source/tests/scripts/stubs/package" "$stage/tests/debian/checkdebian.sh"
cp "$source/tests/scripts/stubs/package" "$stage/tests/cross/checkcross.sh"
cd "$stage"
export STUB_LOG=$stage/stub.log
export PATH=$source/tests/scripts/stubs:$PATH
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM

failures=0
complain() {
    echo "$*" >&2
    sed 's/^/    /' "$stage/output" >&2
    failures=$((failures + 1))
}

# check STATUS TEXT [NAME=VALUE...] COMMAND...: the command ends with the status, which "fails" is
# any but 0, and prints a line with the text.
check() {
    local wanted=$1 text=$2 status=0
    shift 2
    : >"$STUB_LOG"
    env "$@" >"$stage/output" 2>&1 || status=$?
    if [ "$wanted" = fails ]; then
        [ $status -ne 0 ] || complain "$*: does not fail"
    else
        [ $status -eq "$wanted" ] || complain "$*: ends with $status instead of $wanted"
    fi
    grep -qF -- "$text" "$stage/output" || complain "$*: does not say '$text'"
}

# check_calls TEXT: one of the stubs was called so.
check_calls() {
    grep -qF -- "$1" "$STUB_LOG" || complain "nothing was called as '$1'"
}

skipped="skipped: tst_stub: tst_stub::initTestCase() there is no such device"
check 0 "$skipped" ./test.sh
check_calls "-DCWIDGET_BUILD_BENCHMARKS=OFF"
check 0 "skipped: tst_stub: tst_stub::pictures() made elsewhere (2 rows)" ./test.sh
if grep -q "the output of the" "$stage/output"; then complain "test.sh prints what the build says"; fi
check 8 "$skipped" STUB_FAILS=ctest ./test.sh
check fails "the output of the configure" STUB_FAILS=configure ./test.sh
check fails "The build failed; all of its output is in build/test-qt5/build.log" STUB_FAILS=build ./test.sh
if grep -q ctest "$STUB_LOG"; then complain "the tests run after a failed build"; fi
check fails "" STUB_FAILS=build ./test.sh --sanitize
check fails "" STUB_FAILS=build ./test.sh --threads
check fails "" STUB_FAILS=build ./test.sh --fuzz 0
check fails "" STUB_FAILS=build ./test.sh --bench
check_calls "-DCWIDGET_BUILD_BENCHMARKS=ON"
check 2 "--sanitize" ./test.sh --no-such-option
check 0 "coverage of the library: 98.2 % of 200 lines, 90.0 % of 50 branches" ./test.sh --coverage
check_calls "-DCWIDGET_COVERAGE=ON"
check 1 "coverage: less than 98 % of the lines" STUB_COVERAGE=97.9 ./test.sh --coverage
check 8 "coverage of the library" STUB_FAILS=ctest ./test.sh --coverage
check 0 "$skipped" ./test.sh -- -R label
check_calls "-R label"

# Without a kernel to be had, and with one but without a virtual machine that runs.
no_device="The device is not tested: no virtual machine here"
kernel=$stage/tests/device/fetchkernel.sh
printf '#!/bin/sh\necho "apt knows no kernel package"; exit 1\n' >"$kernel"
chmod +x "$kernel"
check 0 "$no_device (apt knows no kernel package)" ./test.sh --device
printf '#!/bin/sh\n' >"$kernel"
check 0 "$no_device (the machine does not run here)" ./test.sh --device
if [ -s "$STUB_LOG" ]; then complain "something is built for a device that is not there"; fi
rm "$kernel"

# For another processor, too.
check 0 "$no_device (the machine does not run here)" ./test.sh --device --arch arm64
if grep -q checkcross "$stage/output"; then complain "a board is built for that is not there"; fi
check fails "checkcross.sh $stage --only device" STUB_MACHINE=1 STUB_FAILS=checkcross.sh \
    ./test.sh --device --arch arm64
board=$stage/tests/device/fetchboard.sh
printf '#!/bin/sh\necho "apt knows no kernel package"; exit 1\n' >"$board"
chmod +x "$board"
check 0 "$no_device (apt knows no kernel package)" STUB_MACHINE=1 ./test.sh --device --arch arm64
printf '#!/bin/sh\necho "$*" >>"$STUB_LOG"\n' >"$board"
printf 'import sys\nprint("run.py", *sys.argv[1:])\n' >"$stage/tests/device/run.py"
check 0 "--output build/device/arm64 idle" STUB_MACHINE=1 ./test.sh --device --arch arm64 -- idle
check_calls "build/arm64/root build/arm64/board"
rm "$board" "$stage/tests/device/run.py"

check 0 "checkdebian.sh $stage" ./test.sh --packages
check fails "" STUB_FAILS=package.sh ./test.sh --packages
if grep -q checkdebian "$stage/output"; then complain "packages that were not built are checked"; fi
check fails "" STUB_FAILS=checkdebian.sh ./test.sh --packages

check 0 "checkcross.sh $stage -R label" ./test.sh --arch arm64 -- -R label
check fails "" STUB_FAILS=checkcross.sh ./test.sh --arch arm64
check 2 "--arch is for arm64 and Qt 5 only" ./test.sh --arch riscv64
check 2 "--arch is for arm64 and Qt 5 only" ./test.sh --qt 6 --arch arm64

check 0 "The pictures are in build/shots." ./gallery.sh
check 0 "the gallery runs: --log" ./gallery.sh --log
check fails "The build failed" STUB_FAILS=build ./gallery.sh
if grep -q "the gallery runs" "$stage/output"; then complain "the gallery runs after a failed build"; fi
check 3 "the gallery runs" STUB_GALLERY=3 ./gallery.sh

check 0 "==== ./test.sh --qt 6" .ci/run
if grep -q checkcross "$stage/output"; then complain ".ci/run runs what is run by hand"; fi
for folder in test-qt5 test-qt5-sanitize test-qt5-threads test-qt6; do
    check 1 "==== failed:" STUB_FAILS=ctest:$folder .ci/run
    grep -q "==== ./test.sh --qt 6" "$stage/output" || complain ".ci/run stops at the first failure"
done
check 1 "==== failed:" STUB_FAILS=build .ci/run
check 1 "==== failed:" STUB_FAILS=checkdebian.sh .ci/run

# Without any rights the command is named. As nobody, since root would install the package.
if [ "$(id -u)" -eq 0 ]; then
    chmod -R a+rX "$stage"
    unprivileged=(setpriv --reuid 65534 --clear-groups)
    if setpriv --reuid 65534 --clear-groups bash -c 'command -v sudo' >/dev/null; then unprivileged=(); fi
else
    unprivileged=(env)
fi
if [ ${#unprivileged[@]} -gt 0 ] && ! command -v sudo >/dev/null; then
    check fails "apt-get install cmake" STUB_MISSING=cmake "${unprivileged[@]}" \
        bash -c "cd '$stage' && source tools/packages.sh && cwidget_install bash cmake"
else
    echo "SKIP: sudo is there, so nothing is refused for want of rights"
fi

[ $failures -eq 0 ] || exit 1
echo "ok"
