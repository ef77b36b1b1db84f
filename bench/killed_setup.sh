#!/usr/bin/env bash
# Kills a setup under Wine at random moments, a first one or an upgrade, and its uninstaller too, and
# looks whether the next run of the same setup or of the uninstaller puts the machine right: all files
# are compared, and the registry line by line. Ends with 1 where it is not.
#
#   bench/killed_setup.sh [WORK-FOLDER]     default: build/bench-killed
#
# TURNS=100 is how often, SEED=n repeats a run (it is printed). QUILLON_WINE and the work folder:
# bench/wine_setup.sh.
#
# Wine's own programs go on, so that a turn takes a second or two. The processes to kill are found
# by the prefix in their environment and by their names; one call kills all of them, so that no part
# of the setup can react to the end of another one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh
. bench/wine_setup.sh

turns=${TURNS:-100}
RANDOM=${SEED:=20041}
make_work bench-killed "$@"
mkdir "$work/was"
main="$work/prefix/drive_c/Program Files/Dödad"
failed=0

# make_version NUMBER: the second version has other contents in half of the files, some new files,
# and lacks some.
make_version() {
    local version=$1 project=$work/dodad-$1.qnp sources=$work/files-$1
    mkdir -p "$sources"/{a,b,c,"$version"}
    seq 120 | awk -v dir="$sources" -v version="$version" '{
        folder = $1 % 10 == 0 ? version : substr("abc", $1 % 3 + 1, 1)
        file = sprintf("%s/%s/fil%03d.txt", dir, folder, $1)
        for (i = 0; i < $1 * 4; ++i) print "rad", i, "i fil", $1, $1 % 2 ? version : "" > file
        close(file) }'
    find "$sources" -type f -exec touch -d "200$version-01-01 12:00" {} +
    "$quillonc" new "$project" --name Dödad --destination '%PROGRAMFILES\Dödad' >/dev/null
    "$quillonc" set "$project" InstallOptions.UninstallSupport=1 >/dev/null
    "$quillonc" add-tree "$project" "$sources" --to %DESTDIR >/dev/null
    make_package "$project" "$work/package-$version"
}

# The uninstaller removes its own files after its end.
own_processes() { processes '(SETUP|QNS32X|QNREG32|QNXUNIN)\.'; }
wait_for_end() { while [ -n "$(own_processes)" ]; do sleep 0.02; done; }

# What is on the machine: every file of the setup's own with its content, every other one with its
# size and time, every folder, the registry but for the part that Wine writes as it goes.
state() {
    wait_for_end
    (cd "$work/prefix/drive_c" && find . -type d ! -name 'QN*.TMP' -print &&
        find windows -type f ! -path '*/QN*.TMP/*' -printf '%p %s %T@\n' &&
        find . -path ./windows -prune -o -type f ! -path '*/QN*.TMP/*' ! -name QNXUNIN.LOG -print0 | xargs -0 sha1sum) | sort
    local key
    for key in 'HKLM\Software' 'HKLM\System\CurrentControlSet\Control\Session Manager' HKCU; do
        wine reg export "$key" "$(on_z "$work/registry")" /y >"$work/log" 2>&1
        iconv -f UTF-16 -t UTF-8 "$work/registry" | tr -d '\r'
    done
    # One behind a setup that was killed after its commit tells of two installations.
    [ ! -e "$main/QNXUNIN.LOG" ] || sort -u "$main/QNXUNIN.LOG" | grep '^FILE\|^FOLDER'
}

setup() { wine "$(on_z "$work/package-$1/SETUP.EXE")" /S; }
uninstall() { wine 'C:\Program Files\Dödad\QNXUNIN.EXE' /S; }

# milliseconds COMMAND...: how long it takes.
milliseconds() {
    local began
    began=$(date +%s%N)
    "$@" >"$work/log" 2>&1
    wait_for_end
    echo $((($(date +%s%N) - began) / 1000000))
}

# kill_at MOMENT COMMAND: lets it run for so many milliseconds.
kill_at() {
    local moment=$1
    shift
    "$@" >"$work/log" 2>&1 &
    local running=$!
    sleep "$(awk -v ms="$moment" 'BEGIN { printf "%.3f", ms / 1000 }')"
    # A program that is just being started is found only by the next look; without its parent, Wine
    # lets it wait for ever.
    local victims
    while victims=$(own_processes) && [ -n "$victims" ]; do
        # shellcheck disable=SC2086
        kill -9 $victims 2>/dev/null || true
    done
    wait "$running" 2>/dev/null || true
}

random_below() { echo $(((RANDOM * 32768 + RANDOM) % $1)); }

# put_right WHAT COMMAND...
put_right() { "$@" >"$work/log" 2>&1 || { echo "turn $turn: $* ended with $?"; failed=$((failed + 1)); }; }

compare() {
    if ! diff "$work/was/$1" <(state) >"$work/difference"; then
        echo "turn $turn, killed after $moment ms: not as it was $1"
        head -n 20 "$work/difference"
        failed=$((failed + 1))
    fi
}

# In each second turn the killed setup is one of a new version over the former one.
one_turn() {
    local version=1 length=$fresh
    if [ $((turn % 2)) = 0 ]; then
        put_right setup 1
        version=2 length=$upgrade
    fi
    moment=$(random_below "$length")
    kill_at "$moment" setup "$version"
    if [ $((turn % 4)) -lt 2 ] || [ ! -e "$main/QNXUNIN.EXE" ]; then
        put_right setup "$version"
        compare "installed-$version"
        [ $((turn % 3)) != 0 ] || kill_at "$(random_below "$removal")" uninstall
    fi
    # An uninstaller that was killed after its last step has left nothing to repeat.
    [ ! -e "$main/QNXUNIN.EXE" ] || put_right uninstall
    compare before
}

make_version 1
make_version 2
make_prefix
wine wineserver -k || true
wine wineserver -p # stays between two programs
trap 'wine wineserver -k || true' EXIT
setup 1 && setup 2 && uninstall # Wine makes some folders and keys at first use
state >"$work/was/before"
fresh=$(milliseconds setup 1)
state >"$work/was/installed-1"
upgrade=$(milliseconds setup 2)
state >"$work/was/installed-2"
removal=$(milliseconds uninstall)
echo "seed $SEED, $turns turns; a setup takes $fresh ms, an upgrade $upgrade ms, an uninstaller $removal ms"
for turn in $(seq "$turns"); do
    one_turn
    [ $((turn % 10)) != 0 ] || echo "$turn turns, $failed differences so far"
done
echo "$turns turns, $failed differences"
[ "$failed" = 0 ]
