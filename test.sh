#!/bin/sh
# Builds and tests everything: with sanitizers under gcc and under clang, then what the release build makes: its rules
# and its programs.
#   ./test.sh            all three
#   ./test.sh PRESET     one of them: test, test-clang, release, release-clang
set -eu
cd "$(dirname "$0")"
. tools/prepare.sh
install_packages

for preset in ${1:-test test-clang release}; do
    configure "$preset"
    build "$preset"
    echo "== $preset: testing"
    ctest --preset "$preset" -j "$(($(nproc) + 1))"  # most of them wait most of the time
done
