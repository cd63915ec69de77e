#!/bin/sh
# Makes the Debian packages `penwright` (the programs) and `libpenwright-host-dev` (the library for hosts).
#   packaging/build-deb.sh                  builds the release preset and leaves the packages in build/packages
#   packaging/build-deb.sh FOLDER           leaves them in FOLDER
#   packaging/build-deb.sh FOLDER BUILD     packs what stands built in the build folder BUILD, and builds nothing
set -eu
started_in=$(pwd)
cd "$(dirname "$0")/.."

absolute() {
    case "$1" in
        /*) printf '%s' "$1" ;;
        *) printf '%s/%s' "$started_in" "$1" ;;
    esac
}
[ $# -le 2 ] || { echo "usage: packaging/build-deb.sh [FOLDER [BUILD]]" >&2; exit 2; }
left_in=$(pwd)/build/packages
built=$(pwd)/build/release
[ $# -lt 1 ] || left_in=$(absolute "$1")
if [ $# -eq 2 ]; then
    built=$(absolute "$2")
else
    . tools/prepare.sh
    install_packages
    configure release
    build release --target PenwrightPE hostbench help_file penwright_host
fi

umask 022
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM
cp -R packaging/deb "$work/debian"
mkdir -p "$left_in"
cd "$work"

version=$(dpkg-parsechangelog -S Version)
program_version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$built/CMakeCache.txt")
[ "$version" = "$program_version" ] || {
    echo "packaging/deb/changelog speaks of version $version, the program is $program_version." >&2
    exit 1
}
# The same build makes the same packages, byte by byte.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -S Timestamp)
export SOURCE_DATE_EPOCH

# pack PACKAGE COMPONENT
pack() {
    stage=$work/debian/$1
    mkdir -p "$stage/DEBIAN"
    DESTDIR=$stage cmake --install "$built" --component "$2" --prefix /usr >/dev/null
    documents=$stage/usr/share/doc/$1
    mkdir -p "$documents"
    cp debian/copyright "$documents"
    gzip -9nc debian/changelog >"$documents/changelog.gz"
    find "$stage/usr/share" -path '*/man/*' -type f -exec gzip -9n {} +
    find "$stage" -name '*.a' -exec strip --strip-debug --remove-section=.comment --enable-deterministic-archives {} +
    find "$stage" -type f -perm -u+x -exec strip --remove-section=.comment {} +
    # A package with programs depends on the libraries that these link.
    : >debian/substvars
    find "$stage" -type f -perm -u+x -exec dpkg-shlibdeps -Tdebian/substvars {} +
    (cd "$stage" && find usr -type f | LC_ALL=C sort | tr '\n' '\0' | xargs -0 md5sum) >"$stage/DEBIAN/md5sums"
    dpkg-gencontrol "-p$1" "-P$stage" -Tdebian/substvars
    dpkg-deb --root-owner-group --build "$stage" "$left_in"
}
pack penwright program
pack libpenwright-host-dev host
