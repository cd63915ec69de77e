#!/bin/sh
# Lets the fuzzers run for long, one after the other, built so that they follow the branches that an input takes.
#   tests/fuzz/run.sh SECONDS [FUZZER...]    for instance: tests/fuzz/run.sh 3600 ies help; without names, all of them
# New inputs go to build/fuzz/found, and so does the input of a finding, which ends the run with status 1.
set -eu
cd "$(dirname "$0")/../.."
[ $# -gt 0 ] || { echo "usage: tests/fuzz/run.sh SECONDS [FUZZER...]" >&2; exit 2; }
seconds=$1
shift
[ $# -gt 0 ] || set -- splitter number record block table ies help draft store

. tools/prepare.sh
install_packages
configure fuzz
build fuzz --target fuzzers
for fuzzer; do
    found=build/fuzz/found/$fuzzer
    mkdir -p "$found"
    echo "== $fuzzer: $seconds seconds"
    "build/fuzz/bin/fuzz_$fuzzer" -max_total_time="$seconds" -timeout=10 -print_final_stats=1 \
        -artifact_prefix="$found-" "$found" "tests/fuzz/corpus/$fuzzer" 2>"$found.log" ||
        { tail -n 40 "$found.log" >&2; echo "A finding of $fuzzer; its input is named above." >&2; exit 1; }
    grep -E '^(Done|stat::number_of_executed_units|stat::new_units_added)' "$found.log"
done
