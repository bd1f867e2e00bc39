# Shared by the tools: installing Debian packages and saying what went wrong. Meant to be sourced.
# shellcheck shell=bash

# Ends the tool with a message.
die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Prints those of the named Debian packages that are not installed, a line each.
missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed || printf '%s\n' "$package"
    done
}

# Runs a command as root, directly or through sudo; fails when neither is possible. Never asks for a password.
as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo -n "$@"
    fi
}

can_be_root() {
    ((EUID == 0)) || { command -v sudo && sudo -n true; } >/dev/null 2>&1
}

# Installs those of the named Debian packages that are missing, without a question and quietly when none is.
ensure_packages() {
    command -v dpkg-query >/dev/null || die "this is no Debian system; install what these packages hold: $*"
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    can_be_root || die "missing packages, and neither root nor sudo to install them: ${missing[*]}"
    printf 'Installing %s\n' "${missing[*]}" >&2
    # A fresh machine has no package lists yet, an old one may have stale lists: fetch them and try again.
    apt_install "${missing[@]}" || { as_root apt-get -q update >&2 && apt_install "${missing[@]}"; } ||
        die "apt-get could not install: ${missing[*]}"
}

apt_install() {
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "$@" >&2
}

# What building the program and its tests takes; read by the tools that source this file.
# shellcheck disable=SC2034
BUILD_PACKAGES=(
    g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools qt6-l10n-tools libgl1-mesa-dev
    fontconfig libfftw3-dev libxcb1-dev libxcb-randr0-dev pkg-config
)

# Configures a preset: configure_preset NAME [CMAKE-OPTION...]
configure_preset() {
    local preset=$1
    shift
    local log="build/$preset-configure.log"
    mkdir -p build
    export CCACHE_SLOPPINESS=pch_defines,time_macros # else nothing that reads the common headers is kept
    cmake --preset "$preset" -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DQUORVEL_WERROR=ON "$@" >"$log" 2>&1 || { cat "$log" >&2; die "configuring $preset failed"; }
}

# Configures and builds a preset with its tests: build_preset NAME [CMAKE-OPTION...]
build_preset() {
    configure_preset "$@"
    cmake --build "build/$1"
}

# Builds the program alone, by the release preset, and prints where it is.
build_quorvel() {
    configure_preset release
    cmake --build build/release --target quorvel >&2
    printf '%s\n' "$PWD/build/release/src/quorvel"
}

# Prints the codes of the interface's languages, a line each.
language_codes() {
    awk '!/^#/ { print $1 }' resource/Translations/languages.txt
}
