#!/bin/sh
# Runs a command in a clone of this tree on a Debian 12 that has nothing else, made in a folder and gone afterwards.
#   tools/fresh.sh COMMAND...              for instance ./test.sh test-clang
#   tools/fresh.sh --or-here COMMAND...    where no such system can be made, says why and runs the command without one
# Needs root, the right to mount, debootstrap (installed when it is missing) and the net. The clone is of HEAD, so what
# is not committed is not tried. Packages are kept in ~/.cache/penwright-fresh for the next time; DEBIAN_MIRROR names
# another mirror than debootstrap's own.
set -eu
umask 022
or_here=
if [ "${1-}" = --or-here ]; then
    or_here=yes
    shift
fi
[ $# -gt 0 ] || { echo "usage: tools/fresh.sh [--or-here] COMMAND..." >&2; exit 2; }
started_in=$(pwd)
cd "$(dirname "$0")/.."
. tools/prepare.sh

work=$(mktemp -d)
root=$work/root
log=$work/log
cache=${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/penwright-fresh
running=
# What is killed may still be about to write when its files are removed.
clean() {
    [ -z "$running" ] || kill -KILL "$running" 2>/dev/null || true
    rm -rf --one-file-system "$work" 2>/dev/null || { sleep 1; rm -rf --one-file-system "$work"; }
}
trap clean EXIT
trap 'exit 1' HUP INT TERM

# Runs a command in the new system. Its mounts and processes end with it, or with this script; the shell waits for it in
# the background, because it would not hear of a signal otherwise.
exec 3<&0
inside() {
    unshare --mount --pid --fork --kill-child sh tools/inside.sh "$root" "$@" <&3 3<&- &
    running=$!
    status=0
    wait "$running" || status=$?
    running=
    return "$status"
}

# Packages that are out of date or damaged do no harm there: debootstrap and apt know their sums.
fill_cache() { cp -n "$root"/var/cache/apt/archives/*.deb "$cache" 2>/dev/null || true; }
make_system() {
    reason='only root can'
    [ "$(id -u)" -eq 0 ] || return 1
    reason='no mounts are allowed'
    unshare --mount --pid --fork --mount-proc true 2>/dev/null || return 1
    reason='debootstrap cannot be installed'
    command -v debootstrap >/dev/null 2>&1 || (install_these debootstrap) || return 1
    mkdir -p "$cache"
    find "$cache" -name '*.deb' -mtime +90 -delete
    echo "== making a fresh Debian 12"
    if ! debootstrap --variant=minbase --cache-dir="$(realpath "$cache")" bookworm "$root" \
        ${DEBIAN_MIRROR:+"$DEBIAN_MIRROR"} >"$log" 2>&1; then
        reason="debootstrap failed: $(tail -n 1 "$log")"
        return 1
    fi
    cp "$cache"/*.deb "$root/var/cache/apt/archives"
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/unsafe-io"  # what is thrown away need not outlast a power cut
    printf '[safe]\n\tdirectory = *\n' >"$work/gitconfig"  # the tree may be somebody else's
    if ! GIT_CONFIG_GLOBAL=$work/gitconfig git clone --quiet --no-hardlinks . "$root/root/penwright" >"$log" 2>&1 ||
        ! inside true >"$log" 2>&1; then
        reason=$(tail -n 1 "$log")
        return 1
    fi
}

if make_system; then
    status=0
    inside "$@" || status=$?
    fill_cache
    exit "$status"
fi
if [ -z "$or_here" ]; then
    echo "A fresh Debian 12 cannot be made here: $reason." >&2
    exit 1
fi
echo "A fresh Debian 12 cannot be made here ($reason); going on without one." >&2
clean
trap - EXIT HUP INT TERM
cd "$started_in"
exec "$@"
