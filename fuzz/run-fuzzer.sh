#!/usr/bin/env bash
# Runs one fuzzing harness for FUZZ_SECONDS seconds (5 by default).
#   run-fuzzer.sh HARNESS WORK-FOLDER CORPUS-FOLDER...
# New inputs go to WORK-FOLDER/corpus, a crashing input to WORK-FOLDER/crashes
# (keep it under tests/data/fuzz/<reader>/ once fixed); corpus folders that do
# not exist are left out.
set -euo pipefail
harness=$1
work=$2
shift 2
mkdir -p "$work/corpus" "$work/crashes"
corpora=()
for folder in "$@"; do
    if [[ -d $folder ]]; then corpora+=("$folder"); fi
done
exec "$harness" -max_total_time="${FUZZ_SECONDS:-5}" -timeout=10 -rss_limit_mb=2048 \
    -artifact_prefix="$work/crashes/" -print_final_stats=1 "$work/corpus" "${corpora[@]}"
