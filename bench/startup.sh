#!/usr/bin/env bash
# Measures how long the desktop program takes from its start until its window has shown a project
# and is closed again by the keyboard: an empty project against one of 32,000 rows.
#
#   bench/startup.sh [WORK-FOLDER]     default: build/bench-startup
#
# RUNS=9 takes the best of nine runs instead of five.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh

rows=32000
runs=${RUNS:-5}
work=${1:-build/bench-startup}
mkdir -p "$work"
work=$(cd "$work" && pwd)
bin=$PWD/build/release/bench
quillon=$PWD/build/release/quillon/quillon

install_packages xvfb xdotool openbox
build release quillon make_project

export QUILLON_DRIVE_C=$work/c XDG_CONFIG_HOME=$work/config
mkdir -p "$work/empty" "$work/config/quillon"
if [ ! -f "$work/full.qnp" ]; then
    mkdir -p "$work/full"
    (cd "$work/full" && seq -f 'file%05g.txt' "$rows" | xargs touch)
    "$bin/make_project" "$work/full" "$work/full.qnp"
    touch "$work/empty/only.txt"
    "$bin/make_project" "$work/empty" "$work/empty.qnp"
fi
printf '[Options]\r\nMyDocFolderAutoCreateDone=1\r\n' >"$work/config/quillon/QUILLON.INI"

exec {display_pipe}<> <(:)
Xvfb -noreset -displayfd "$display_pipe" -screen 0 1280x900x24 >/dev/null 2>&1 &
xvfb=$!
read -r number <&"$display_pipe"
export DISPLAY=:$number
openbox 2>/dev/null &
openbox=$!
trap 'kill $openbox $xvfb' EXIT

# start_and_close PROJECT: microseconds.
start_and_close() {
    local begin=${EPOCHREALTIME/[.,]/} window
    "$quillon" "$1" 2>/dev/null &
    # Asked without a pause: xdotool's own waiting looks twice a second only.
    until window=$(xdotool search --onlyvisible --name "\\[$(basename "$1")\\]" 2>/dev/null); do :; done
    xdotool windowactivate --sync "${window%%$'\n'*}" key alt+F4
    wait $!
    echo $((${EPOCHREALTIME/[.,]/} - begin))
}

best() {
    for _ in $(seq "$runs"); do start_and_close "$1"; done | sort -n | head -n 1
}

start_and_close "$work/full.qnp" >/dev/null
empty=$(best "$work/empty.qnp")
full=$(best "$work/full.qnp")
awk -v e="$empty" -v f="$full" -v rows="$rows" 'BEGIN {
    printf "1 row: %.0f ms; %d rows: %.0f ms; ratio %.2f\n", e / 1000, rows, f / 1000, f / e }'
