#!/usr/bin/env bash
# symbols.sh LIBRARY [--update]
#
# Compares what LIBRARY exports with the symbols file of the Debian package. A symbol that goes breaks
# the programs of others; one that comes is there for good. Whatever is exported belongs to a public
# class. With --update it writes the file: a symbol keeps the version that it first came with, a new
# one gets that of style/version.h. NM names the nm for a library of another processor.
set -euo pipefail
library=$1
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
list=$project/debian/libquorlin-cwidget1.symbols

exported() {
    # The linker's own names end the sections of any library.
    "${NM:-nm}" -D --demangle --defined-only "$library" | sed 's/^[0-9a-f]* . //' |
        grep -vE '^(__bss_start(__)?|__?bss_end__|__end__|_edata|_end)$' | LC_ALL=C sort -u
}

listed() {
    sed -n 's/^ (c++)"\(.*\)@Base" .*/\1/p' "$list" | LC_ALL=C sort -u
}

# The classes and functions that the symbols read from standard input belong to.
owners() {
    sed -E 's/^(non-virtual thunk to|typeinfo name for|typeinfo for|vtable for) //; s/(::|\().*//' |
        LC_ALL=C sort -u
}

# The public ones, the reader of a style, and the one that is exported for the tests.
allowed() {
    { cat "$project/tests/package/classes.txt"; printf '%s\n' getStyle QDeviceWatcherPrivate; } |
        LC_ALL=C sort -u
}

if [ "${2:-}" = --update ]; then
    version=$(sed -n 's/^#define CWIDGET_VERSION_STR "\(.*\)"$/\1/p' "$project/style/version.h")
    {
        echo "libquorlin-cwidget.so.1 libquorlin-cwidget1 #MINVER#"
        echo "* Build-Depends-Package: libquorlin-cwidget-dev"
        exported | while IFS= read -r symbol; do
            known=$(grep -F " (c++)\"$symbol@Base\" " "$list" 2>/dev/null || true)
            echo "${known:- (c++)\"$symbol@Base\" $version}"
        done
    } >"$list.new"
    mv "$list.new" "$list"
    exit
fi

foreign=$(exported | owners | LC_ALL=C comm -23 - <(allowed))
if [ -n "$foreign" ]; then
    echo "exported, but no public class: $foreign" >&2
    exit 1
fi
difference() {
    diff "$@" | sed -n 's/^</gone:/p; s/^>/new: /p' || true
}

differing=$(difference <(listed) <(exported))
if [ -n "$differing" ]; then
    echo "$differing"
    echo "The exported symbols differ from $list. Where that is meant:" >&2
    echo "  tests/project/symbols.sh $library --update" >&2
    exit 1
fi
echo "$(listed | wc -l) symbols"

# What the comparison says of one that is gone, and of one that is new.
for less in "$(difference <(listed) <(exported | sed 1d))" "$(difference <(listed | sed 1d) <(exported))"; do
    if [ "$(wc -l <<<"$less")" != 1 ] || [ -z "$less" ]; then
        echo "the comparison does not see that a symbol has come or gone" >&2
        exit 1
    fi
done
