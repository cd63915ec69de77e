#!/bin/sh
# Builds the program and opens the stand-in host with the wizard in it.
#   ./run.sh                 needs a display; without one it does what --walk does
#   ./run.sh --walk FOLDER   walks through the whole path by itself, on a display of its own, and leaves the file and
#                            one picture of each page in FOLDER
set -eu
started_in=$(pwd)
cd "$(dirname "$0")"

folder=
case "${1-}" in
    "") ;;
    --walk)
        [ $# -eq 2 ] && [ -n "$2" ] || { echo "usage: ./run.sh [--walk FOLDER]" >&2; exit 2; }
        case "$2" in
            /*) folder=$2 ;;
            *) folder=$started_in/$2 ;;
        esac
        ;;
    *) echo "usage: ./run.sh [--walk FOLDER]" >&2; exit 2 ;;
esac

. tools/prepare.sh
install_packages
configure release
build release --target PenwrightPE hostbench || { echo "The build failed." >&2; exit 1; }

if [ -z "$folder" ]; then
    if xdpyinfo >/dev/null 2>&1; then
        exec build/release/bin/hostbench --new
    fi
    echo "There is no X display here, so the program walks through the whole path by itself on a display of its own."
    folder=$(pwd)/build/walk
fi

number=$(mktemp)
Xvfb -displayfd 3 -screen 0 1400x1100x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null || true; rm -f "$number"' EXIT
trap 'exit 1' HUP INT TERM
turns=0
until [ -s "$number" ]; do
    turns=$((turns + 1))
    if [ "$turns" -gt 300 ] || ! kill -0 "$server" 2>/dev/null; then
        echo "A display could not be started with Xvfb." >&2
        exit 1
    fi
    sleep 0.1
done
mkdir -p "$folder"
DISPLAY=:$(cat "$number") QT_QPA_PLATFORM=xcb build/release/bin/hostbench --walk "$folder"
