#!/bin/sh
# What the screen reader Orca says of the wizard, by hand; a line for each thing said.
#   tools/hear.sh [FILE]          on your own desktop, of what you do until you close the stand-in host;
#                                 build/spoken.txt unless told
#   tools/hear.sh --walk [FILE]   on a display of its own, of the walk over all pages that
#                                 tests/data/accessibility/walk.txt holds, with its keys; docs/spoken.txt unless told
set -eu
mode=desktop
case "${1-}" in
    --walk | --walking)
        mode=${1#--}
        shift
        ;;
esac
spoken=${1-}
case "$spoken" in
    "" | /*) ;;
    *) spoken=$(pwd)/$spoken ;;
esac
cd "$(dirname "$0")/.."
. tools/prepare.sh
. tools/display.sh

# What has been said so far.
said() { sed -n "s/.*SPEECH OUTPUT: '\(.*\)'{.*/\1/p" "$log"; }

# Waits until the reader has heard and said nothing for two seconds: a busy one is silent while it thinks.
until_silence() {
    still=0
    heard=-1
    until [ "$still" -ge 20 ]; do
        sleep 0.1
        now=$(wc -c <"$log")
        [ "$now" = "$heard" ] && still=$((still + 1)) || still=0
        heard=$now
    done
}

# hear_keys KEY...: presses keys and tells what is said of them.
hear_keys() {
    before=$(said | wc -l)
    echo "> $*"
    xdotool key --delay 30 "$@"
    until_silence
    said | tail -n +$((before + 1))
}

if [ "$mode" = walking ]; then  # on a session bus of its own, which ends with what is started on it
    home=$(mktemp -d)
    own_home "$home"
    own_display 1400x1100
    export GSETTINGS_BACKEND=memory QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 LC_ALL=C.UTF-8
    log=$home/log
    : >"$log"
    mkdir -p "$XDG_DATA_HOME/orca"
    # The keys stand in the transcript; that they are said as well tells nothing.
    echo '{"general": {"enableKeyEcho": false}, "pronunciations": {}, "keybindings": {},
        "profiles": {"default": {"profile": ["Default", "default"], "enableKeyEcho": false}}}' \
        >"$XDG_DATA_HOME/orca/user-settings.conf"
    # A voice that is heard by nobody.
    mkdir -p "$XDG_CONFIG_HOME/speech-dispatcher"
    printf '%s\n' 'AddModule "dummy" "sd_dummy" "dummy.conf"' 'DefaultModule dummy' 'AudioOutputMethod "libao"' \
        >"$XDG_CONFIG_HOME/speech-dispatcher/speechd.conf"
    openbox &
    manager=$!
    until_it is_managed
    orca --debug-file="$log" &
    reader=$!
    trap 'kill -KILL "$reader" 2>/dev/null || true; kill ${host-} "$manager" "$server" 2>/dev/null || true
        rm -rf "$home"' EXIT
    trap 'exit 1' HUP INT TERM
    until_it grep -q 'SPEECH OUTPUT' "$log"
    build/release/bin/hostbench --new &
    host=$!
    {
        echo "# What Orca $(orca --version) says of the walk; the lines with > are the keys. Made by tools/hear.sh --walk."
        until_it grep -q "SPEECH OUTPUT: 'Number Of Lamps" "$log"
        until_silence
        said
        sed -n 's/^> //p' tests/data/accessibility/walk.txt | while read -r keys; do
            # shellcheck disable=SC2086  # a word for each key
            hear_keys $keys </dev/null
        done
    } >"$spoken"
    exit
fi

command -v orca >/dev/null 2>&1 || { echo "Orca is not there: sudo apt-get install orca" >&2; exit 1; }
install_packages
configure release
build release --target PenwrightPE hostbench || { echo "The build failed." >&2; exit 1; }

if [ "$mode" = walk ]; then
    [ -n "$spoken" ] || spoken=$(pwd)/docs/spoken.txt
    dbus-run-session -- sh tools/hear.sh --walking "$spoken" >build/hear.log 2>&1 ||
        { echo "The walk did not come to its end; what went wrong is in build/hear.log." >&2; exit 1; }
else
    [ -n "$spoken" ] || spoken=$(pwd)/build/spoken.txt
    log=$(mktemp)
    orca --replace --debug-file="$log" &
    reader=$!
    trap 'kill "$reader" 2>/dev/null || true; rm -f "$log"' EXIT
    trap 'exit 1' HUP INT TERM
    QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 build/release/bin/hostbench --new || true
    said >"$spoken"
fi
echo "What was said stands in $spoken."
