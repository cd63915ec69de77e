#!/bin/sh
# What the screen reader Orca says of the wizard, by hand on your own desktop: opens the stand-in host with the wizard in
# it beside Orca, and leaves all that was said in a file, a line each, when the host is closed.
#   tools/hear.sh [FILE]         build/spoken.txt unless told
set -eu
spoken=${1-}
case "$spoken" in
    "" | /*) ;;
    *) spoken=$(pwd)/$spoken ;;
esac
cd "$(dirname "$0")/.."
[ -n "$spoken" ] || spoken=$(pwd)/build/spoken.txt
command -v orca >/dev/null 2>&1 || { echo "Orca is not there: sudo apt-get install orca" >&2; exit 1; }

. tools/prepare.sh
install_packages
configure release
build release --target PenwrightPE hostbench || { echo "The build failed." >&2; exit 1; }

log=$(mktemp)
orca --replace --debug-file="$log" &
reader=$!
trap 'kill "$reader" 2>/dev/null || true; rm -f "$log"' EXIT
trap 'exit 1' HUP INT TERM
QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 build/release/bin/hostbench --new || true
sed -n "s/.*SPEECH OUTPUT: '\(.*\)'.*/\1/p" "$log" >"$spoken"
echo "What was said stands in $spoken."
