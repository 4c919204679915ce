#!/usr/bin/env bash
# checkmutate.sh SOURCE: the list of faults fits the sources, and mutate.py says of a list that does
# not fit in which line, and why.
set -euo pipefail
source=$1
/usr/bin/python3 "$source/tests/mutate.py" --check

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
cat >"$stage/list" <<'END'
# a line that fits, and five that do not
widgets/label.cpp | const int defaultTextSize = 9; | const int defaultTextSize = 8; | ^tst_label
widgets/label.cpp | no such text | another one | ^tst_label
widgets/label.cpp | CLabel | CText | ^tst_label
widgets/nolabel.cpp | CLabel | CText | ^tst_label
widgets/label.cpp | const int defaultTextSize = 9; | const int defaultTextSize = 9; | ^tst_label
widgets/label.cpp | three parts | only
END
count=$(grep -o CLabel "$source/widgets/label.cpp" | wc -l)
cat >"$stage/wanted" <<END
line 3 has a pattern that stands 0 times in the file
line 4 has a pattern that stands $count times in the file
line 5 names a file that is not there
line 6 changes nothing
line 7 is not of four parts
END
status=0
/usr/bin/python3 "$source/tests/mutate.py" --check --list "$stage/list" 2>"$stage/said" || status=$?
diff "$stage/wanted" "$stage/said"
test $status -eq 2
status=0
/usr/bin/python3 "$source/tests/mutate.py" --check --list /dev/null 2>"$stage/said" || status=$?
test $status -eq 2
echo "ok"
