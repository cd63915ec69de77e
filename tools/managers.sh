#!/bin/sh
# Runs the tests of embedding and focus, and the walk, under each window manager that is installed, by hand; a line of
# result for each. Under a Wayland compositor, with XWayland, the walk alone is run.
#   tools/managers.sh [NAME...]     all that are known unless told; "none" is a display without one
# What each said stays in build/managers.
set -eu
cd "$(dirname "$0")/.."
. tools/prepare.sh
. tools/display.sh
bin=$(pwd)/build/test-clang/bin
logs=$(pwd)/build/managers

# The command that starts a window manager.
command_of() {
    case "$1" in
        none) ;;
        xfwm4) echo "xfwm4 --compositor=off" ;;
        metacity | marco) echo "$1 --no-composite" ;;
        mutter) echo "mutter --x11" ;;
        i3) echo "i3 -c $logs/i3.conf" ;;
        *) echo "$1" ;;
    esac
}

# tests PROGRAM FILTER: how many of the program's tests pass under the manager.
tests() {
    said=$logs/$name.$1.txt
    PENWRIGHT_TEST_MANAGER=$(command_of "$name") timeout 900 "$bin/$1" --gtest_filter="$2" >"$said" 2>&1 || true
    passed=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) test.*/\1/p' "$said")
    all=$(sed -n 's/^\[==========\] \([0-9]*\) test.* ran\..*/\1/p' "$said")
    [ "${passed:-0}" = "${all:-none}" ] || status=1
    printf ' %s %s of %s,' "$3" "${passed:-0}" "${all:-those begun}"
}

# Starts the manager or compositor on a display of its own; DISPLAY names it.
start_desktop() {
    case "$name" in
        weston)
            weston --backend=headless-backend.so --xwayland --width=1400 --height=1100 >"$logs/weston.log" 2>&1 &
            desktop=$!
            until_it grep -q "xserver listening on display" "$logs/weston.log" || return 1
            DISPLAY=$(sed -n 's/.*xserver listening on display \(:[0-9]*\).*/\1/p' "$logs/weston.log")
            ;;
        sway)
            # shellcheck disable=SC2016  # for the shell that sway starts
            printf 'output HEADLESS-1 resolution 1400x1100\nexec echo "$DISPLAY" > %s\n' "$logs/sway.display" \
                >"$logs/sway.conf"
            WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman \
                sway -c "$logs/sway.conf" >"$logs/sway.log" 2>&1 &
            desktop=$!
            until_it [ -s "$logs/sway.display" ] || return 1
            DISPLAY=$(cat "$logs/sway.display")
            ;;
        none) own_display 1400x1100 || return 1 ;;
        *)
            own_display 1400x1100 || return 1
            $(command_of "$name") >"$logs/$name.log" 2>&1 &
            desktop=$!
            until_it is_managed || return 1
            ;;
    esac
    export DISPLAY
}

# What came of the walk: that it left the same file as the first one, or its first line.
walk() {
    own_home "$(mktemp -d)"
    said=$logs/$name.walk.txt
    if ! start_desktop; then
        status=1
        echo "it does not start: $(tail -n 1 "$logs/$name.log")"
    elif QT_QPA_PLATFORM=xcb timeout 300 "$bin/hostbench" --walk "$logs/$name" >"$said" 2>&1; then
        [ -e "$logs/first.ies" ] || cp "$logs/$name/luminaire.ies" "$logs/first.ies"
        cmp -s "$logs/first.ies" "$logs/$name/luminaire.ies" && echo "same file" || { status=1; echo "another file"; }
    else
        status=1
        grep -m 1 '^hostbench: ' "$said" || tail -n 1 "$said"
    fi
    for process in ${desktop-} ${server-}; do
        kill "$process" 2>/dev/null || true
    done
    wait
    rm -rf "$HOME"
}

if [ "${1-}" = --under ]; then  # on a session bus of its own, which ends with what is started on it
    name=$2
    status=0
    export GSETTINGS_BACKEND=memory NO_AT_BRIDGE=1  # neither settings of the user's nor screen readers
    printf '%s:' "$name"
    case "$name" in
        weston | sway) ;;
        *)
            without=
            [ "$name" != none ] || without=-WithManager*
            tests x11_tests "*$without" "embedding and focus"
            tests x11_closing_tests '*' "closing"
            tests run_tests 'EmbeddedRun.*' "wizard in a host"
            ;;
    esac
    printf ' walk: '
    walk
    exit "$status"
fi

install_packages
configure test-clang
build test-clang --target PenwrightPE hostbench bare_host x11_tests x11_closing_tests run_tests ||
    { echo "The build failed." >&2; exit 1; }
rm -rf "$logs"
mkdir -p "$logs"
# A tiled window has no size of its own, which the tests ask for.
printf '%s\n' '# i3 config file (v4)' 'for_window [all] floating enable' 'floating_minimum_size 1 x 1' \
    'floating_maximum_size -1 x -1' >"$logs/i3.conf"
[ $# -gt 0 ] || set -- none openbox xfwm4 kwin_x11 metacity marco mutter icewm i3 fluxbox weston sway
status=0
for name in "$@"; do
    if [ "$name" = none ] || command -v "$name" >/dev/null 2>&1; then
        dbus-run-session -- sh tools/managers.sh --under "$name" 2>"$logs/$name.errors" || status=1
    else
        echo "$name: not installed"
    fi
done
exit "$status"
