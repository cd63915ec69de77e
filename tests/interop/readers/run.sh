#!/bin/sh
# Has readers that others wrote read what the program writes, and compares each value: docs/readers.md has what came of
# it. By hand, because it takes node, npm and the net; nothing of theirs enters the tree.
#   tests/interop/readers/run.sh
set -eu
cd "$(dirname "$0")/../../.."
for need in node npm; do
    command -v "$need" >/dev/null 2>&1 || { echo "$need is needed and not there." >&2; exit 1; }
done

. tools/prepare.sh
install_packages
configure release
build release --target reader_samples
folder=$(pwd)/build/readers
rm -rf "$folder/samples"
mkdir -p "$folder/samples"
build/release/bin/reader_samples "$folder/samples"
cp tests/interop/readers/package.json tests/interop/readers/compare.mjs "$folder"
cd "$folder"
npm install --ignore-scripts --no-audit --no-fund --no-package-lock --loglevel=error
node compare.mjs samples
