#!/usr/bin/env bash
# Runs a fuzzer: run.sh SECONDS PROGRAM SEEDS LARGE
#
# First it tries each file of the folder LARGE, if there is one, then what lies in SEEDS.
# SEEDS.options holds limits of its own, a line each, and SEEDS.dict words.
#
# With 0 seconds it only replays the seeds. What the fuzzer learns stays in PROGRAM.corpus for the
# next time, and an input that brings it down in the folder of the program.
set -euo pipefail

seconds=$1
program=$2
seeds=$3
large=$4

options=(-timeout=20 -rss_limit_mb=4096 -print_final_stats=1 "-artifact_prefix=$program-")
if [ -f "$seeds.dict" ]; then options+=("-dict=$seeds.dict"); fi
if [ -f "$seeds.options" ]; then
    mapfile -t -O "${#options[@]}" options <"$seeds.options"
fi

echo "== $(basename "$program")"
if [ -d "$large" ]; then "$program" "${options[@]}" "$large"/*; fi
if [ "$seconds" -eq 0 ]; then
    exec "$program" "${options[@]}" -runs=0 "$seeds"
fi
mkdir -p "$program.corpus"
exec "$program" "${options[@]}" "-max_total_time=$seconds" "$program.corpus" "$seeds"
