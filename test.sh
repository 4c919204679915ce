#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test.
#
#   ./test.sh                  Qt 5
#   ./test.sh --qt 6           another generation of Qt; for 4, QT4_DIR must name the folder of Qt 4.8
#   ./test.sh --sanitize       with the Address, UndefinedBehavior and Leak sanitizers
#   ./test.sh --threads        the tests with several threads, with the Thread sanitizer (Qt 5)
#   ./test.sh --clang          builds the library and the examples with Clang, and runs nothing
#   ./test.sh --coverage       and says how much of the library the tests run; 98 % of the lines must be
#   ./test.sh --bench          the benchmarks
#   ./test.sh --packages       builds the Debian packages, and uses them in a fresh system
#   ./test.sh --arch arm64     builds for another processor, and runs the tests on an emulated one (Qt 5)
#   ./test.sh --device         the gallery on the frame buffer of a virtual machine, touched and plugged;
#                              with --arch arm64, one with another processor
#   ./test.sh --fuzz SECONDS   each fuzzer for so long; 0 replays their seeds only (Qt 5)
#
# What follows -- goes to ctest, with --device to tests/device/run.py.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/packages.sh
source tools/build.sh

qt=5
sanitize=OFF
threads=OFF
clang=
bench=
coverage=
fuzz=
packages=
arch=
device=
while [ $# -gt 0 ]; do
    case $1 in
        --qt) qt=${2:?--qt needs 5 or 6}; shift 2 ;;
        --sanitize) sanitize=ON; shift ;;
        --threads) threads=ON; shift ;;
        --clang) clang=1; shift ;;
        --coverage) coverage=1; shift ;;
        --bench) bench=1; shift ;;
        --packages) packages=1; shift ;;
        --arch) arch=${2:?--arch needs arm64}; shift 2 ;;
        --device) device=1; shift ;;
        --fuzz) fuzz=${2:?--fuzz needs a number of seconds}; shift 2 ;;
        --) shift; break ;;
        *) sed -n '2,16s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
    esac
done
if [ "$threads" = ON ] && [ "$qt" != 5 ]; then
    echo "--threads is for Qt 5 only: what tests/support/qtthreads.cpp knows of Qt's locks is that" >&2
    exit 2
fi
if [ -n "$arch" ] && { [ "$arch" != arm64 ] || [ "$qt" != 5 ]; }; then
    echo "--arch is for arm64 and Qt 5 only" >&2
    exit 2
fi

qt_options=()
if [ "$qt" = 4 ]; then
    if [ ! -x "${QT4_DIR:-}/bin/qmake" ]; then
        echo "Qt 4.8 is in no package: set QT4_DIR to the folder that has its bin/qmake" >&2
        exit 2
    fi
    qt_options=(-DQT_QMAKE_EXECUTABLE="$QT4_DIR/bin/qmake")
fi

if [ -n "$packages" ]; then
    cwidget_install debootstrap lintian util-linux
    ./package.sh
    exec tests/debian/checkdebian.sh "$PWD"
fi

# need_machine COMMAND...: does what the virtual machine needs. Where that cannot be, says so, and ends.
need_machine() {
    local trouble
    if ! trouble=$("$@" 2>&1); then
        echo "The device is not tested: no virtual machine here ($(echo "$trouble" | tail -n 1))"
        exit 0
    fi
}

if [ -n "$arch" ]; then
    cwidget_install debootstrap util-linux
    if [ -z "$device" ]; then exec tests/cross/checkcross.sh "$PWD" "$@"; fi
    need_machine cwidget_install qemu-system-arm e2fsprogs kmod python3 udev
    need_machine qemu-system-aarch64 --version
    tests/cross/checkcross.sh "$PWD" --only device
    need_machine tests/device/fetchboard.sh build/arm64/root build/arm64/board
    exec /usr/bin/python3 tests/device/run.py --arch arm64 --build build/arm64/tests \
        --kernel build/arm64/board/kernel --system build/arm64/board/root \
        --output build/device/arm64 "$@"
