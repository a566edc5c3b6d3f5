# Sourced by run.sh and test.sh: brings a Debian machine to the state that the tree builds on.

say() {
    printf '== %s\n' "$*"
}

# What a build needs; the fonts are those that the client puts in place of "microsoft yahei".
build_packages="g++ cmake ninja-build pkg-config qtbase5-dev qttools5-dev qttools5-dev-tools libsodium-dev
    libqrencode-dev libqt5sql5-sqlite fonts-open-sans fonts-wqy-microhei"

# install_missing PACKAGE...: installs what is not there yet, or names it and stops.
install_missing() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        # Elsewhere the names are Debian's; only what the build itself looks for can be checked.
        for command in cmake ninja pkg-config c++; do
            if ! command -v "$command" >/dev/null; then
                say "This is no Debian machine. Install what these Debian packages hold, then start again:" "$@"
                exit 1
            fi
        done
        return
    fi

    missing=""
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' \
            || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0

    if [ "$(id -u)" -eq 0 ]; then
        as_root=""
    elif command -v sudo >/dev/null; then
        as_root="sudo"
    else
        say "Missing packages:$missing"
        say "Install them as root (apt-get install$missing), then start again."
        exit 1
    fi
    say "Installing$missing"
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq
    # shellcheck disable=SC2086
    $as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing >/dev/null
}

# build PRESET: configures and builds, with progress.
build() {
    say "Configuring ($1)"
    cmake --preset "$1" -Wno-dev >/dev/null
    say "Building ($1)"
    cmake --build --preset "$1" --parallel "$(nproc)"
}
