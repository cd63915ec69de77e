# Sourced from the repository's root by what runs on a display of its own.
# shellcheck shell=sh

# own_display WIDTHxHEIGHT: starts an X display on a free number; DISPLAY names it, $server is its process.
own_display() {
    number=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$number" >/dev/null 2>&1 &
    server=$!
    until_it [ -s "$number" ] || {
        rm -f "$number"
        echo "A display could not be started with Xvfb." >&2
        return 1
    }
    DISPLAY=:$(cat "$number")
    rm -f "$number"
    export DISPLAY
}

# own_home FOLDER: what is started from here on finds no setting of the user's, and leaves none there.
own_home() {
    HOME=$1
    XDG_CONFIG_HOME=$1/config XDG_STATE_HOME=$1/state XDG_CACHE_HOME=$1/cache XDG_DATA_HOME=$1/data
    XDG_RUNTIME_DIR=$1/run
    export HOME XDG_CONFIG_HOME XDG_STATE_HOME XDG_CACHE_HOME XDG_DATA_HOME XDG_RUNTIME_DIR
    mkdir -p "$XDG_CONFIG_HOME" "$XDG_STATE_HOME" "$XDG_CACHE_HOME" "$XDG_DATA_HOME"
    mkdir -m 700 -p "$XDG_RUNTIME_DIR"
}

# Whether a window manager looks after the display.
is_managed() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# until_it COMMAND...: waits up to 30 s for a command to succeed.
until_it() {
    waits=0
    until "$@"; do
        waits=$((waits + 1))
        [ "$waits" -le 300 ] || return 1
        sleep 0.1
    done
}
