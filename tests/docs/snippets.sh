#!/usr/bin/env bash
# snippets.sh SOURCE BUILD CXX STANDARD QT-MODULES
#
# Compiles every block of C++ in README.md, CONTRIBUTING.md and docs/. A block that includes
# something is a program of its own. Any other becomes the body of a member function; what is at
# hand there is in prelude.h.
set -euo pipefail
source=$1 build=$2 cxx=$3 standard=$4 modules=$5

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for class in "$build"/forwarding/*; do echo "#include <$(basename "$class")>"; done >"$work/allclasses.h"

read -ra flags < <(pkg-config --cflags "$modules")
flags+=(-std=c++"$standard" -fPIC -fsyntax-only -Wall -Wextra -Werror -Wno-unused-variable
    -Wno-unused-but-set-variable -DSTYLE_FILE='"widget-style.xml"' -I"$work" -I"$source" -I"$build/forwarding" -I"$source/tests/docs")

# All blocks without an include share a source, a function each.
total=0
echo '#include "prelude.h"' >"$work/bodies.cpp"
cd "$source"
for page in README.md CONTRIBUTING.md docs/*.md; do
    name=$(basename "$page" .md)
    awk -v page="$page" -v bodies="$work/bodies.cpp" -v program="$work/$name" -v number="$total" '
        /^```cpp$/ { inside = 1; block = ""; line = NR + 1; whole = 0; next }
        /^```$/ && inside {
            inside = 0
            ++number
            block = "#line " line " \"" page "\"\n" block
            if (whole)
                printf "%s", block >(program "-" number ".cpp")
            else
                printf "class Page%d : public Page { void code(); };\nvoid Page%d::code()\n{\n%s}\n",
                    number, number, block >>bodies
            next
        }
        inside && /^#include/ { whole = 1 }
        inside { block = block $0 "\n" }
        END { print number + 0 }
    ' "$page" >"$work/count"
    total=$(cat "$work/count")
done

shopt -s nullglob
for file in "$work"/*.cpp; do
    # The moc file of a program is the build of examples/; here its slots need no code.
    sed -i 's|^#include ".*\.moc"$||' "$file"
    "$cxx" "${flags[@]}" "$file"
done
test "$total" -ge 30
echo "$total snippets compiled"

# The programs of the first page are the ones in examples/tutorial, to the letter.
for step in 1 2 3 4; do
    awk -v wanted="$step" '/^```cpp$/ { inside = 1; ++n; next } /^```$/ { inside = 0 }
        inside && n == wanted' docs/first-panel.md | diff - examples/tutorial/step$step.cpp
done
