#!/usr/bin/env bash
# reference.sh CMAKE BUILD: builds the reference, in which everything undocumented is an error, and
# looks at what came of it.
set -euo pipefail
cmake=$1 build=$2
docs=$build/docs

"$cmake" --build "$build" --target docs >"$docs/build.log" 2>&1 || { cat "$docs/build.log" "$docs/warnings.log"; exit 1; }
test ! -s "$docs/warnings.log"
test -s "$docs/html/index.html"
test -s "$docs/html/search/all_0.js"
head -c 15 "$docs/quorlin-cwidget.qch" | grep -q 'SQLite format 3'

# A page for every class that can be included by its name, most of them with a picture.
pictures=0
for class in "$build"/forwarding/[A-Z]*; do
    name=$(basename "$class")
    page=$(grep -l "<compoundname>$name</compoundname>" "$docs"/xml/*.xml)
    test -n "$page" || { echo "no page for $name" >&2; exit 1; }
    if grep -q "<image type=\"html\" name=\"$name.png\"" "$page"; then
        pictures=$((pictures + 1))
        test -s "$docs/html/$name.png"
    fi
done
test "$pictures" -eq 27

# Every property, and every class under the name that a program includes.
source=$(dirname "${BASH_SOURCE[0]}")/../..
properties=$(cat "$source"/{style,widgets,pages,parm,keypad,hotplug}/*.h | grep -c 'Q_PROPERTY(')
test "$(cat "$docs"/xml/class*.xml | grep -c '<memberdef kind="property"')" -eq "$properties"
test "$(grep -l '<includes[^>]*>[A-Z][A-Za-z]*</includes>' "$docs"/xml/class*.xml | wc -l)" -eq 34

# Doxygen itself does not ask for words about enumerators.
awk '/<enumvalue /   { inside = 1; name = ""; said = 0 }
     inside && /<name>/ { name = $0; gsub(/ *<\/?name>/, "", name) }
     inside && /<para>/ { said = 1 }
     /<\/enumvalue>/ { ++count; if (!said) { print FILENAME ": nothing is said about " name; bad = 1 }; inside = 0 }
     END { print count " enumerators"; if (bad || count < 200) exit 1 }' "$docs"/xml/*.xml
