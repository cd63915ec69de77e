#!/bin/sh
# Copies tables from spreadsheets into the wizard and back by real keys, on a display of its own, by hand: tilt factors,
# keyword lines, both lists of angles and the candela values; a line of result for each.
#   tools/spreadsheets.sh [NAME...]     gnumeric and localc unless told
# The tables, and what the programs said, stay in build/spreadsheets.
set -eu
cd "$(dirname "$0")/.."
. tools/prepare.sh
. tools/display.sh
work=$(pwd)/build/spreadsheets

# The table in the clipboard.
clipboard() { timeout 5 xclip -o -selection clipboard -t UTF8_STRING 2>/dev/null | tr -d '\r'; }

# That what is copied from here on is seen.
forget() { printf none | xclip -i -selection clipboard; }

keys() { xdotool key --delay 30 "$@"; }

# is_seen PATTERN: whether there is a window whose title is like that.
is_seen() { xdotool search --name "$1" >/dev/null 2>&1; }

# window_with PATTERN: waits for a window whose title is like that, and turns to it.
window_with() {
    until_it is_seen "$1"
    window=$(xdotool search --onlyvisible --name "$1" | tail -n 1)
    sleep 1
    # Activated once more, a host takes the keyboard from its wizard.
    [ "$(xdotool getactivewindow 2>/dev/null)" = "$window" ] || until_it xdotool windowactivate --sync "$window"
    sleep 1
}

# has_keyboard: whether what is typed goes into the wizard, in its host's window.
has_keyboard() {
    case "$(xdotool getwindowfocus -f getwindowname 2>/dev/null)" in *' of 6) '*) ;; *) return 1 ;; esac
}

# to_wizard: turns to the wizard.
to_wizard() {
    window_with '^Photometric Toolbox'
    until_it has_keyboard
}

# office OPTION...: the user's own office may be running; its settings stay untouched. The first run of a new user makes
# his settings and ends.
office() {
    set -- /usr/lib/libreoffice/program/soffice.bin "-env:UserInstallation=file://$HOME/office" "$@"
    [ -d "$HOME/office" ] || "$1" "$2" --headless --terminate_after_init || true
    exec "$@"
}

# open_sheet TABLE: shows a table in the spreadsheet.
open_sheet() {
    case "$program" in
        localc)
            office --norestore --nologo --calc --infilter=CSV:44,34,76,1,,1033 "$work/$1.csv" &
            ;;
        *) "$program" "$work/$1.csv" & ;;
    esac >>"$work/$program.log" 2>&1
    sheet=$!
    window_with "^$1.csv"
}

copy_sheet() {
    forget
    keys ctrl+Home ctrl+shift+End ctrl+c
}

has_copied() { [ "$(clipboard)" = "$1" ]; }

# expect TABLE STEP: whether the clipboard comes to hold a table.
expect() {
    until_it has_copied "$(tr , '\t' <"$work/$1.csv")" && return
    echo "$program: $1: $2: $(clipboard | head -n 3 | tr '\t\n' ' /')"
    status=1
    return 1
}

# there_and_back TABLE KEY...: copies a table from the spreadsheet into the grid that has the focus in the wizard; what
# the keys copy there goes back into the emptied sheet.
there_and_back() {
    table=$1
    shift
    open_sheet "$table"
    copy_sheet
    if expect "$table" "the spreadsheet copies"; then
        to_wizard
        keys ctrl+v
        sleep 1
        forget
        keys "$@"
        if expect "$table" "the wizard copies"; then
            window_with "^$table.csv"
            keys ctrl+Home ctrl+shift+End Delete ctrl+Home ctrl+v
            sleep 2
            # Both ask how the text is to be understood, one in several steps.
            for _ in 1 2 3 4; do
                ! is_seen '^Text Import' || keys Return
                sleep 1
            done
            copy_sheet
            ! expect "$table" "the spreadsheet copies what came back" || echo "$program: $table: there and back"
        fi
    fi
    kill -KILL "$sheet"
    wait "$sheet" 2>/dev/null || true
    to_wizard
}

# page NUMBER: turns to the wizard's next page.
page() {
    keys alt+n
    until_it is_seen "\($1 of 6\)"
    sleep 1
}

walk() {
    xdotool type --delay 20 "$(printf '1\t1000\t1\t1\t42\t\t0.5\t0\t0\t\t')"
    keys space
    page 2
    xdotool type --delay 20 "$(printf '3\t')"
    keys space Tab
    there_and_back tilt ctrl+Home ctrl+shift+Down shift+Right ctrl+c
    page 3
    keys Down
    there_and_back keywords ctrl+Home Down shift+Right shift+Down ctrl+c
    page 4
    keys space Tab
    xdotool type --delay 20 "$(printf '4\t')"
    there_and_back vertical ctrl+a ctrl+c
    keys ctrl+Tab
    xdotool type --delay 20 "$(printf '3\t')"
    there_and_back horizontal ctrl+a ctrl+c
    page 5
    there_and_back candelas ctrl+c
}

if [ "${1-}" = --with ]; then  # on a session bus of its own, which ends with what is started on it
    program=$2
    status=0
    home=$(mktemp -d)
    own_home "$home"
    own_display 1400x1100
    trap 'kill ${host-} ${manager-} "$server" 2>/dev/null || true; rm -rf "$home"' EXIT
    trap 'exit 1' HUP INT TERM
    export GSETTINGS_BACKEND=memory NO_AT_BRIDGE=1
    openbox >/dev/null 2>&1 &
    manager=$!
    until_it is_managed
    build/release/bin/hostbench --new &
    host=$!
    until_it is_seen '\(1 of 6\)'
    sleep 1
    walk
    exit "$status"
fi

install_packages
command -v xclip >/dev/null 2>&1 || { echo "xclip is not there: sudo apt-get install xclip" >&2; exit 1; }
configure release
build release --target PenwrightPE hostbench || { echo "The build failed." >&2; exit 1; }
rm -rf "$work"
mkdir -p "$work"
printf '%s\n' 0,1 45,0.95 90,0.875 >"$work/tilt.csv"
printf '%s\n' '[TEST],Report 7' '[MANUFAC],Lamp works' >"$work/keywords.csv"
printf '%s\n' 0,22.5,67.5,90 >"$work/vertical.csv"
printf '%s\n' 0,45,90 >"$work/horizontal.csv"
printf '%s\n' 1200,1150.25,1100.5 900,812.375,700 80.5,60.125,33 0,0,0 >"$work/candelas.csv"
[ $# -gt 0 ] || set -- gnumeric localc
status=0
for program in "$@"; do
    if command -v "$program" >/dev/null 2>&1; then
        dbus-run-session -- sh tools/spreadsheets.sh --with "$program" 2>>"$work/$program.log" || status=1
    else
        echo "$program: not installed"
    fi
done
exit "$status"
