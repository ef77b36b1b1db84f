# shellcheck shell=bash
# Sourced, in the project's folder, by what tries setups under Wine: a work folder, packages, a prefix.
#
# QUILLON_WINE=32 takes the programs that ship (tests/wine/prepare-wine32.sh), 64 their twins; the work
# folder has to lie where that Wine sees it.

bits=${QUILLON_WINE:-64}
quillonc=$PWD/build/release/quillon/quillonc
programs=$PWD/build/release/$([ "$bits" = 32 ] && echo quillon || echo runtime-x86_64)/Release
root=
[ "$bits" = 64 ] || root=$(tests/wine/prepare-wine32.sh)

# make_work NAME [FOLDER]: an empty folder, in `work`, that is drive S: of the projects.
make_work() {
    work=${2:-${root:-$PWD/build}/$([ -z "$root" ] || echo tmp/)$1}
    rm -rf "$work"
    mkdir -p "$work"
    work=$(cd "$work" && pwd)
    export QUILLON_DRIVE_C=$work/c QUILLON_REGISTRY='' QUILLON_DRIVES="S=$work"
}

on_z() { echo "Z:${1#"$root"}" | tr / '\\'; }
wine() { tests/wine/run-wine.sh "$bits" "$work/prefix" "$@"; }

# make_prefix: the folder that Wine works in, as a new machine.
make_prefix() {
    wine wineboot --init >"$work/log" 2>&1 || { cat "$work/log" >&2; return 1; }
}

# processes PATTERN: the ids of the prefix's programs whose command line fits.
processes() {
    { grep -lzxF "WINEPREFIX=${work#"$root"}/prefix" /proc/[0-9]*/environ 2>/dev/null || true; } \
        | sed 's/environ$/cmdline/' | { xargs -r grep -lE "$1" 2>/dev/null || true; } | cut -d / -f 3
}

# make_package PROJECT PACKAGE [--small]: with the programs for this Wine, listed as Create lists them.
make_package() {
    mkdir -p "$2"
    "$quillonc" create "$1" --to "$2" --medium cd --continue "${@:3}" >/dev/null
    [ "$bits" = 64 ] || return 0
    local name source
    while read -r name source; do
        [ ! -e "$2/$name" ] || cp "$programs/$source" "$2/$name"
    done <<<"SETUP.EXE SETUP32.EXE
QNS32X.BIN Small32/QNS32X.EXE
DUNZIP32.DLL ${3:+Solid/}DUNZIP32.DLL
QNREG32.BIN QNREG32.EXE
QNXREG2.BIN QNXREG2.EXE
QNXUNIN.BIN QNXUNIN.EXE"
    (cd "$2" && find . -type f ! -name PACKAGE.SHA256 -printf '%P\0' | xargs -0 sha256sum >PACKAGE.SHA256)
}
