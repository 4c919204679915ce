# Sourced: what installed packages leave behind.

# traces_paths ROOT: every path but those of the test, the kernel, apt and dpkg; ROOT is empty for /.
traces_paths() {
    find "${1:-/}" -xdev \( -path "$1/test" -o -path "$1/proc" -o -path "$1/dev" \
        -o -path "$1/var/cache/apt" -o -path "$1/var/lib/apt" -o -path "$1/var/lib/dpkg" \
        -o -path "$1/var/log" -o -path "$1/tmp" \) -prune -o -print | sort
}

# traces_left BEFORE AFTER PATTERN: says what differs between two lists of paths, and which packages
# dpkg still knows; fails when there is something.
traces_left() {
    local left
    if ! left=$(diff "$1" "$2"); then
        echo "this differs from before the installation: $left"
        return 1
    fi
    left=$(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "$3" 2>/dev/null |
        grep -v not-installed || true)
    if [ -n "$left" ]; then
        echo "dpkg still knows $left"
        return 1
    fi
}
