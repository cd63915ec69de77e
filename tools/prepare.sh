# Sourced from the repository's root by what installs, configures or builds: each step says what it does while it does
# it.
# shellcheck shell=sh

missing_packages() {
    sed -e 's/#.*//' -e '/^[[:space:]]*$/d' packages.txt | while read -r package; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || printf '%s ' "$package"
    done
}

# What packages.txt lists and is not there yet.
install_packages() {
    missing=$(missing_packages)
    # shellcheck disable=SC2086  # one word for each package
    [ -z "$missing" ] || install_these $missing
}

# install_these PACKAGE...
install_these() {
    as_root=
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These packages are missing, and neither root nor sudo is at hand to install them: $*" >&2
            exit 1
        fi
        as_root=sudo
    fi
    echo "== installing $*"
    mkdir -p build
    log=build/install.log
    in_tenths $as_root sh -c 'apt-get update -q >&2 && DEBIAN_FRONTEND=noninteractive apt-get install -q -y \
        --no-install-recommends -o APT::Status-Fd=3 "$@" 3>&1 >&2 </dev/null' sh "$@" 2>"$log" ||
        { tail -n 20 "$log" >&2; echo "Installing the packages failed; all that apt said is in $log." >&2; exit 1; }
}

# configure PRESET: a compiler cache is used where there is one.
configure() {
    echo "== $1: configuring"
    launcher=
    command -v ccache >/dev/null 2>&1 && launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
    # shellcheck disable=SC2086  # nothing or one word
    cmake --preset "$1" $launcher >/dev/null
}

# build PRESET [--target TARGET...]
build() {
    echo "== $1: building"
    if [ -t 1 ]; then
        cmake --build --preset "$@"  # ninja keeps one line up to date
    else
        in_tenths env NINJA_STATUS='built:ninja:%p:' cmake --build --preset "$@"
    fi
}

# in_tenths COMMAND...: its output through `tenths`, its status.
in_tenths() {
    { ended=$({ { "$@" 3>&- 4>&- || echo $? >&3; } | tenths >&4; } 3>&1); } 4>&1
    return "${ended:-0}"
}

# Of the steps that apt and ninja report as WHAT:WHICH:PERCENTAGE, says one for each tenth of the way; lets all else
# through.
tenths() {
    told=
    while IFS= read -r line || [ -n "$line" ]; do
        case "$line" in
            dlstatus:*) done=downloaded ;;
            pmstatus:*) done=installed ;;
            built:ninja:*) done=built ;;
            *) printf '%s\n' "$line"; continue ;;
        esac
        share=${line#*:*:}
        share=${share%%[!0-9 ]*}
        share=$((${share##* } / 10 * 10))
        [ "$share $done" = "$told" ] || [ "$share" -eq 0 ] || echo "   $share % $done"
        told="$share $done"
    done
}
