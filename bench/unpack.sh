#!/usr/bin/env bash
# Measures how a self-extracting program unpacks itself under Wine: the tree of bench/create.sh as one
# program, into an empty folder. Says for each limit whether it holds; ends with 1 when one does not.
#
#   bench/unpack.sh [WORK-FOLDER]     default: build/bench-input
#
# RUNS=5 takes the best of five runs instead of three. QUILLON_WINE=64 takes the programs' twins and
# the other Wine.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh

bits=${QUILLON_WINE:-32}
runs=${RUNS:-3}
work=${1:-build/bench-input}
mkdir -p "$work"
work=$(cd "$work" && pwd)
bin=$PWD/build/release/bench
tool=$PWD/build/release/quillon
failed=0
. bench/tree.sh

root=
[ "$bits" = 32 ] && root=$(tests/wine/prepare-wine32.sh)
# Where this Wine sees it.
place=${root:-$work}/$([ -z "$root" ] || echo tmp/)bench-unpack
trap 'rm -rf "$place"' EXIT

on_z() { echo "Z:${1#"$root"}" | tr / '\\'; }
wine() { tests/wine/run-wine.sh "$bits" "$place/prefix" "$@"; }

make_program() {
    rm -rf "$place"
    mkdir -p "$place/package"
    if [ "$bits" = 64 ]; then # the tool, but with the other runtime
        mkdir "$place/tool"
        cp "$tool/quillonc" "$place/tool"
        ln -s "$tool"/{Res,Language,RTF} "$place/tool"
        ln -s "$PWD/build/release/runtime-x86_64/Release" "$place/tool/Release"
        tool=$place/tool
    fi
    "$tool/quillonc" create "$work/all.qnp" --medium internet --to "$place/package" >"$work/log"
    program=$(echo "$place"/package/*.exe)
    cat "$program" >/dev/null # it is read from memory
}

# Seconds and peak kilobytes of a run, added as a line to FILE: run FILE SWITCHES...
run() {
    local file=$1
    shift
    timeout 600 /usr/bin/time -a -o "$file" -f '%e %M' tests/wine/run-wine.sh "$bits" "$place/prefix" \
        "$(on_z "$program")" "$@" >"$work/log" 2>&1 || { cat "$work/log" "$file" >&2; exit 1; }
}

best() { sort -n "$1" | head -n 1; }

install_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev time
build release
cmake --build --preset release --target make_project >>build/release.log 2>&1

make_tree_project
make_program
wine wineboot --init >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
for ((i = 0; i <= runs; ++i)); do
    rm -rf "$place/out"
    # The time that Wine takes to start a program is not counted; the first run waits for its
    # services.
    run "$place/start" '/?'
    run "$place/unpack" /S "/extract:$(on_z "$place/out")"
done
unpacked=$(find "$place/out" -type f -printf '%s\n' | awk '{ sum += $1 } END { printf "%d", sum }')
(cd "$place/out" && sha256sum --quiet -c PACKAGE.SHA256) || { echo "It is not whole." >&2; exit 1; }
wine wineserver -k || true

read -r start _ < <(best "$place/start")
read -r took memory < <(best "$place/unpack")
printf '%d bytes of %d in %s s, of which %s s to start a program; %s KB peak, Wine among it\n' \
    "$unpacked" "$(stat -c %s "$program")" "$took" "$start" "$memory"
judge 150 'MB/s at least, Wine started' "$(awk "BEGIN { print $unpacked / 1e6 / ($took - $start) }")" '>='
judge 163840 'KB of memory at most' "$memory" '<='
exit "$failed"
