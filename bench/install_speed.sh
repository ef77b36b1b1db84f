#!/usr/bin/env bash
# Holds a silent setup under Wine against 7z, which unpacks the same FILEDATA.DAT to the same disk, and
# takes the setup's peak memory. Says whether each limit holds; ends with 1 when one does not.
#
#   bench/install_speed.sh [WORK-FOLDER]     default: build/bench-speed
#
# RUNS=3 takes the best of so many runs of each program. MEMORY=0 leaves out the packages of which the
# memory is measured (2 GB, 32,767 files, a solid container), SPEED=0 the comparison with 7z.
# QUILLON_WINE and the work folder: bench/wine_setup.sh. 7z is a program of this system: Wine's share is
# the setup's alone.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh
. bench/wine_setup.sh

runs=${RUNS:-3}
make_work bench-speed "$@"
failed=0

# judge LIMIT TEXT VALUE
judge() {
    awk -v limit="$1" -v text="$2" -v value="$3" 'BEGIN {
        printf "%-66s %7.2f (limit %s): %s\n", text, value, limit, value <= limit ? "holds" : "DOES NOT HOLD"
        exit value > limit }' || failed=1
}

# Programs and libraries of this system, with names that Windows can hold: some 300 MB.
copy_of_usr() {
    find /usr/lib /usr/bin -xdev -type f -printf '%s\t%p\n' 2>/dev/null | LC_ALL=C sort -t $'\t' -k 2 \
        | LC_ALL=C awk -F '\t' '
            sum >= 300000000 { next }
            $2 !~ /^[-A-Za-z0-9_.+~@=,()\/]+$/ || $2 ~ /\.(\/|$)/ || length($2) > 150 { next }
            tolower($2) in seen { next }
            { seen[tolower($2)]; sum += $1; print substr($2, 2) }' >"$work/list"
    tar -C / --files-from="$work/list" --hard-dereference -cf - | tar -C "$1" -xf -
}

# Four files that can't be packed any smaller.
two_gigabytes() {
    local number
    for number in 1 2 3 4; do
        openssl enc -aes-128-ctr -nosalt -K "$number" -iv 0 -in /dev/zero 2>/dev/null \
            | head -c 536870912 >"$1/stor$number.bin" || true
    done
}

ten_files() { seq 10 | xargs -I{} sh -c 'echo {} >"$0/{}.txt"' "$1"; }

# As many as a list holds.
most_files() {
    seq 32767 | awk -v dir="$1" '{
        if ($1 % 500 == 1) { folder = sprintf("%s/m%02d", dir, $1 / 500); system("mkdir -p " folder) }
        file = sprintf("%s/fil%05d.txt", folder, $1); print "fil", $1 > file; close(file) }'
}

# make_product NAME MAKE-FILES [--small]
make_product() {
    mkdir -p "$work/$1-files"
    "$2" "$work/$1-files"
    "$quillonc" new "$work/$1.qnp" --name "$1" --destination "%PROGRAMFILES\\$1" >/dev/null
    "$quillonc" set "$work/$1.qnp" InstallOptions.UninstallSupport=1 >/dev/null
    "$quillonc" add-tree "$work/$1.qnp" "$work/$1-files" --to %DESTDIR >/dev/null
    make_package "$work/$1.qnp" "$work/$1" "${@:3}"
    rm -rf "$work/$1-files"
}

# The most memory in KB of any process of the setup so far, while the setup runs.
watch_memory() {
    local peak=0 own
    while kill -0 "$1" 2>/dev/null; do
        own=$(processes 'QNS32X\.EXE' | xargs -r -I{} awk '/^VmHWM/ { print $2 }' /proc/{}/status 2>/dev/null \
            | sort -n | tail -n 1 || true)
        [ -z "$own" ] || [ "$own" -le "$peak" ] || peak=$own
        sleep 0.05
    done
    echo "$peak" >"$work/peak"
}

install() { wine "$(on_z "$work/$1/SETUP.EXE")" /S; }
uninstall() { wine "C:\\Program Files\\$1\\QNXUNIN.EXE" /S && wait_for_uninstaller "$1"; }
wait_for_uninstaller() { while [ -e "$work/prefix/drive_c/Program Files/$1" ]; do sleep 0.1; done; }

# best COMMAND...: seconds of the best of several runs, each behind BEFORE.
best() {
    local before=$1 run took least=
    shift
    TIMEFORMAT=%R
    for ((run = 0; run < runs; ++run)); do
        $before
        sync
        took=$({ time "$@" >"$work/log" 2>&1; } 2>&1) || { cat "$work/log" >&2; return 1; }
        least=$(awk -v a="${least:-$took}" -v b="$took" 'BEGIN { print a < b ? a : b }')
    done
    echo "$least"
}

remove_unpacked() { rm -rf "$work/unpacked"; }
remove_installed() { [ ! -e "$work/prefix/drive_c/Program Files/usr" ] || uninstall usr; }

compare_with_7z() {
    make_product usr copy_of_usr
    local unpacking installing
    unpacking=$(best remove_unpacked 7z x -y "-o$work/unpacked" "$work/usr/FILEDATA.DAT")
    installing=$(best remove_installed install usr)
    echo "$(wc -l <"$work/list") files, $(du -sb "$work/unpacked" | cut -f 1) bytes: 7z $unpacking s, setup $installing s"
    judge 1.5 "the setup against 7z, times" "$(awk "BEGIN { print $installing / $unpacking }")"
    remove_unpacked
}

# memory_of NAME MAKE-FILES TEXT [--small]
memory_of() {
    make_product "$1" "$2" "${@:4}"
    install "$1" &
    watch_memory $!
    wait $! || { echo "the setup of $1 failed"; failed=1; }
    judge 64 "memory of the setup, $3, MiB" "$(awk "BEGIN { print $(cat "$work/peak") / 1024 }")"
    uninstall "$1"
    rm -rf "${work:?}/$1"
}

make_prefix
make_product small ten_files
trap 'wine wineserver -k || true' EXIT
install small && uninstall small # the first program in a new prefix waits for Wine's services
[ "${SPEED:-1}" = 0 ] || compare_with_7z
if [ "${MEMORY:-1}" != 0 ]; then
    memory_of large two_gigabytes "a package of 2 GB"
    memory_of many most_files "32,767 files"
    memory_of solid copy_of_usr "a solid container" --small
    memory_of solidmany most_files "32,767 files in a solid container" --small
fi
exit $failed
