# Sourced by ./run and ./test: puts in place what a fresh Debian 12 lacks.
# shellcheck shell=bash

BUILD_PACKAGES=(
    ca-certificates ccache cmake dpkg-dev g++ libbenchmark-dev libcairo2-dev libdeflate-dev libfontconfig-dev
    libfreetype-dev libgmock-dev libgtest-dev libjpeg62-turbo-dev libpng-dev libssl-dev libzstd-dev
    ninja-build nlohmann-json3-dev pkg-config python3-minimal xz-utils zlib1g-dev
    g++-mingw-w64-i686 g++-mingw-w64-x86-64 libz-mingw-w64-dev
    qt6-base-dev qt6-svg-dev qt6-qpa-plugins qt6-wayland fonts-dejavu-core fonts-liberation
)
TEST_PACKAGES=(
    clang-19 clang-format libclang-rt-19-dev
    debootstrap libengine-pkcs11-openssl openssl osslsigncode p7zip-full poppler-utils procps
    softhsm2 unrtf unzip wine64 zip
    at-spi2-core dbus gir1.2-atspi-2.0 imagemagick openbox python3-gi xdotool xserver-xephyr xvfb
)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "This needs root or sudo: $*" >&2
        return 1
    fi
}

# install_packages NAME...: installs those that are missing, and asks for nothing when none is.
install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' \
            || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# What was compiled in one checkout serves the next one too.
export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_ctime,include_file_mtime

# build PRESET [TARGET...]: configures and builds; the wall of compiler lines is kept for a failure.
build() {
    local preset="$1" log="build/$1.log"
    shift
    local targets=()
    [ $# -gt 0 ] && targets=(--target "$@")
    mkdir -p build
    echo "Building $preset ..."
    if ! { cmake --preset "$preset" && cmake --build --preset "$preset" "${targets[@]}"; } \
        >"$log" 2>&1; then
        tail -n 60 "$log"
        echo "The build of $preset failed; all of its output is in $log." >&2
        return 1
    fi
}
