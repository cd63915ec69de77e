# Sourced by run.sh and test.sh, from the repository's root: installs what packages.txt lists and is not there yet.

missing_packages() {
    sed -e 's/#.*//' -e '/^[[:space:]]*$/d' packages.txt | while read -r package; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || printf '%s ' "$package"
    done
}

install_packages() {
    missing=$(missing_packages)
    [ -n "$missing" ] || return 0
    as_root=
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These packages are missing, and neither root nor sudo is at hand to install them: $missing" >&2
            exit 1
        fi
        as_root=sudo
    fi
    echo "Installing: $missing"
    # shellcheck disable=SC2086  # one word for each package
    $as_root sh -c 'apt-get update -qq && DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@" </dev/null' \
        sh $missing >/dev/null || { echo "Installing the packages failed." >&2; exit 1; }
}

# Configures a preset; a compiler cache is used where there is one.
configure() {
    launcher=
    command -v ccache >/dev/null 2>&1 && launcher=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
    # shellcheck disable=SC2086  # nothing or one word
    cmake --preset "$1" $launcher
}
