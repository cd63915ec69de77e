#!/bin/sh
# Tries the packages on a Debian 12 that has nothing else: installs them with what they depend on, runs the walk,
# removes them, and looks for what is left. Needs what tools/fresh.sh needs; takes some minutes.
#   packaging/try-deb.sh            tries the packages in build/packages
#   packaging/try-deb.sh FOLDER     tries those in FOLDER
set -eu
packages=$(realpath "${1:-"$(dirname "$0")/../build/packages"}")
fresh=$(realpath "$(dirname "$0")/../tools/fresh.sh")

# Run there; the packages come by standard input, and beside it lies a clone of this tree.
script=$(cat <<'END'
set -eu
export DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8
mkdir /try
tar -x -C /try
fail() { echo "FAILED: $1" >&2; exit 1; }
all_files() {
    find / -xdev \( -path /dev -o -path /proc -o -path /run -o -path /sys -o -path /tmp -o -path /try \
        -o -path /var/cache -o -path /var/lib/dpkg -o -path /var/log \) -prune -o -print | sort
}
names='penwright libpenwright-host-dev'
apt-get update -qq
apt-get install -y -qq --no-install-recommends xvfb xauth /try/*.deb >/try/log 2>&1 || { cat /try/log; fail install; }
dpkg --verify $names || fail 'files differ from the packages'
dpkg -L $names | sort -u >/try/owned
all_files >/try/installed

# In a network of its own, because displays of the machine outside are found by their numbers, too.
mkdir -m 700 /try/runtime
HOME=/try XDG_RUNTIME_DIR=/try/runtime unshare --net xvfb-run -a -s '-noreset -screen 0 1400x1100x24' \
    hostbench --walk /try/walk || fail walk
cmp /try/walk/luminaire.ies tests/host/luminaire.ies || fail 'another file'
PenwrightPE 2>/try/refusal && fail 'no refusal'
grep -q 'there is no X display' /try/refusal || fail 'no reason'

dpkg --purge $names >/dev/null
all_files >/try/purged
comm -13 /try/installed /try/purged | grep . && fail 'the program left files'
comm -12 /try/owned /try/purged | while read -r path; do
    dpkg -S "$path" >/dev/null 2>&1 || [ "$path" = /. ] || echo "$path"
done | grep . && fail 'the packages left files'
echo 'The packages install, run, and leave nothing.'
END
)
cd "$packages"
tar -c -- *.deb | "$fresh" sh -c "$script"
