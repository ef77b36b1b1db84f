#!/usr/bin/env bash
# Measures Create against zip and makensis on one tree, and how the work on long file lists grows.
# Says for each limit whether it holds; ends with 1 when one does not.
#
#   bench/create.sh [WORK-FOLDER]     default: build/bench-input
#
# RUNS=5 takes the best of five runs of each program instead of three.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/prepare.sh

runs=${RUNS:-3}
work=${1:-build/bench-input}
mkdir -p "$work"
work=$(cd "$work" && pwd)
bin=$PWD/build/release/bench
quillonc=$PWD/build/release/quillon/quillonc
failed=0
. bench/tree.sh

# Seconds and peak kilobytes of the best of several runs, in `seconds` and `memory`. PREPARE is run
# before each and not counted.
measure() {
    local prepare=$1 run
    shift
    seconds='' memory=''
    for ((run = 0; run < runs; ++run)); do
        "$prepare"
        if ! /usr/bin/time -o "$work/time" -f '%e %M' "$@" >"$work/log" 2>&1; then
            tail -n 20 "$work/log" >&2
            echo "This failed: $*" >&2
            exit 1
        fi
        local took peak
        read -r took peak < <(tail -n 1 "$work/time")
        if [ -z "$seconds" ] || awk "BEGIN { exit !($took < $seconds) }"; then
            seconds=$took memory=$peak
        fi
    done
}

size_of() { stat -c %s "$1"; }

ratio() { awk "BEGIN { printf \"%.4f\", $1 / $2 }"; }

line() { printf '%-22s %9.2f s %13d bytes %9d KB peak\n' "$1" "$2" "$3" "$4"; }

empty_package() { rm -rf "$work/package" && mkdir "$work/package"; }
remove_zip() { rm -f "$work/all.zip"; }
remove_installer() { rm -f "$work/all.exe"; }
zip_input() { (cd "$input" && zip -q -5 -r "$work/all.zip" .); }

compare_programs() {
    local files bytes
    make_tree_project
    find "$input" -type f -exec cat {} + >/dev/null # every program finds the files in memory

    measure empty_package "$quillonc" create "$work/all.qnp" --medium cd --to "$work/package"
    local our_time=$seconds our_memory=$memory our_size
    our_size=$(size_of "$work/package/FILEDATA.DAT")
    line quillonc "$our_time" "$our_size" "$our_memory"
    "$quillonc" verify "$work/package" || { echo "The package is not whole." >&2; exit 1; }

    export -f zip_input
    export input work
    measure remove_zip bash -c zip_input
    local zip_time=$seconds zip_size
    zip_size=$(size_of "$work/all.zip")
    line "zip -5" "$zip_time" "$zip_size" "$memory"

    printf '%s\n' 'SetCompressor zlib' "OutFile \"$work/all.exe\"" 'Name "All"' \
        'InstallDir "$PROGRAMFILES\All"' 'Section' 'SetOutPath "$INSTDIR"' \
        "File /r \"$input/*\"" 'SectionEnd' >"$work/all.nsi"
    measure remove_installer makensis -V1 "$work/all.nsi"
    local nsis_time=$seconds
    line makensis "$nsis_time" "$(size_of "$work/all.exe")" "$memory"

    echo
    judge 4 'times faster than zip -5 -r' "$(ratio "$zip_time" "$our_time")" '>='
    judge 1.02 'times the size of what zip makes' "$(ratio "$our_size" "$zip_size")" '<='
    judge 15 'times faster than makensis with zlib' "$(ratio "$nsis_time" "$our_time")" '>='
    judge 262144 'KB of memory at most' "$our_memory" '<='
    judge 1.03 'times as long because equal files are looked for' \
        "$("$bin/equal_files_cost" "$input")" '<='
}

# The whole package as one program, against the smallest that makensis makes of the same tree.
compare_one_program() {
    measure empty_package "$quillonc" create "$work/all.qnp" --medium internet --to "$work/package"
    local our_time=$seconds our_memory=$memory our_size
    our_size=$(stat -c %s "$work"/package/*.exe)
    line "quillonc, one program" "$our_time" "$our_size" "$our_memory"

    sed 's|^SetCompressor zlib|SetCompressor /SOLID lzma|' "$work/all.nsi" >"$work/solid.nsi"
    runs=1 measure remove_installer makensis -V1 "$work/solid.nsi"
    local nsis_size
    nsis_size=$(size_of "$work/all.exe")
    line "makensis, solid lzma" "$seconds" "$nsis_size" "$memory"

    echo
    judge 8 'times faster than makensis with /SOLID lzma' "$(ratio "$seconds" "$our_time")" '>='
    judge 1 'times its size' "$(ratio "$our_size" "$nsis_size")" '<'
    judge 1048576 'KB of memory at most' "$our_memory" '<='
}

# The container that is as small as it can be, against the ZIP file of the same tree.
compare_containers() {
    local zip_size small_size
    empty_package
    "$quillonc" create "$work/all.qnp" --medium cd --to "$work/package" >/dev/null
    zip_size=$(size_of "$work/package/FILEDATA.DAT")
    measure empty_package "$quillonc" create "$work/all.qnp" --medium cd --small --to "$work/package"
    small_size=$(size_of "$work/package/FILEDATA.DAT")
    line "quillonc, solid" "$seconds" "$small_size" "$memory"
    "$quillonc" verify "$work/package" || { echo "The package is not whole." >&2; exit 1; }

    echo
    judge 0.8 'times the size of the container as a ZIP file' "$(ratio "$small_size" "$zip_size")" '<='
    judge 1048576 'KB of memory at most' "$memory" '<='
}

# The best of several repetitions, by the processor's time: what else runs here does not count.
growth() {
    local program=$1 name small large
    "$program" --benchmark_filter='^(Add|Save|Load)' --benchmark_format=csv \
        --benchmark_repetitions=5 2>/dev/null \
        | awk -F , '/\/(8000|32000)"?,/ {
              gsub(/"/, "", $1)
              if (!($1 in best) || $4 < best[$1]) best[$1] = $4
          }
          END { for (name in best) print name, best[name] }' | sort >"$work/growth"
    while read -r name small; do
        large=$(awk -v name="${name%/8000}/32000" '$1 == name { print $2 }' "$work/growth")
        judge 5 "times as long with 4 times the rows: ${name%/8000}" "$(ratio "$large" "$small")" '<='
    done < <(grep '/8000 ' "$work/growth")
}

install_packages "${BUILD_PACKAGES[@]}" libbenchmark-dev nsis time zip
build release
cmake --build --preset release --target benchmarks >>build/release.log 2>&1

compare_programs
compare_containers
compare_one_program
growth "$bin/file_list_bench"
growth "$bin/project_bench"
exit "$failed"
