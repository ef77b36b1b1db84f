#!/usr/bin/env bash
# Kills a setup under Wine at random moments, and at every third turn its uninstaller too, and looks
# whether the next run of the same setup or of the uninstaller puts the machine right: the prefix is
# compared file by file, and the registry line by line. Ends with 1 where it is not.
#
#   bench/killed_setup.sh [WORK-FOLDER]     default: build/bench-killed
#
# TURNS=100 is how often, SEED=n repeats a run (it is printed), QUILLON_WINE=32 takes the programs that
# ship (tests/wine/prepare-wine32.sh), 64 their twins; the work folder has to lie where that Wine sees it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh

bits=${QUILLON_WINE:-64}
turns=${TURNS:-100}
RANDOM=${SEED:=20041}
root=
[ "$bits" = 32 ] && root=$(tests/wine/prepare-wine32.sh)
work=${1:-${root:-$PWD/build}/$([ -z "$root" ] || echo tmp/)bench-killed}
rm -rf "$work"
mkdir -p "$work/files" "$work/package" "$work/was"
work=$(cd "$work" && pwd)
programs=build/release/$([ "$bits" = 32 ] && echo quillon || echo runtime-x86_64)/Release
quillonc=$PWD/build/release/quillon/quillonc
export QUILLON_DRIVE_C=$work/c QUILLON_REGISTRY='' QUILLON_DRIVES="S=$work"
main="$work/prefix/drive_c/Program Files/Dödad"
failed=0

on_z() { echo "Z:${1#"$root"}" | tr / '\\'; }
wine() { tests/wine/run-wine.sh "$bits" "$work/prefix" "$@"; }

make_package() {
    seq 300 | awk -v dir="$work/files" '{ file = sprintf("%s/fil%03d.txt", dir, $1)
        for (i = 0; i < $1 * 4; ++i) print "rad", i, "i fil", $1 > file; close(file) }'
    "$quillonc" new "$work/dodad.qnp" --name Dödad --destination '%PROGRAMFILES\Dödad' >/dev/null
    "$quillonc" set "$work/dodad.qnp" InstallOptions.UninstallSupport=1 >/dev/null
    "$quillonc" add-tree "$work/dodad.qnp" "$work/files" --to %DESTDIR >/dev/null
    "$quillonc" create "$work/dodad.qnp" --to "$work/package" --medium cd --continue >/dev/null
    cp "$programs/SETUP32.EXE" "$work/package/SETUP.EXE"
    cp "$programs/Small32/QNS32X.EXE" "$work/package/QNS32X.BIN"
    cp "$programs/DUNZIP32.DLL" "$work/package/DUNZIP32.DLL"
    cp "$programs/QNXUNIN.EXE" "$work/package/QNXUNIN.BIN"
    rm -f "$work/package/PACKAGE.SHA256" # its programs have just been changed
}

# What is on the machine: every file with its content, every folder, every line of the registry but for times.
state() {
    wine wineserver -w || true # the uninstaller clears up behind its own end
    (cd "$work/prefix/drive_c" && find . -type d ! -name 'QN*.TMP' -print &&
        find . -type f ! -path '*/QN*.TMP/*' ! -name QNXUNIN.LOG -print0 | xargs -0 sha1sum) | sort
    # Wine looks for its devices anew at each start, and notes them or not before it is killed.
    sed -e 's/^\(\[.*\]\) [0-9]*$/\1/' -e '/^#/d' -e '/^$/d' -e '/"DriverDateData"/d' -e '/NetworkCards\]/d' \
        -e '/^@="\(Display adapters\|Monitors\)"/d' "$work"/prefix/{system,user}.reg
    # One behind a setup that was killed after its commit tells of two installations.
    [ ! -e "$main/QNXUNIN.LOG" ] || sort -u "$main/QNXUNIN.LOG" | grep '^FILE\|^FOLDER'
}

setup() { wine "$(on_z "$work/package/SETUP.EXE")" /S; }
uninstall() { wine 'C:\Program Files\Dödad\QNXUNIN.EXE' /S; }

# kill_at MOMENT COMMAND: lets it run for so many milliseconds.
kill_at() {
    local moment=$1
    shift
    "$@" >"$work/log" 2>&1 &
    local running=$!
    sleep "$(awk -v ms="$moment" 'BEGIN { printf "%.3f", ms / 1000 }')"
    wine wineserver -k || true # all programs die at once; the server alone saves the registry
    wait "$running" 2>/dev/null || true
}

compare() {
    if ! diff "$work/was/$2" <(state) >"$work/difference"; then
        echo "turn $1, killed after $moment ms: not as it was $2"
        head -n 20 "$work/difference"
        failed=$((failed + 1))
    fi
}

make_package
wine wineboot --init >"$work/log" 2>&1
setup && uninstall # Wine makes some folders and keys at first use
state >"$work/was/before"
began=$(date +%s%N)
setup
length=$((($(date +%s%N) - began) / 1000000))
state >"$work/was/installed"
uninstall
state >/dev/null
echo "seed $SEED, $turns turns, an installation takes $length ms"
for turn in $(seq "$turns"); do
    moment=$(((RANDOM * 32768 + RANDOM) % length))
    kill_at "$moment" setup
    if [ $((turn % 2)) = 1 ] || [ ! -e "$main/QNXUNIN.EXE" ]; then
        setup || echo "turn $turn: the setup ended with $?"
        compare "$turn" installed
        [ $((turn % 3)) = 0 ] && kill_at $((moment / 2)) uninstall
    fi
    # An uninstaller that was killed behind its last step has left nothing to begin again.
    if [ -e "$main/QNXUNIN.EXE" ]; then
        uninstall || echo "turn $turn: the uninstaller ended with $?"
    fi
    compare "$turn" before
done
wine wineserver -k || true
echo "$turns turns, $failed differences"
[ "$failed" = 0 ]
