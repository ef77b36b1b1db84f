#!/usr/bin/env bash
# Measures how the work on the file list grows: a real tree of 8,000, 16,000 and 32,000 files is
# added, refreshed and sorted by the whole program, load and save included. Says for each limit
# whether it holds; ends with 1 when one does not.
#
#   bench/file_list.sh [WORK-FOLDER]     default: build/bench-file-list
#
# RUNS=5 takes the best of five runs instead of three. Judged by the processor's time, so what else
# runs here hardly counts.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh

runs=${RUNS:-3}
work=${1:-build/bench-file-list}
mkdir -p "$work"
work=$(cd "$work" && pwd)
quillonc=$PWD/build/release/quillon/quillonc
export QUILLON_DRIVE_C=$work/c QUILLON_REGISTRY=
failed=0

# A hundred folders, and names spread over the alphabet, so that a sorted list grows in all places.
make_tree() {
    local count=$1 tree=$work/tree$1
    [ -f "$tree.done" ] && return 0
    rm -rf "$tree"
    mkdir -p "$tree" && (cd "$tree" && seq -f 'mapp%02g' 0 99 | xargs mkdir)
    (cd "$tree" && seq "$count" \
        | awk '{ printf "mapp%02d/%05d.dat\n", $1 % 100, $1 * 7919 % 100003 }' | xargs touch)
    touch "$tree.done"
}

# What a run begins with. One row makes every file be looked for in the list; old dates make a
# refresh change all rows.
start_of_add() { cp "$work/one.qnp" "$work/run.qnp"; }
start_of_refresh() {
    LC_ALL=C sed '/^F[0-9]*=/s/;[0-9]*-[0-9]*-[0-9]*;/;2001-01-01;/' "$work/full$1.qnp" >"$work/run.qnp"
}
start_of_sort() { cp "$work/full$1.qnp" "$work/run.qnp"; }

add() { "$quillonc" add-tree "$work/run.qnp" "$work/tree$1"; }
refresh() { "$quillonc" refresh "$work/run.qnp"; }
sort_rows() { "$quillonc" sort "$work/run.qnp" --by destination; }

# took WORK START COUNT: seconds of the processor, the best of several runs.
took() {
    local run
    for ((run = 0; run < runs; ++run)); do
        "$2" "$3"
        TIMEFORMAT='%U %S'
        { time "$1" "$3" >"$work/log" 2>&1; } 2>&1 || { cat "$work/log" >&2; return 1; }
        if grep -q oförändrat "$work/log"; then
            echo "Nothing was done: $1 $3" >&2
            return 1
        fi
    done | awk '{ sum = $1 + $2; if (NR == 1 || sum < best) best = sum } END { print best }'
}

# judge LIMIT TEXT SMALL LARGE: prints the line and remembers a failure.
judge() {
    local word=holds
    awk "BEGIN { exit !($4 / $3 <= $1) }" || { word=FAILS failed=1; }
    awk -v w="$word" -v t="$2" -v s="$3" -v l="$4" -v limit="$1" 'BEGIN {
        printf "%-6s %-46s %6.2f s %6.2f s  ratio %5.2f (limit %s)\n", w, t, s, l, l / s, limit }'
}

install_packages "${BUILD_PACKAGES[@]}"
build release quillonc

mkdir -p "$work/one" && touch "$work/one/first.dat"
rm -f "$work"/*.qnp
"$quillonc" new "$work/one.qnp" --name Prov --destination 'C:\Prov' >/dev/null
"$quillonc" add "$work/one.qnp" "$work/one/first.dat" >/dev/null
for count in 8000 16000 32000; do
    make_tree "$count"
    cp "$work/one.qnp" "$work/full$count.qnp"
    "$quillonc" add-tree "$work/full$count.qnp" "$work/tree$count" | grep -q ": $count," \
        || { echo "The project does not hold every file." >&2; exit 1; }
done

# A quarter of noise on top of what the work itself may take: linear, and n log n for the sort.
declare -A seconds
for count in 8000 16000 32000; do
    seconds[add$count]=$(took add start_of_add "$count")
    seconds[refresh$count]=$(took refresh start_of_refresh "$count")
    seconds[sort$count]=$(took sort_rows start_of_sort "$count")
done
judge 2.5 'add a tree, 8,000 and 16,000 files' "${seconds[add8000]}" "${seconds[add16000]}"
judge 2.5 'add a tree, 16,000 and 32,000 files' "${seconds[add16000]}" "${seconds[add32000]}"
judge 5 'refresh, 8,000 and 32,000 rows' "${seconds[refresh8000]}" "${seconds[refresh32000]}"
judge 5.8 'sort, 8,000 and 32,000 rows' "${seconds[sort8000]}" "${seconds[sort32000]}"
exit "$failed"
