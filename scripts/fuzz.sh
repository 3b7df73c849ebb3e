#!/usr/bin/env bash
# Builds the fuzzing harnesses of the file readers (fuzz preset, clang) and
# runs each for FUZZ_SECONDS seconds (5 by default). Without clang it says so
# and succeeds: the inputs kept under tests/data/fuzz are replayed by the
# engine tests all the same.
set -euo pipefail
cd "$(dirname "$0")/.."
if ! command -v clang++ >/dev/null 2>&1; then
    echo "clang++ not found: skipped the fuzzers"
    exit 0
fi
export FUZZ_SECONDS="${FUZZ_SECONDS:-5}"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
ctest --preset fuzz --timeout $((FUZZ_SECONDS + 120))