fi

test_packages="clang-format-14 clang-tidy-14 clang-14 shellcheck python3 xvfb openbox xdotool x11-utils usbutils util-linux"
device_packages="qemu-system-x86 busybox-static kmod udev usbutils util-linux e2fsprogs python3"
test_packages+=" doxygen qttools5-dev-tools abigail-tools xz-utils"
# shellcheck disable=SC2046,SC2086
cwidget_install $(cwidget_build_packages "$qt") $(cwidget_run_packages "$qt") \
    $(cwidget_designer_packages "$qt") $test_packages
if [ -n "$bench" ]; then cwidget_install libbenchmark-dev; fi
if [ -n "$coverage" ]; then cwidget_install gcovr; fi
if [ -n "$clang" ]; then cwidget_install clang-14; fi
if [ -n "$fuzz" ]; then cwidget_install clang-14 libclang-rt-14-dev llvm-14; fi

if [ -n "$device" ]; then
    # shellcheck disable=SC2086
    need_machine cwidget_install $device_packages
    need_machine tests/device/fetchkernel.sh build/device/kernel
    need_machine qemu-system-x86_64 --version
fi

build=build/test-qt$qt
# Qt 6 without what it has deprecated shows early what the next one will not have.
options=(-DCWIDGET_QT_MAJOR="$qt" -DCWIDGET_WERROR=ON -DCWIDGET_SANITIZE="$sanitize"
         -DCWIDGET_SANITIZE_THREADS="$threads" "${qt_options[@]}"
         -DCWIDGET_NO_DEPRECATED="$([ "$qt" = 6 ] && echo ON || echo OFF)")
target=
if [ "$sanitize" = ON ]; then
    build+=-sanitize
    options+=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
elif [ "$threads" = ON ]; then
    build+=-threads
    options+=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
    target=threads
    set -- -L threads "$@"
elif [ -n "$coverage" ]; then
    build+=-coverage
    # Built once to be run once.
    options+=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE=-O0 -DCWIDGET_COVERAGE=ON)
elif [ -n "$clang" ]; then
    build=build/clang-qt$qt
    options+=(-DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_COMPILER=clang++-14 -DBUILD_TESTING=OFF)
elif [ -n "$fuzz" ]; then
    build=build/fuzz-qt$qt
    options+=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++-14
              -DCWIDGET_BUILD_FUZZERS=ON -DCWIDGET_FUZZ_SECONDS="$fuzz"
              -DBUILD_TESTING=OFF -DCWIDGET_BUILD_EXAMPLES=OFF)
    target=fuzz
else
    options+=(-DCMAKE_BUILD_TYPE=Release)
    if [ "$qt" = 5 ]; then options+=(-DCWIDGET_ABI_CHECK=ON); fi
fi
if [ -n "$device" ]; then target=device; fi
options+=(-DCWIDGET_BUILD_BENCHMARKS="$([ -n "$bench" ] && echo ON || echo OFF)")

# The fuzzers run as part of their build, so its output is shown.
if [ -n "$fuzz" ]; then
    cmake -S . -B "$build" -G Ninja "${options[@]}"
    exec cmake --build "$build" --target "$target"
fi
cwidget_build "$build" "$target" "${options[@]}"

if [ -n "$clang" ]; then exit; fi
if [ -n "$device" ]; then
    exec /usr/bin/python3 tests/device/run.py --build "$build" --kernel build/device/kernel \
        --output "build/device/qt$qt" "$@"
fi
if [ -n "$bench" ]; then exec cmake --build "$build" --target bench; fi

# Counts of an earlier run, or of sources that have changed since, would add to these.
if [ -n "$coverage" ]; then find "$build" -name '*.gcda' -delete; fi
status=0
(cd "$build" && ctest --output-on-failure -j "$(nproc)" "$@") || status=$?
tools/skipped.sh "$build/Testing/Temporary/LastTest.log"
if [ -n "$coverage" ]; then tools/coverage.sh "$build" || status=1; fi
exit $status
