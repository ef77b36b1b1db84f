#!/usr/bin/env bash
# Measures a setup under Wine: a product of many files in one folder, installed where nothing is, and
# then the next version of it installed over that. Says whether each limit holds; ends with 1 when one
# does not.
#
#   bench/install.sh [WORK-FOLDER]     default: build/bench-install
#
# FILES=2000 is how many files the larger product has; the smaller has half of them. QUILLON_WINE and
# the work folder: bench/wine_setup.sh.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh

files=${FILES:-2000}
. bench/wine_setup.sh
make_work bench-install "$@"
failed=0

# make_version COUNT VERSION: every file holds a little that differs, and is newer in the next version.
make_version() {
    local count=$1 version=$2 name=produkt$1
    local sources=$work/$name package=$work/$name-$2
    mkdir -p "$sources"
    seq "$count" | awk -v dir="$sources" -v version="$version" \
        '{ file = sprintf("%s/fil%05d.txt", dir, $1); print "fil", $1, "version", version > file; close(file) }'
    find "$sources" -type f -exec touch -d "200$version-01-01 12:00" {} +
    rm -f "$work/$name.qnp"
    "$quillonc" new "$work/$name.qnp" --name "$name" --destination "%PROGRAMFILES\\$name" >/dev/null
    "$quillonc" set "$work/$name.qnp" InstallOptions.UninstallSupport=1 >/dev/null
    "$quillonc" add-tree "$work/$name.qnp" "$sources" --to %DESTDIR >/dev/null
    make_package "$work/$name.qnp" "$package"
}

# took COUNT VERSION: seconds of a silent installation.
took() {
    TIMEFORMAT=%R
    { time wine "$(on_z "$work/produkt$1-$2/SETUP.EXE")" /S >"$work/log" 2>&1; } 2>&1 \
        || { cat "$work/log" >&2; return 1; }
    local folder="$work/prefix/drive_c/Program Files/produkt$1"
    grep -q "version $2" "$folder/fil00001.txt" || { echo "Version $2 is not there" >&2; return 1; }
}

# judge LIMIT TEXT SMALL LARGE
judge() {
    awk -v limit="$1" -v text="$2" -v small="$3" -v large="$4" 'BEGIN {
        times = large / small
        printf "%-46s %6.2f s %6.2f s  %.2f times, limit %.2f: %s\n", text, small, large, times, limit,
               times <= limit ? "holds" : "DOES NOT HOLD"
        exit times > limit }' || failed=1
}

half=$((files / 2))
make_prefix
for count in "$half" "$files"; do
    for version in 1 2; do
        make_version "$count" "$version"
    done
done
make_version 10 1
took 10 1 >/dev/null # the first program in a new prefix waits for Wine's services
small_fresh=$(took "$half" 1)
small_upgrade=$(took "$half" 2)
fresh=$(took "$files" 1)
upgrade=$(took "$files" 2)
wine wineserver -k || true
judge 1.5 "upgrade of $files files against a fresh one" "$fresh" "$upgrade"
judge 2.6 "fresh, $half and $files files" "$small_fresh" "$fresh"
judge 2.6 "upgrade, $half and $files files" "$small_upgrade" "$upgrade"
exit $failed
