#!/usr/bin/env bash
# Runs a fuzzer: run.sh SECONDS PROGRAM SEEDS
#
# With 0 seconds it only replays the seeds. What the fuzzer learns stays in PROGRAM.corpus for the
# next time, and an input that brings it down in the folder of the program.
set -euo pipefail

seconds=$1
program=$2
seeds=$3

options=(-timeout=20 -rss_limit_mb=4096 -print_final_stats=1 "-artifact_prefix=$program-")
[ -f "$seeds.dict" ] && options+=("-dict=$seeds.dict")

echo "== $(basename "$program")"
if [ "$seconds" -eq 0 ]; then
    exec "$program" "${options[@]}" -runs=0 "$seeds"
fi
mkdir -p "$program.corpus"
exec "$program" "${options[@]}" "-max_total_time=$seconds" "$program.corpus" "$seeds"
